#include "measure/MeasureAids.h"

#include <utility>

#include "scene/strokes.h"

namespace ormala {

namespace {

/// An end is dragged without a reference line.
bool hasReferenceLine(MeasureGrip grip) {
    return grip == MeasureGrip::centerA || grip == MeasureGrip::centerB ||
           grip == MeasureGrip::intersect;
}

}  // namespace

void MeasureAids::begin(MeasureGrip grip, Color color, const MeasureState& state, bool line) {
    grip_ = grip;
    color_ = color;
    line_.reset();
    if (line && hasReferenceLine(grip)) {
        const Point start = measureGripPoint(grip, state);
        line_ = Line{start.x, start.y, start.x, start.y};
    }
    info_.show();
}

void MeasureAids::update(const MeasureState& state, const Point& at, PixelSize sheet,
                         const TextMeter& meter) {
    info_.place(at, sheet, meter);
    if (line_) {
        const Point point = measureGripPoint(grip_, state);
        line_->x1 = point.x;
        line_->y1 = point.y;
    }
}

void MeasureAids::setText(std::string text, const TextMeter& meter) {
    info_.setText(std::move(text), meter);
}

void MeasureAids::hide() {
    line_.reset();
    info_.hide();
    ring_.hide();
}

void MeasureAids::drawBelowGrips(Canvas& canvas) const {
    if (line_) {
        DrawSegment(canvas, pen(), *line_);
    }
}

void MeasureAids::drawAboveGrips(Canvas& canvas) const {
    ring_.draw(canvas);
    info_.draw(canvas);
}

void MeasureAids::addTo(DirtyRegion& region, const PixelRect& area) const {
    if (line_) {
        region.addStroke(pen(), *line_, area);
    }
    info_.addTo(region);
    ring_.addTo(region);
}

}  // namespace ormala
