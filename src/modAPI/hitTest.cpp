#include "modAPI/hitTest.h"

#include <cmath>

#include "modAPI/angles.h"
#include "modAPI/rectangles.h"

namespace ormala {

namespace {

bool hitOval(const Rect& rect, double radius, double x, double y) {
    const Point centre = RectCenter(rect);
    return Distance(x, y, std::floor(centre.x), std::floor(centre.y)) < radius;
}

}  // namespace

Rect RectOfShape(const ShapeBox& shape) {
    const float right = shape.left + shape.width;
    const float bottom = shape.top + shape.height;
    return {shape.left, shape.top, right, bottom};
}

bool HitShape(const ShapeBox& shape, double x, double y) {
    const Rect rect = RectOfShape(shape);
    return shape.oval ? hitOval(rect, shape.width / 2, x, y) : PointInRect(rect, x, y);
}

bool HitShapeTolerant(const ShapeBox& shape, double x, double y, double tolerance) {
    const Rect rect = RectOfShape(shape);
    const Rect grown = {rect.left - tolerance, rect.top - tolerance, rect.right + tolerance,
                        rect.bottom + tolerance};
    return shape.oval ? hitOval(grown, (grown.right - grown.left) / 2, x, y)
                      : PointInRect(grown, x, y);
}

}  // namespace ormala
