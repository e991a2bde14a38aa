#pragma once

#include <windows.h>

#include "stencil/ctlRatioGrid.h"

namespace ormala {

/// Where the automatic mouse action presses and lets go, in screen pixels.
struct MouseActionPath {
    POINT from{};
    POINT to{};
};

/// The stencil's first and last pixel, unturned. `worksheet` is the window that it lies on.
MouseActionPath mouseActionPath(const Rect& rectBound, HWND worksheet);

/// Drags in the program under the stencil's top left corner, with the left button pressed, to its
/// bottom right one. The preview plays, `control` steps off all screens meanwhile, and the mouse
/// pointer comes back to its place.
void applyMouseAction(ctlRatioGrid& stencil, HWND worksheet, HWND control);

}  // namespace ormala
