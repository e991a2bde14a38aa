#pragma once

#include <windows.h>

#include "platform/win/sentDrag.h"
#include "stencil/ctlRatioGrid.h"

namespace ormala {

/// Drags in the program under the stencil's top left corner, with the left button pressed, to its
/// bottom right one, and returns when that program has got it. The preview plays, `control` steps
/// off all screens meanwhile, and the mouse pointer comes back to its place. No other window of
/// this program may take the mouse there. False if the system refuses the input, as for a program
/// that runs as administrator.
bool applyMouseAction(ctlRatioGrid& stencil, HWND worksheet, HWND control,
                      const DragSystem& system);

}  // namespace ormala
