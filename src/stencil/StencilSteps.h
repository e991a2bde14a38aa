#pragma once

#include "modAPI/transforms.h"
#include "stencil/StencilState.h"

// How the step buttons of a stencil's panel change it: pure functions of the state.

namespace ormala {

/// `RectBound` after one step of the button `cmdMove(index)`, 0 to 17; any other index changes
/// nothing. The step is a pixel or, if there is a grid, a step of that, and what has moved then
/// lies on the grid; the last two buttons change the size evenly and know no grid. A step that
/// would leave less than `smallestSide` changes nothing.
Rect afterMoveStep(const StencilState& state, int index, const Grid* grid);

/// The angle that `cmdAngleZero` sets: a quarter turn with Ctrl, else three with Shift, else a half
/// with Alt, else 0.
double zeroAngleOf(int shift);

/// The same height and centre, with the given ratio of width to height in pixels.
Rect withPixelRatio(const Rect& rectBound, double ratio);

}  // namespace ormala
