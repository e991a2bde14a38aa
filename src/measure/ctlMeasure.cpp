#include "measure/ctlMeasure.h"

#include <cmath>

#include "measure/MeasureTexts.h"
#include "modAPI/rounding.h"
#include "modAPI/transforms.h"
#include "scene/strokes.h"

namespace ormala {

namespace {

constexpr MeasureStroke bothStrokes[] = {MeasureStroke::lineA, MeasureStroke::lineB};

/// A line is drawn without its last pixel, which this line of one pixel adds.
Line dotOn(Point end) {
    RoundPoint(end);
    return {end.x, end.y, end.x + 1, end.y};
}

}  // namespace

ctlMeasure::ctlMeasure(ToolHost& host, const ToolSettings& settings, const OtherMeasures& others)
    : GripTool(host, makeMeasureGrips()),
      settings_(settings),
      others_(others),
      history_(state_, [this](const MeasureState& state) { load(state); }) {
    gripSet().setBorderColors(HasFocus(), Selected());
    tagGrips();
}

void ctlMeasure::SetDefaultProperties() {
    const ToolChanges changes(*this);
    signs_.LabelsLengthVisible = true;
    signs_.LabelsAngleVisible = true;
    setConnected(true);
}

void ctlMeasure::PositionGrips() {
    if (changing()) {
        return;
    }
    for (int i = 0; i < measureGripCount; ++i) {
        gripSet().place(i, measureGripPoint(static_cast<MeasureGrip>(i), state_));
    }
    labels_.arrange(state_, signs_, EditMode(), settings_.textForm, host().textMeter());
    if (const auto active = grips().active()) {
        aids_.update(state_, grips()[*active].center(), sheet(), host().textMeter());
    }
    refresh();
}

void ctlMeasure::setColorA(Color color) {
    signs_.ColorA = color;
    PositionGrips();
}

void ctlMeasure::setColorB(Color color) {
    signs_.ColorB = color;
    PositionGrips();
}

void ctlMeasure::setConnected(bool connected) {
    connectLines(state_, connected);
    tagGrips();
    PositionGrips();
}

void ctlMeasure::tagGrips() {
    for (int i = 0; i < measureGripCount; ++i) {
        gripSet().setTag(i, measureGripTag(static_cast<MeasureGrip>(i), state_.Connected));
    }
    // A grip that is hidden while the mouse holds it is lost to the drag.
    if (!grips().active()) {
        aids_.hide();
    }
}

void ctlMeasure::setNumber(int number) {
    signs_.Number = number;
    PositionGrips();
}

void ctlMeasure::setLabelsLengthVisible(bool visible) {
    signs_.LabelsLengthVisible = visible;
    PositionGrips();
}

void ctlMeasure::setLabelsAngleVisible(bool visible) {
    signs_.LabelsAngleVisible = visible;
    PositionGrips();
}

void ctlMeasure::setLineA(const Line& line) {
    state_.LineA = line;
    PositionGrips();
}

void ctlMeasure::setLineB(const Line& line) {
    state_.LineB = line;
    PositionGrips();
}

void ctlMeasure::CenterToScreen(bool alignToGrid, double offset, bool resetGeometry) {
    if (resetGeometry) {
        resetLines(state_);
    }
    Point target{std::floor(sheet().width / 2.0) + offset,
                 std::floor(sheet().height / 2.0) + offset};
    if (alignToGrid) {
        SnapToGrid(target, settings_.grid);
    }
    const Point common = IntersectPoint();
    translateLines(state_, target.x - common.x, target.y - common.y);
    PositionGrips();
}

void ctlMeasure::load(const MeasureState& state) {
    state_ = state;
    tagGrips();
    PositionGrips();
    events().change.raise();
}

void ctlMeasure::beginDrag(const MouseInput& input) {
    const int grip = *grips().active();
    pressPoint_ = {input.x, input.y};
    held_.grip = static_cast<MeasureGrip>(grip);
    held_.press = state_;
    aids_.begin(held_.grip, grips()[grip].focusBorder, state_, settings_.showReferenceLines);
    aids_.setText({}, host().textMeter());
    PositionGrips();
}

void ctlMeasure::drag(const MouseInput& input) {
    held_.dx = static_cast<double>(input.x) - pressPoint_.x;
    held_.dy = static_cast<double>(input.y) - pressPoint_.y;
    held_.shift = input.shift;
    aids_.setText(moveText(dragState(), settings_.textForm), host().textMeter());
    PositionGrips();
    events().change.raise();
}

Point ctlMeasure::dragState() {
    std::optional<Point> snapped;
    const Point place = dragTo(snapped);
    if (bindsToGrid(held_)) {
        snapped = place;
    }
    aids_.setRing(snapped, host().textMeter().scale());
    return place;
}

Point ctlMeasure::dragTo(std::optional<Point>& joined) {
    const EndSnap snap = [&](Point& point) {
        if (SnapToOtherTools(point, others_, *this)) {
            joined = point;
        }
    };
    switch (held_.grip) {
        case MeasureGrip::centerA:
        case MeasureGrip::centerB:
            return DragCenterGrip(state_, held_, settings_.grid);
        case MeasureGrip::intersect:
            return DragIntersectGrip(state_, held_, settings_.grid, snap);
        default:
            return DragEndGrip(state_, held_, snap);
    }
}

TipId ctlMeasure::tipOf(int /*grip*/) const {
    return 0;
}

SpokenTool ctlMeasure::words(int /*ordinal*/) const {
    return {measureName(signs_.Number), measuredText(state_, signs_.units, settings_.textForm),
            moveText(IntersectPoint(), settings_.textForm), 0};
}

std::string ctlMeasure::gripName(int grip) const {
    return measureGripName(static_cast<MeasureGrip>(grip));
}

std::string ctlMeasure::gripValue(int grip) const {
    return moveText(measureGripPoint(static_cast<MeasureGrip>(grip), state_), settings_.textForm);
}

void ctlMeasure::keyDown(int key, int shift) {
    if (key == key::home) {
        CenterToScreen(shift != 0, 0, false);
        events().change.raise();
    } else if (key == key::remove) {
        events().keyDownFiltered.raise(key, shift);
    }
}

const Line& ctlMeasure::lineOf(MeasureStroke stroke) const {
    return stroke == MeasureStroke::lineA ? state_.LineA : state_.LineB;
}

Pen ctlMeasure::penOf(MeasureStroke stroke) const {
    return {stroke == MeasureStroke::lineA ? signs_.ColorA : signs_.ColorB, LineWidth()};
}

void ctlMeasure::drawStroke(Canvas& canvas, MeasureStroke stroke) const {
    const Line& line = lineOf(stroke);
    DrawSegment(canvas, penOf(stroke), line);
    DrawSegment(canvas, penOf(stroke), dotOn(secondEnd(line)));
}

void ctlMeasure::draw(Canvas& canvas) const {
    labels_.draw(canvas);
    aids_.drawBelowGrips(canvas);
    grips().draw(canvas, [&](int item) { drawStroke(canvas, static_cast<MeasureStroke>(item)); });
    aids_.drawAboveGrips(canvas);
}

void ctlMeasure::addItemsTo(DirtyRegion& region, const PixelRect& area) const {
    for (const MeasureStroke stroke : bothStrokes) {
        region.addStroke(penOf(stroke), lineOf(stroke), area);
        region.addStroke(penOf(stroke), dotOn(secondEnd(lineOf(stroke))), area);
    }
    labels_.addTo(region);
    aids_.addTo(region, area);
}

}  // namespace ormala
