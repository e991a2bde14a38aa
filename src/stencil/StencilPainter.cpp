#include "stencil/StencilPainter.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

#include "modAPI/rectangles.h"
#include "modAPI/transforms.h"
#include "scene/strokes.h"
#include "stencil/PatternCurves.h"
#include "stencil/PatternTable.h"

namespace ormala {

namespace {

class CanvasReceiver : public PatternReceiver {
  public:
    CanvasReceiver(Canvas& canvas, const Pen& pen) : canvas_(canvas), pen_(pen) {}

    void segment(Point p1, Point p2) override { DrawSegment(canvas_, pen_, p1, p2); }
    void polyline(std::span<const Point> points) override { drawPolyline(canvas_, pen_, points); }
    void bezier(const BezierEllipse& points) override { drawBezier(canvas_, pen_, points); }

  private:
    Canvas& canvas_;
    Pen pen_;
};

/// The smallest box around the stretched and turned unit square of one slot. All patterns lie
/// within the unit square; a turn inside it reaches beyond by at most this.
Rect reachOf(const PatternSetting& slot, const StencilState& state, bool turned) {
    const double half =
        (std::abs(std::cos(slot.PreRotation)) + std::abs(std::sin(slot.PreRotation))) / 2;
    const Rect& bound = state.RectBound;
    const Point center = RectCenter(bound);
    const double dx = half * (bound.right - bound.left);
    const double dy = half * (bound.bottom - bound.top);
    const Rotation rotation(turned ? state.RotationAngle : 0);
    constexpr double far = std::numeric_limits<double>::max();
    Rect reach{far, far, -far, -far};
    for (const double x : {center.x - dx, center.x + dx}) {
        for (const double y : {center.y - dy, center.y + dy}) {
            const Point corner = rotation.apply(center, {x, y});
            reach = {std::min(reach.left, corner.x), std::min(reach.top, corner.y),
                     std::max(reach.right, corner.x), std::max(reach.bottom, corner.y)};
        }
    }
    return reach;
}

}  // namespace

const PatternRecord* patternOfSlot(const PatternSetting& slot) {
    const bool known = slot.Pattern >= 0 && slot.Pattern < PatternTable::count();
    return known ? &PatternTable::instance()[slot.Pattern] : nullptr;
}

void drawPatterns(Canvas& canvas, const StencilState& state, const Pen& pen, bool turned) {
    CanvasReceiver receiver(canvas, pen);
    PatternCurves curves;
    PatternPlacement placement;
    placement.rectBound = state.RectBound;
    placement.lineCode = pen.lineCode;
    if (turned) {
        placement.angle = state.RotationAngle;
    }
    for (const PatternSetting& slot : state.PatternList) {
        if (const PatternRecord* pattern = patternOfSlot(slot)) {
            placement.preRotation = slot.PreRotation;
            curves.draw(*pattern, placement, receiver);
        }
    }
}

void addPatternsTo(DirtyRegion& region, const StencilState& state, const Pen& pen, bool turned,
                   const PixelRect& area) {
    for (const PatternSetting& slot : state.PatternList) {
        if (patternOfSlot(slot) != nullptr) {
            const Rect reach = reachOf(slot, state, turned);
            region.add(
                strokeBounds(pen, {reach.left, reach.top}, {reach.right, reach.bottom}, area));
        }
    }
}

}  // namespace ormala
