#pragma once

#include <windows.h>

#include "scene/Mode.h"

namespace ormala {

/// The modes in the system menu of the control window.
class ModeMenu {
  public:
    /// `AddModeSystemMenuItems`, without texts yet.
    void addTo(HWND window);
    void RefreshRuntimeStrings(Mode mode) const;
    /// Greys the entry of the mode.
    void SyncSystemMenu(Mode mode) const;

  private:
    HMENU menu_ = nullptr;
};

}  // namespace ormala
