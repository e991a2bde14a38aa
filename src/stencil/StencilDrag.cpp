#include "stencil/StencilDrag.h"

#include <cmath>

#include "modAPI/angles.h"
#include "modAPI/constants.h"
#include "modAPI/rectangles.h"
#include "modAPI/rounding.h"
#include "scene/Input.h"

namespace ormala {

namespace {

constexpr double nineDegrees = 0.1570796326794895;
constexpr double elevenDegrees = 0.19634954084936188;
constexpr double fortyFiveDegrees = pi / 4;

/// Rounding may land a hair below a full turn, which is shown as 0 and not as 360 degrees.
double withoutFullTurn(double angle, int digits) {
    return SameSignificant(angle, twoPi, digits) ? 0 : angle;
}

double toMultiple(double angle, double step) {
    return RoundHalfAway(angle / step, 0) * step;
}

/// The centre of the grip that the mouse holds, on whole pixels for a grip on whole pixels.
Point wholeGripCenter(const GripDrag& drag, double x, double y) {
    return {x - drag.grabX + std::floor(drag.gripWidth / 2),
            y - drag.grabY + std::floor(drag.gripHeight / 2)};
}

/// The unrotated corner that belongs to a rotate grip, cut to whole pixels.
Point cornerOfRotateGrip(const Rect& rect, int number) {
    const bool right = number < 2;
    const bool top = number == 0 || number == 3;
    return {std::trunc(right ? rect.right : rect.left), std::trunc(top ? rect.top : rect.bottom)};
}

double fixedAngle(double angle, int shift) {
    if ((shift & modifier::ctrl) != 0) {
        return withoutFullTurn(toMultiple(angle, nineDegrees), 3);
    }
    if ((shift & modifier::shift) != 0) {
        return withoutFullTurn(toMultiple(angle, elevenDegrees), 3);
    }
    if ((shift & modifier::alt) != 0) {
        return withoutFullTurn(toMultiple(angle, fortyFiveDegrees), 3);
    }
    return angle;
}

/// The modifiers that make a drag go elsewhere than the mouse.
int bindingModifiers(StencilGripKind kind) {
    switch (kind) {
        case StencilGripKind::move:
            return modifier::ctrl;
        case StencilGripKind::rotate:
            return modifier::ctrl | modifier::shift | modifier::alt;
        case StencilGripKind::size:
            return modifier::shift;
        default:
            return 0;
    }
}

}  // namespace

bool leavesAsPressed(const GripDrag& drag) {
    const bool moved = drag.x != drag.pressX || drag.y != drag.pressY;
    return !moved && (drag.shift & bindingModifiers(drag.grip.kind)) == 0;
}

bool bindsToGrid(const GripDrag& drag) {
    return drag.grip.kind == StencilGripKind::move && (drag.shift & modifier::ctrl) != 0;
}

bool snapsToRatio(const GripDrag& drag) {
    return drag.grip.kind == StencilGripKind::size && (drag.shift & modifier::shift) != 0;
}

Point DragMove(StencilState& state, const GripDrag& drag, const Grid& grid) {
    const Point center = RectCenter(state.RectBound);
    Point target = wholeGripCenter(drag, drag.x, drag.y);
    if ((drag.shift & modifier::shift) != 0) {
        target = SnapToDirection(wholeGripCenter(drag, drag.pressX, drag.pressY), target);
        RoundPoint(target);
    }
    if ((drag.shift & modifier::ctrl) != 0) {
        SnapToGrid(target.x, target.y, grid);
    }
    const auto dx = static_cast<double>(static_cast<float>(target.x - center.x));
    const auto dy = static_cast<double>(static_cast<float>(target.y - center.y));
    Rect& rect = state.RectBound;
    rect = {rect.left + dx, rect.top + dy, rect.right + dx, rect.bottom + dy};
    return target;
}

void DragRotate(StencilState& state, const GripDrag& drag) {
    const Point center = RectCenter(state.RectBound);
    const Point corner = cornerOfRotateGrip(state.RectBound, drag.grip.number);
    const double cornerAngle = AngleOf(center.x, center.y, corner.x, corner.y);
    const Point mouse{drag.x - drag.grabX + drag.gripWidth / 2,
                      drag.y - drag.grabY + drag.gripHeight / 2};
    const Point turned = RotatePoint(center.x, center.y, mouse.x, mouse.y, -cornerAngle);
    state.RotationAngle = fixedAngle(AngleOf(center.x, center.y, turned.x, turned.y), drag.shift);
}

AngleStep angleStepOf(int shift) {
    if ((shift & modifier::ctrl) != 0) {
        return AngleStep::twentiethOfPi;
    }
    if ((shift & modifier::shift) != 0) {
        return AngleStep::sixteenthOfPi;
    }
    return (shift & modifier::alt) != 0 ? AngleStep::tenthOfDegree : AngleStep::degree;
}

double modifiedAngle(double angle, bool negative, AngleStep stepKind) {
    constexpr double steps[] = {pi / 180, pi / 1800, nineDegrees, elevenDegrees};
    const double step = steps[static_cast<int>(stepKind)] * (negative ? -1 : 1);
    double next = angle + step;
    if (stepKind == AngleStep::twentiethOfPi || stepKind == AngleStep::sixteenthOfPi) {
        next = toMultiple(next, step);
    }
    if (next < 0) {
        next += twoPi;
    }
    if (next > twoPi) {
        next -= twoPi;
    }
    return withoutFullTurn(next, 4);
}

}  // namespace ormala
