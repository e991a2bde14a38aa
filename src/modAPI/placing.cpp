#include "modAPI/placing.h"

#include <cmath>

#include "modAPI/rounding.h"

namespace ormala {

namespace {

enum class Side { before, middle, after };

/// Where the point lies on the item along x; `before` is its left edge.
Side sideX(Anchor anchor) {
    switch (anchor) {
        case Anchor::leftCentre:
        case Anchor::bottomLeft:
        case Anchor::topLeft:
            return Side::before;
        case Anchor::rightCentre:
        case Anchor::topRight:
        case Anchor::bottomRight:
            return Side::after;
        default:
            return Side::middle;
    }
}

Side sideY(Anchor anchor) {
    switch (anchor) {
        case Anchor::topCentre:
        case Anchor::topRight:
        case Anchor::topLeft:
            return Side::before;
        case Anchor::bottomCentre:
        case Anchor::bottomRight:
        case Anchor::bottomLeft:
            return Side::after;
        default:
            return Side::middle;
    }
}

/// The item's first coordinate along one axis.
double start(double at, double extent, Side side, double gap) {
    switch (side) {
        case Side::before:
            return at + gap;
        case Side::after:
            return at - extent + 1 - gap;
        default:
            return at - extent / 2;
    }
}

}  // namespace

Point PlaceByAnchor(double width, double height, Point point, Anchor anchor) {
    if (anchor == Anchor::centre) {
        return {RoundHalfAway(point.x - std::floor(width / 2)),
                RoundHalfAway(point.y - std::floor(height / 2))};
    }
    return {std::floor(start(point.x, width, sideX(anchor), 0)),
            std::floor(start(point.y, height, sideY(anchor), 0))};
}

Point PlaceFormByAnchor(double width, double height, Point point, Anchor anchor, bool withGap,
                        double reach) {
    const Side x = sideX(anchor);
    const Side y = sideY(anchor);
    const bool corner = x != Side::middle && y != Side::middle;
    double gap = 0;
    if (withGap) {
        gap = corner ? std::sqrt(reach * reach / 2) : reach;
    }
    return {start(point.x, width, x, gap), start(point.y, height, y, gap)};
}

}  // namespace ormala
