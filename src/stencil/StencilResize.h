#pragma once

#include "stencil/StencilDrag.h"

// How a drag of a side or corner grip changes a stencil. The rectangle is stored unrotated about
// its own centre, so each drag turns the mouse back into the rectangle's own frame, changes the
// rectangle there and then shifts it so that what should stay put on the screen does.

namespace ormala {

/// A side: Shift snaps to a special ratio, Ctrl moves both sides about the centre.
void DragSize(StencilState& state, const GripDrag& drag);

/// A corner: the ratio of the pixel sizes stays, Ctrl keeps the centre. The smaller size is at
/// least `smallestSide`, also where the mouse has gone past the centre or the opposite corner.
void DragSizeCorner(StencilState& state, const GripDrag& drag);

/// After a change of one side or corner the centre has moved in the rectangle's own frame. The
/// shift keeps the opposite side or corner where it is on the screen.
void keepOppositeInPlace(Rect& rect, const Point& oldCenter, double rotationAngle);

}  // namespace ormala
