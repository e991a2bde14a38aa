#include "stencil/StencilAids.h"

#include <cmath>
#include <utility>

#include "modAPI/angles.h"
#include "modAPI/constants.h"
#include "modAPI/placing.h"
#include "modAPI/rectangles.h"
#include "modAPI/rounding.h"
#include "scene/strokes.h"

namespace ormala {

namespace {

Pen thinPen(Color color) {
    return {color, 2};
}

}  // namespace

void StencilAids::resize(PixelSize sheet) {
    sheet_ = sheet;
    referenceLength_ = std::hypot(sheet.width, sheet.height);
}

void StencilAids::begin(StencilGrip grip, const Grip& look, const StencilState& state, bool lines) {
    grip_ = grip;
    color_ = look.color;
    wanted_ = lines;
    pressCenter_ = RectCenter(state.RectBound);
    if (lines && grip.kind == StencilGripKind::rotate) {
        showCircle(state);
    }
    info_.show();
}

void StencilAids::showCircle(const StencilState& state) {
    constexpr double half = R;  // cos(pi / 4)
    const double size = RoundHalfAway(
        Distance(0, 0, half * PixelWidth(state.RectBound), half * PixelHeight(state.RectBound)), 0);
    // Larger than this a circle is no longer told from a line, and its box would overflow.
    constexpr double largest = 1.0e6;
    const Point corner = PlaceByAnchor(size, size, RectCenter(state.RectBound), Anchor::centre);
    if (size < largest && std::abs(corner.x) < largest && std::abs(corner.y) < largest) {
        const int left = static_cast<int>(corner.x);
        const int top = static_cast<int>(corner.y);
        circle_ = PixelRect{left, top, left + static_cast<int>(size), top + static_cast<int>(size)};
    }
}

Line StencilAids::axis(const Point& center, double angle) const {
    const double dx = std::cos(angle) * referenceLength_;
    const double dy = std::sin(angle) * referenceLength_;
    return {center.x + dx, center.y - dy, center.x - dx, center.y + dy};
}

void StencilAids::update(const StencilState& state, const Point& at, const TextMeter& meter) {
    info_.place(at, sheet_, meter);
    lines_ = {};
    if (!wanted_) {
        return;
    }
    const Point center = RectCenter(state.RectBound);
    if (grip_.kind == StencilGripKind::move) {
        lines_[0] = Line{center.x, center.y, pressCenter_.x, pressCenter_.y};
        return;
    }
    lines_[0] = axis(center, AngleOf(center.x, center.y, at.x, at.y));
    if (grip_.kind == StencilGripKind::rotate) {
        lines_[1] = axis(center, state.RotationAngle);
        lines_[2] = axis(center, state.RotationAngle + halfPi);
    }
}

void StencilAids::setText(std::string text, const TextMeter& meter) {
    info_.setText(std::move(text), meter);
}

void StencilAids::hide() {
    lines_ = {};
    circle_.reset();
    info_.hide();
    ring_.hide();
}

void StencilAids::drawBelowGrips(Canvas& canvas) const {
    for (const auto& line : lines_) {
        if (line) {
            DrawSegment(canvas, thinPen(color_), *line);
        }
    }
    if (circle_) {
        canvas.shape({ShapeKind::oval, *circle_, color_, 1, std::nullopt});
    }
}

void StencilAids::drawAboveGrips(Canvas& canvas) const {
    ring_.draw(canvas);
    info_.draw(canvas);
}

void StencilAids::addTo(DirtyRegion& region, const PixelRect& area) const {
    for (const auto& line : lines_) {
        if (line) {
            region.addStroke(thinPen(color_), *line, area);
        }
    }
    if (circle_) {
        region.addOutline(*circle_, 1);
    }
    info_.addTo(region);
    ring_.addTo(region);
}

}  // namespace ormala
