#include "stencil/StencilResize.h"

#include <cmath>

#include "modAPI/angles.h"
#include "modAPI/constants.h"
#include "modAPI/rectangles.h"
#include "scene/Input.h"
#include "stencil/SpecialRatios.h"

namespace ormala {

namespace {

/// The centre of the grip that the mouse holds, turned into the rectangle's own frame.
Point inOwnFrame(const Point& center, const GripDrag& drag, double rotationAngle) {
    const Point held{drag.x - drag.grabX + drag.gripWidth / 2,
                     drag.y - drag.grabY + drag.gripHeight / 2};
    return RotatePoint(center.x, center.y, held.x, held.y, twoPi - rotationAngle);
}

/// One dimension of the rectangle as a side grip sees it.
struct Dimension {
    double& dragged;
    double& opposite;
    /// 1 if the dragged side is the one with the larger coordinate, else -1.
    double outward;
    double mouse;
    double center;

    [[nodiscard]] double size() const { return (dragged - opposite) * outward; }
};

Dimension dimensionOf(Rect& rect, int side, const Point& mouse, const Point& center) {
    switch (side) {
        case 0:
            return {rect.top, rect.bottom, -1, mouse.y, center.y};
        case 1:
            return {rect.right, rect.left, 1, mouse.x, center.x};
        case 2:
            return {rect.bottom, rect.top, 1, mouse.y, center.y};
        default:
            return {rect.left, rect.right, -1, mouse.x, center.x};
    }
}

/// By how much the dragged dimension is to be multiplied for a special ratio, 1 for none.
double ratioCorrection(const Rect& rect, int side) {
    const double width = PixelWidth(rect);
    const double height = PixelHeight(rect);
    const bool vertical = side == 0 || side == 2;
    double ratio = 0;
    const double special = vertical ? SnapToSpecialRatio(height, width, ratio)
                                    : SnapToSpecialRatio(width, height, ratio);
    return ratio != 0 ? special / ratio : 1;
}

void dragOneSide(Rect& rect, int side, Dimension dimension, bool snap) {
    dimension.dragged = dimension.mouse;
    if (dimension.size() < smallestSide) {
        dimension.dragged = dimension.opposite + smallestSide * dimension.outward;
    }
    if (snap) {
        dimension.dragged = (dimension.dragged - dimension.opposite) * ratioCorrection(rect, side) +
                            dimension.opposite;
    }
}

void dragBothSides(Rect& rect, int side, Dimension dimension, bool snap) {
    const double half = (dimension.mouse - dimension.dragged) / 2;
    dimension.dragged += half;
    dimension.opposite -= half;
    if (dimension.size() < smallestSide) {
        dimension.dragged = dimension.center + smallestSide / 2 * dimension.outward;
        dimension.opposite = dimension.center - smallestSide / 2 * dimension.outward;
    }
    if (snap) {
        const double wished =
            (dimension.dragged - dimension.opposite) * ratioCorrection(rect, side);
        const double halfChange = (wished + dimension.opposite - dimension.dragged) / 2;
        dimension.dragged += halfChange;
        dimension.opposite -= halfChange;
    }
}

/// Which way a corner grip lies from the centre: x to the right, y downward.
Point directionOfCorner(int number) {
    return {number < 2 ? 1.0 : -1.0, number == 0 || number == 3 ? -1.0 : 1.0};
}

Point cornerOf(const Rect& rect, const Point& direction) {
    return {direction.x > 0 ? rect.right : rect.left, direction.y > 0 ? rect.bottom : rect.top};
}

/// The mouse projected on the diagonal through the grip's corner.
Point onDiagonal(const Rect& outer, const Point& center, const Point& direction, Point mouse) {
    mouse.x += 0.5 * direction.x;
    mouse.y += 0.5 * direction.y;
    const Point corner = cornerOf(outer, direction);
    const double across = AngleOf(center.x, center.y, corner.x, corner.y) - halfPi;
    const double distance =
        DistanceFromLine(center.x, center.y, corner.x, corner.y, mouse.x, mouse.y);
    return {mouse.x - std::cos(across) * distance, mouse.y + std::sin(across) * distance};
}

/// Keeps the smaller side at least so far from `fixed`, with the ratio `q` of width to height; also
/// where the mouse has gone past it, or the rectangle would turn inside out.
Point notTooNear(Point corner, const Point& fixed, const Point& direction, double q, double least) {
    if (q > 1) {
        if ((corner.y - fixed.y) * direction.y < least) {
            corner = {fixed.x + direction.x * least * q, fixed.y + direction.y * least};
        }
    } else if ((corner.x - fixed.x) * direction.x < least) {
        corner = {fixed.x + direction.x * least, fixed.y + direction.y * least / q};
    }
    return corner;
}

void setCorner(Rect& rect, const Point& direction, const Point& corner) {
    (direction.x > 0 ? rect.right : rect.left) = corner.x;
    (direction.y > 0 ? rect.bottom : rect.top) = corner.y;
}

}  // namespace

void keepOppositeInPlace(Rect& rect, const Point& oldCenter, double rotationAngle) {
    const Point newCenter = RectCenter(rect);
    const Point turned =
        RotatePoint(oldCenter.x, oldCenter.y, newCenter.x, newCenter.y, rotationAngle);
    const double dx = turned.x - newCenter.x;
    const double dy = turned.y - newCenter.y;
    rect = {rect.left + dx, rect.top + dy, rect.right + dx, rect.bottom + dy};
}

void DragSize(StencilState& state, const GripDrag& drag) {
    Rect& rect = state.RectBound;
    const Point center = RectCenter(rect);
    const Point mouse = inOwnFrame(center, drag, state.RotationAngle);
    const int side = drag.grip.number;
    const bool snap = (drag.shift & modifier::shift) != 0;
    const Dimension dimension = dimensionOf(rect, side, mouse, center);
    if ((drag.shift & modifier::ctrl) != 0) {
        dragBothSides(rect, side, dimension, snap);
        return;
    }
    dragOneSide(rect, side, dimension, snap);
    keepOppositeInPlace(rect, center, state.RotationAngle);
}

void DragSizeCorner(StencilState& state, const GripDrag& drag) {
    const Rect& bound = state.RectBound;
    // The true outer edges of the pixels: their ratio is what the eye sees.
    Rect outer{bound.left - 0.5, bound.top - 0.5, bound.right + 0.5, bound.bottom + 0.5};
    const Point center = RectCenter(outer);
    const double ratio = PixelRatio(bound, false);
    const double q = ratio == 0 || IsInfinite(ratio) ? 1 : ratio;
    const Point direction = directionOfCorner(drag.grip.number);
    const Point away{-direction.x, -direction.y};
    const Point mouse = inOwnFrame(center, drag, state.RotationAngle);
    const Point wished = onDiagonal(outer, center, direction, mouse);
    if ((drag.shift & modifier::ctrl) != 0) {
        const Point corner = notTooNear(wished, center, direction, q, smallestSide / 2);
        setCorner(outer, direction, corner);
        setCorner(outer, away, {2 * center.x - corner.x, 2 * center.y - corner.y});
    } else {
        const Point opposite = cornerOf(outer, away);
        setCorner(outer, direction, notTooNear(wished, opposite, direction, q, smallestSide));
        keepOppositeInPlace(outer, center, state.RotationAngle);
    }
    state.RectBound = {outer.left + 0.5, outer.top + 0.5, outer.right - 0.5, outer.bottom - 0.5};
}

}  // namespace ormala
