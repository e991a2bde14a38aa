#pragma once

#include "modAPI/placing.h"
#include "modAPI/points.h"

namespace ormala {

/// For a label on a circle, such that it stands outside. `angle` is the direction from the circle's
/// centre mirrored left to right, in radians up to two full turns; a negative one has the centre.
Anchor LabelAnchorForAngle(double angle);

/// For a label at the middle `p` of a line of that slope, on the side that faces away from `other`,
/// the middle of the other line.
Anchor LabelAnchorForLength(const Point& p, double slope, const Point& other);

}  // namespace ormala
