#pragma once

#include "modAPI/points.h"

namespace ormala {

/// The place of a shape item. Items hold their places in single precision.
struct ShapeBox {
    float left = 0;
    float top = 0;
    float width = 0;
    float height = 0;
    bool oval = false;

    bool operator==(const ShapeBox&) const = default;
};

/// The sums of right and bottom are made in single precision.
Rect RectOfShape(const ShapeBox& shape);

/// An oval is hit nearer than half its width to its centre, the centre rounded down to whole
/// pixels; any other shape by `PointInRect`.
bool HitShape(const ShapeBox& shape, double x, double y);

/// The same with the shape grown by the tolerance on all four sides.
bool HitShapeTolerant(const ShapeBox& shape, double x, double y, double tolerance);

}  // namespace ormala
