#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "modAPI/points.h"
#include "stencil/PatternTable.h"

namespace ormala {

/// The control points of four arcs that join to an ellipse.
using BezierEllipse = std::array<Point, 13>;

/// Where a pattern is drawn.
struct PatternPlacement {
    /// Radians, the turn inside the unit square. On a rectangle that is not square it shears.
    double preRotation = 0;

    /// Worksheet pixels of the first and last pixel of each side. Coordinates may have any size.
    Rect rectBound;

    /// Radians, the turn about the rectangle's centre; nothing leaves the rectangle unturned.
    std::optional<double> angle;

    /// 0 dotted, 1 dashed, n >= 2 solid and n - 1 pixels wide.
    std::int32_t lineCode = 2;
};

/// Receives a pattern in worksheet pixels, in drawing order.
class PatternReceiver {
  public:
    PatternReceiver() = default;
    PatternReceiver(const PatternReceiver&) = delete;
    PatternReceiver& operator=(const PatternReceiver&) = delete;
    virtual ~PatternReceiver() = default;

    /// Unrounded ends.
    virtual void segment(Point p1, Point p2) = 0;

    /// Two points or more, cut to whole numbers; valid during the call.
    virtual void polyline(std::span<const Point> points) = 0;

    /// Unrounded control points.
    virtual void bezier(const BezierEllipse& points) = 0;
};

/// Turns and stretches patterns into rectangles. It keeps its buffer of points from one curve to
/// the next.
class PatternCurves {
  public:
    /// A running curve in a dotted or dashed style comes as polylines, so that the style runs on
    /// along it; all other lines come as segments.
    void draw(const PatternRecord& pattern, const PatternPlacement& placement,
              PatternReceiver& receiver);

  private:
    void join(Point p1, Point p2, PatternReceiver& receiver);
    void flush(PatternReceiver& receiver);

    std::vector<Point> points_;
};

}  // namespace ormala
