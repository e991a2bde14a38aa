#include "scene/strokes.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include "modAPI/clipping.h"
#include "modAPI/rounding.h"
#include "modAPI/transforms.h"

namespace ormala {

namespace {

/// At least so far beyond the canvas a stroke keeps its own coordinates: a cut there moves a
/// visible pixel of a slanted line by one at most, and any drawing system takes such numbers.
constexpr double guard = 16384;

/// In whole steps, so that a repaint of a part of the sheet cuts where a repaint of all of it does:
/// slanted lines take the same pixels and dashes fall on their old places.
Rect guardArea(const PixelRect& visible) {
    return {(std::floor(visible.left / guard) - 1) * guard,
            (std::floor(visible.top / guard) - 1) * guard,
            (std::ceil(visible.right / guard) + 1) * guard,
            (std::ceil(visible.bottom / guard) + 1) * guard};
}

bool inside(const Rect& area, const Point& point) {
    return point.x >= area.left && point.x <= area.right && point.y >= area.top &&
           point.y <= area.bottom;
}

PixelPoint toPixel(const Point& point) {
    return {RoundToInt(point.x), RoundToInt(point.y)};
}

bool isFinite(const Point& point) {
    return std::isfinite(point.x) && std::isfinite(point.y);
}

using BezierArc = std::array<Point, 4>;

struct ArcBounds {
    Rect box;
    bool finite = true;
};

ArcBounds boundsOf(const BezierArc& arc) {
    ArcBounds bounds{{arc[0].x, arc[0].y, arc[0].x, arc[0].y}, true};
    for (const Point& point : arc) {
        bounds.finite = bounds.finite && isFinite(point);
        bounds.box.left = std::min(bounds.box.left, point.x);
        bounds.box.top = std::min(bounds.box.top, point.y);
        bounds.box.right = std::max(bounds.box.right, point.x);
        bounds.box.bottom = std::max(bounds.box.bottom, point.y);
    }
    return bounds;
}

Point middle(const Point& a, const Point& b) {
    return {a.x * 0.5 + b.x * 0.5, a.y * 0.5 + b.y * 0.5};
}

/// Draws the parts of an arc whose control points come near the canvas; the others are dropped at
/// the first halving that parts them from it (de Casteljau).
class ArcPainter {
  public:
    ArcPainter(Canvas& canvas, const Pen& pen)
        : canvas_(canvas), pen_(pen), area_(guardArea(canvas.visible())) {}

    void draw(const BezierArc& arc, int depth = 0) {
        const ArcBounds bounds = boundsOf(arc);
        const Rect& box = bounds.box;
        const bool apart = box.right < area_.left || box.left > area_.right ||
                           box.bottom < area_.top || box.top > area_.bottom;
        if (!bounds.finite || apart) {
            return;
        }
        const bool near =
            inside(area_, {box.left, box.top}) && inside(area_, {box.right, box.bottom});
        if (near) {
            const std::array<PixelPoint, 4> pixels{toPixel(arc[0]), toPixel(arc[1]),
                                                   toPixel(arc[2]), toPixel(arc[3])};
            canvas_.bezier(pen_, pixels);
        } else if (depth < deepest) {
            halve(arc, depth + 1);
        } else {
            DrawSegment(canvas_, pen_, arc[0], arc[3]);
        }
    }

  private:
    /// Beyond this many halvings the rest of an arc is as good as straight: a double has 53 bits.
    static constexpr int deepest = 40;

    void halve(const BezierArc& arc, int depth) {
        const Point ab = middle(arc[0], arc[1]);
        const Point bc = middle(arc[1], arc[2]);
        const Point cd = middle(arc[2], arc[3]);
        const Point abc = middle(ab, bc);
        const Point bcd = middle(bc, cd);
        const Point mid = middle(abc, bcd);
        draw({arc[0], ab, abc, mid}, depth);
        draw({mid, bcd, cd, arc[3]}, depth);
    }

    Canvas& canvas_;
    Pen pen_;
    Rect area_;
};

}  // namespace

void DrawSegment(Canvas& canvas, const Pen& pen, const Point& p1, const Point& p2) {
    const Rect area = guardArea(canvas.visible());
    if (inside(area, p1) && inside(area, p2)) {
        canvas.line(pen, toPixel(p1), toPixel(p2));
        return;
    }
    if (!isFinite(p1) || !isFinite(p2)) {
        return;
    }
    if (const auto cut = clipSegment(p1, p2, area)) {
        canvas.line(pen, toPixel({cut->x1, cut->y1}), toPixel({cut->x2, cut->y2}));
    }
}

void DrawSegment(Canvas& canvas, const Pen& pen, const Line& line) {
    DrawSegment(canvas, pen, {line.x1, line.y1}, {line.x2, line.y2});
}

void drawPolyline(Canvas& canvas, const Pen& pen, std::span<const Point> points) {
    const Rect area = guardArea(canvas.visible());
    std::vector<PixelPoint> stretch;
    stretch.reserve(points.size());
    const auto flush = [&] {
        if (stretch.size() > 1) {
            canvas.polyline(pen, stretch);
        }
        stretch.clear();
    };
    for (std::size_t i = 0; i < points.size(); ++i) {
        if (inside(area, points[i])) {
            stretch.push_back(toPixel(points[i]));
            continue;
        }
        flush();
        if (i > 0) {
            DrawSegment(canvas, pen, points[i - 1], points[i]);
        }
        if (i + 1 < points.size() && inside(area, points[i + 1])) {
            DrawSegment(canvas, pen, points[i], points[i + 1]);
        }
    }
    flush();
}

void drawBezier(Canvas& canvas, const Pen& pen, std::span<const Point> points) {
    const Rect area = guardArea(canvas.visible());
    const bool near = std::ranges::all_of(points, [&](const Point& p) { return inside(area, p); });
    if (near) {
        std::vector<PixelPoint> pixels(points.size());
        std::ranges::transform(points, pixels.begin(), toPixel);
        canvas.bezier(pen, pixels);
        return;
    }
    ArcPainter painter(canvas, pen);
    for (std::size_t i = 0; i + 3 < points.size(); i += 3) {
        painter.draw({points[i], points[i + 1], points[i + 2], points[i + 3]});
    }
}

PixelRect strokeBounds(const Pen& pen, const Point& p1, const Point& p2, const PixelRect& area) {
    const double margin = pen.width() / 2.0 + 1;
    return pixelsOf({std::min(p1.x, p2.x) - margin, std::min(p1.y, p2.y) - margin,
                     std::max(p1.x, p2.x) + margin, std::max(p1.y, p2.y) + margin},
                    area);
}

PixelRect pixelsOf(const Rect& rect, const PixelRect& area) {
    const bool finite = std::isfinite(rect.left) && std::isfinite(rect.top) &&
                        std::isfinite(rect.right) && std::isfinite(rect.bottom);
    if (!finite) {
        return area;
    }
    const auto within = [](double value, int low, int high) {
        return static_cast<int>(
            std::clamp(value, static_cast<double>(low), static_cast<double>(high)));
    };
    const PixelRect cut{within(std::floor(rect.left), area.left, area.right),
                        within(std::floor(rect.top), area.top, area.bottom),
                        within(std::ceil(rect.right) + 1, area.left, area.right),
                        within(std::ceil(rect.bottom) + 1, area.top, area.bottom)};
    return cut.empty() ? PixelRect{} : cut;
}

}  // namespace ormala
