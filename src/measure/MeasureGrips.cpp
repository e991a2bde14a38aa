#include "measure/MeasureGrips.h"

#include "modAPI/drawingColors.h"
#include "modAPI/transforms.h"

namespace ormala {

namespace {

constexpr int item(MeasureGrip grip) {
    return static_cast<int>(grip);
}

constexpr int item(MeasureStroke stroke) {
    return measureGripCount + static_cast<int>(stroke);
}

struct GripLook {
    ShapeKind kind;
    /// The strong one is the border with the focus, and the colour of the reference line.
    GripColors colors;
};

GripLook lookOf(MeasureGrip grip) {
    using namespace sheetColor;
    switch (grip) {
        case MeasureGrip::endA1:
        case MeasureGrip::endA2:
            return {ShapeKind::oval, lineAGrip};
        case MeasureGrip::endB1:
        case MeasureGrip::endB2:
            return {ShapeKind::oval, lineBGrip};
        case MeasureGrip::centerA:
            return {ShapeKind::rectangle, lineAGrip};
        case MeasureGrip::centerB:
            return {ShapeKind::rectangle, lineBGrip};
        case MeasureGrip::intersect:
            break;
    }
    return {ShapeKind::rectangle, crossingGrip};
}

Grip makeGrip(MeasureGrip which) {
    const GripLook look = lookOf(which);
    Grip grip;
    const auto side = static_cast<float>(grip.size);
    grip.box = {0, 0, side, side, look.kind == ShapeKind::oval};
    grip.kind = look.kind;
    grip.color = look.colors.pale;
    grip.pressedColor = look.colors.pale;
    grip.focusBorder = look.colors.strong;
    grip.selectedBorder = look.colors.pale;
    return grip;
}

ForwardOrder forwardOrder() {
    using enum MeasureGrip;
    constexpr int a1 = item(endA1);
    constexpr int a2 = item(endA2);
    constexpr int a = item(centerA);
    constexpr int b1 = item(endB1);
    constexpr int b2 = item(endB2);
    constexpr int b = item(centerB);
    constexpr int lineA = item(MeasureStroke::lineA);
    constexpr int lineB = item(MeasureStroke::lineB);
    return {
        {a, a2, a1, lineA},  // endA1
        {b, b2, b1, lineB},  // endB1
        {a, a1, a2, lineA},  // endA2
        {b, b1, b2, lineB},  // endB2
        {a1, a2, a, lineA},  // centerA
        {b1, b2, b, lineB},  // centerB
        {},                  // intersect
    };
}

}  // namespace

GripSet makeMeasureGrips() {
    std::vector<Grip> grips;
    grips.reserve(measureGripCount);
    for (int i = 0; i < measureGripCount; ++i) {
        grips.push_back(makeGrip(static_cast<MeasureGrip>(i)));
    }
    return {std::move(grips), forwardOrder(), measureStrokeCount};
}

Point measureGripPoint(MeasureGrip grip, const MeasureState& state) {
    switch (grip) {
        case MeasureGrip::endA1:
            return firstEnd(state.LineA);
        case MeasureGrip::endB1:
            return firstEnd(state.LineB);
        case MeasureGrip::endA2:
            return secondEnd(state.LineA);
        case MeasureGrip::endB2:
            return secondEnd(state.LineB);
        case MeasureGrip::centerA:
            return PointOnLine(state.LineA, 0.5);
        case MeasureGrip::centerB:
            return PointOnLine(state.LineB, 0.5);
        case MeasureGrip::intersect:
            break;
    }
    return IntersectPoint(state);
}

GripTag measureGripTag(MeasureGrip grip, bool connected) {
    if (grip == MeasureGrip::endA1 || grip == MeasureGrip::endB1) {
        return GripTag::grip;
    }
    return (grip == MeasureGrip::intersect) == connected ? GripTag::grip : GripTag::hidden;
}

}  // namespace ormala
