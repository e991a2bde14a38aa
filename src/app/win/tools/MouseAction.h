#pragma once

#include <windows.h>

#include "stencil/ctlRatioGrid.h"

namespace ormala {

/// Drags in the program under the stencil's top left corner, with the left button pressed, to its
/// bottom right one, and returns when that program has got it. The preview plays, `control` steps
/// off all screens meanwhile, and the mouse pointer comes back to its place. No other window of
/// this program may take the mouse there.
void applyMouseAction(ctlRatioGrid& stencil, HWND worksheet, HWND control);

}  // namespace ormala
