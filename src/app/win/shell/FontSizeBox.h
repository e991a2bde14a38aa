#pragma once

#include "base/Event.h"
#include "language/clsGlobalEvents.h"
#include "platform/win/StandardControl.h"

namespace ormala {

/// `Check1`, a box that no user sees: the size of type stays as designed unless a program ticks it.
class FontSizeBox {
  public:
    FontSizeBox(HWND parent, clsGlobalEvents& globalEvents);

    /// WM_COMMAND of the parent: a click changes the size of type.
    void onCommand(WPARAM wParam);

  private:
    clsGlobalEvents& globalEvents_;
    StandardControl check1_;
    Subscription fontSizeChange_;
};

}  // namespace ormala
