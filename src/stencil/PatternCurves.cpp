#include "stencil/PatternCurves.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "modAPI/rectangles.h"
#include "modAPI/transforms.h"

namespace ormala {

namespace {

/// From a point of the unit square to its place in worksheet pixels.
class UnitSquareTransform {
  public:
    UnitSquareTransform(const Rect& bound, double preRotation, std::optional<double> angle)
        : preRotation_(preRotation), bound_(bound) {
        // A turn by nothing would lose the digits of a side that lies far from the centre.
        if (angle && *angle != 0) {
            rotation_ = Rotation(*angle);
        }
    }

    Point operator()(Point unit) const {
        const Point turned = preRotation_.apply({0.5, 0.5}, unit);
        const Point stretched = {stretch(turned.x, bound_.left, bound_.right),
                                 stretch(turned.y, bound_.top, bound_.bottom)};
        return rotation_ ? rotation_->apply(RectCenter(bound_), stretched) : stretched;
    }

  private:
    /// The last side keeps all its digits, also beside a first one that is larger by far.
    static double stretch(double share, double first, double last) {
        return share == 1 ? last : share * (last - first) + first;
    }

    Rotation preRotation_;
    std::optional<Rotation> rotation_;
    Rect bound_;
};

BezierEllipse unitBezier(const PatternEllipse& ellipse) {
    // The distance of control points that makes four cubic arcs a circle, of radius 1, but for some
    // ten-thousandths.
    constexpr double circleConstant = 0.551784;
    const auto [cx, cy, rx, ry] = ellipse;
    const double kx = circleConstant * rx;
    const double ky = circleConstant * ry;
    return {{{cx, cy - ry},
             {cx + kx, cy - ry},
             {cx + rx, cy - ky},
             {cx + rx, cy},
             {cx + rx, cy + ky},
             {cx + kx, cy + ry},
             {cx, cy + ry},
             {cx - kx, cy + ry},
             {cx - rx, cy + ky},
             {cx - rx, cy},
             {cx - rx, cy - ky},
             {cx - kx, cy - ry},
             {cx, cy - ry}}};
}

BezierEllipse transformed(const PatternEllipse& ellipse, const UnitSquareTransform& transform) {
    BezierEllipse points = unitBezier(ellipse);
    std::ranges::transform(points, points.begin(), transform);
    return points;
}

Point cut(Point point) {
    return {std::trunc(point.x), std::trunc(point.y)};
}

}  // namespace

void PatternCurves::draw(const PatternRecord& pattern, const PatternPlacement& placement,
                         PatternReceiver& receiver) {
    const UnitSquareTransform transform(placement.rectBound, placement.preRotation,
                                        placement.angle);
    const bool runsOn = pattern.Polyline && placement.lineCode <= 1;
    for (const Line& line : pattern.Lines) {
        const Point p1 = transform({line.x1, line.y1});
        const Point p2 = transform({line.x2, line.y2});
        if (runsOn) {
            join(cut(p1), cut(p2), receiver);
        } else {
            receiver.segment(p1, p2);
        }
    }
    flush(receiver);
    for (const PatternEllipse& ellipse : pattern.Ellipses) {
        receiver.bezier(transformed(ellipse, transform));
    }
}

void PatternCurves::join(Point p1, Point p2, PatternReceiver& receiver) {
    if (points_.empty() || p1 != points_.back()) {
        flush(receiver);
        constexpr std::size_t pointsOfLongestCurve = 178;
        points_.reserve(pointsOfLongestCurve);
        points_.assign({p1, p2});
    } else if (p2 != points_.back()) {
        points_.push_back(p2);
    }
}

void PatternCurves::flush(PatternReceiver& receiver) {
    if (!points_.empty()) {
        receiver.polyline(points_);
        points_.clear();
    }
}

}  // namespace ormala
