#include "stencil/StencilSteps.h"

#include <array>
#include <cstddef>

#include "modAPI/constants.h"
#include "modAPI/rectangles.h"
#include "scene/Input.h"
#include "stencil/StencilResize.h"

namespace ormala {

namespace {

enum class Axis { x, y };

// The first button of each group.
constexpr int firstSide = 4;
constexpr int firstPair = 12;
constexpr int firstSize = 16;
constexpr int moveButtons = 18;

/// The buttons stand in pairs, the one that decreases first.
int directionOf(int index) {
    return index % 2 == 0 ? -1 : 1;
}

double stepped(double place, Axis axis, int direction, const Grid* grid) {
    if (grid == nullptr) {
        return place + direction;
    }
    const double next = place + direction * (axis == Axis::x ? grid->stepX : grid->stepY);
    Point point{next, next};
    SnapToGrid(point, *grid);
    return axis == Axis::x ? point.x : point.y;
}

/// Turning a rectangle costs its sides their last digits, which is to cost no step.
bool largeEnough(double size) {
    constexpr double lastDigits = 1e-6;
    return size >= smallestSide - lastDigits;
}

bool largeEnough(const Rect& rect, Axis axis) {
    return largeEnough(axis == Axis::x ? rect.right - rect.left : rect.bottom - rect.top);
}

Rect afterCenterStep(Rect rect, int index, const Grid* grid) {
    Point center = RectCenter(rect);
    const Axis axis = index < 2 ? Axis::x : Axis::y;
    double& moved = axis == Axis::x ? center.x : center.y;
    moved = stepped(moved, axis, directionOf(index), grid);
    if (grid != nullptr) {
        SnapToGrid(center, *grid);
    }
    CenterRectOn(rect, center);
    return rect;
}

Rect afterSideStep(const StencilState& state, int index, const Grid* grid) {
    constexpr std::array sides{&Rect::left, &Rect::right, &Rect::top, &Rect::bottom};
    const auto side = static_cast<std::size_t>((index - firstSide) / 2);
    const Axis axis = side < 2 ? Axis::x : Axis::y;
    Rect rect = state.RectBound;
    double& moved = rect.*sides[side];
    moved = stepped(moved, axis, directionOf(index), grid);
    if (!largeEnough(rect, axis)) {
        return state.RectBound;
    }
    keepOppositeInPlace(rect, RectCenter(state.RectBound), state.RotationAngle);
    return rect;
}

Rect afterPairStep(const Rect& before, int index, const Grid* grid) {
    const Axis axis = index < firstPair + 2 ? Axis::x : Axis::y;
    const int outward = directionOf(index);
    Rect rect = before;
    double& first = axis == Axis::x ? rect.left : rect.top;
    double& last = axis == Axis::x ? rect.right : rect.bottom;
    first = stepped(first, axis, -outward, grid);
    last = stepped(last, axis, outward, grid);
    return largeEnough(rect, axis) ? rect : before;
}

/// The longer side grows by a pixel at each end, the other as the ratio asks.
Rect afterSizeStep(const Rect& before, int index) {
    const double aspect = RectAspect(before, false);
    const double q = aspect == 0 ? 1 : aspect;
    const double outward = directionOf(index);
    const bool wide = q > 1;
    const double dx = wide ? outward : outward * q;
    const double dy = wide ? outward / q : outward;
    const Rect rect{before.left - dx, before.top - dy, before.right + dx, before.bottom + dy};
    return largeEnough(rect, wide ? Axis::y : Axis::x) ? rect : before;
}

}  // namespace

Rect afterMoveStep(const StencilState& state, int index, const Grid* grid) {
    const Rect& rect = state.RectBound;
    if (index < 0 || index >= moveButtons) {
        return rect;
    }
    if (index < firstSide) {
        return afterCenterStep(rect, index, grid);
    }
    if (index < firstPair) {
        return afterSideStep(state, index, grid);
    }
    return index < firstSize ? afterPairStep(rect, index, grid) : afterSizeStep(rect, index);
}

double zeroAngleOf(int shift) {
    if ((shift & modifier::ctrl) != 0) {
        return pi / 2;
    }
    if ((shift & modifier::shift) != 0) {
        return threeHalvesPi;
    }
    return (shift & modifier::alt) != 0 ? pi : 0;
}

Rect withPixelRatio(const Rect& rectBound, double ratio) {
    const double width = PixelHeight(rectBound) * ratio - 1;
    const double half = (width - (rectBound.right - rectBound.left)) / 2;
    return {rectBound.left - half, rectBound.top, rectBound.right + half, rectBound.bottom};
}

}  // namespace ormala
