#pragma once

#include "scene/PixelRect.h"

namespace ormala {

/// What the magnifier asks of the application.
class LensCommands {
  public:
    virtual ~LensCommands() = default;

    /// 0 edit, 1 template, 2 pause.
    virtual void SetMode(int mode, bool minimise) = 0;
    virtual void ShowHelp() = 0;
    virtual void ShowOptions(int page) = 0;
    /// Pops up the menu `mnuLens` at a place of the screen.
    virtual void showLensMenu(PixelPoint screen) = 0;
    /// The bounds of all screens together, as they are now.
    virtual PixelRect RefreshScreenBounds() = 0;
};

}  // namespace ormala
