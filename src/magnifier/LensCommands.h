#pragma once

#include "modAPI/PixelRect.h"

namespace ormala {

/// What the magnifier asks of the application.
class LensCommands {
  public:
    virtual ~LensCommands() = default;

    /// A key was pressed: true if it was that of a command, which has been obeyed.
    virtual bool takeKey(int key, int modifiers) = 0;
    /// Pops up the menu `mnuLens` at a place of the screen.
    virtual void showLensMenu(PixelPoint screen) = 0;
    /// The bounds of all screens together, as they are now.
    virtual PixelRect RefreshScreenBounds() = 0;
};

}  // namespace ormala
