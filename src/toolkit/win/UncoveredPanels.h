#pragma once

#include <vector>

#include "platform/win/BackBuffer.h"
#include "toolkit/win/PanelWindow.h"

namespace ormala {

/// Brings what a list has uncovered of its panels to the screen as one picture. Left to the system,
/// each control paints itself, which takes many times as long.
class UncoveredPanels {
  public:
    /// In pixels of `content`, the parent of the panels. Draws all that `part` has of them, and
    /// tells the system that nothing needs painting in `done`, which lies around it. Does nothing
    /// while nobody can see it, and if only the system can draw it.
    void show(HWND content, const std::vector<PanelWindow*>& panels, const PixelRect& part,
              const PixelRect& done);

  private:
    BackBuffer picture_;
};

}  // namespace ormala
