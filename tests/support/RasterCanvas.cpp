#include "support/RasterCanvas.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace ormala {

namespace {

bool inked(const Pen& pen, int phase) {
    return pen.lineCode >= 2 || (pen.lineCode == 1 ? phase % 24 < 18 : phase % 6 < 3);
}

bool covers(ShapeKind kind, const PixelRect& box, int x, int y) {
    if (!box.contains({x, y})) {
        return false;
    }
    if (kind != ShapeKind::oval) {
        return true;
    }
    const double u = (2.0 * x + 1 - box.left - box.right) / box.width();
    const double v = (2.0 * y + 1 - box.top - box.bottom) / box.height();
    return u * u + v * v <= 1;
}

int pixelsWhere(const PixelRect& area, auto wanted) {
    int count = 0;
    for (int y = area.top; y < area.bottom; ++y) {
        for (int x = area.left; x < area.right; ++x) {
            count += wanted(x, y) ? 1 : 0;
        }
    }
    return count;
}

}  // namespace

RasterCanvas::RasterCanvas(PixelSize size) : RasterCanvas(size, {0, 0, size.width, size.height}) {}

RasterCanvas::RasterCanvas(PixelSize size, const PixelRect& visible)
    : size_(size),
      visible_(visible),
      pixels_(static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height), empty) {
}

int RasterCanvas::painted() const {
    return static_cast<int>(pixels_.size()) - static_cast<int>(std::ranges::count(pixels_, empty));
}

int RasterCanvas::paintedOutside(const DirtyRegion& region) const {
    return pixelsWhere({0, 0, size_.width, size_.height}, [&](int x, int y) {
        return at(x, y) != empty && !region.meets({x, y, x + 1, y + 1});
    });
}

int RasterCanvas::differences(const RasterCanvas& other, const PixelRect& part) const {
    return pixelsWhere(part, [&](int x, int y) { return at(x, y) != other.at(x, y); });
}

void RasterCanvas::line(const Pen& pen, PixelPoint from, PixelPoint to) {
    int phase = 0;
    stroke(pen, from, to, phase);
}

void RasterCanvas::polyline(const Pen& pen, std::span<const PixelPoint> points) {
    int phase = 0;
    for (std::size_t i = 1; i < points.size(); ++i) {
        stroke(pen, points[i - 1], points[i], phase);
    }
}

void RasterCanvas::bezier(const Pen& pen, std::span<const PixelPoint> points) {
    int phase = 0;
    for (std::size_t i = 0; i + 3 < points.size(); i += 3) {
        arc(pen, points.subspan(i, 4), phase);
    }
}

void RasterCanvas::shape(const ShapeFace& face) {
    const PixelRect area = face.box.intersected(visible_);
    for (int y = area.top; y < area.bottom; ++y) {
        for (int x = area.left; x < area.right; ++x) {
            if (!covers(face.kind, face.box, x, y)) {
                continue;
            }
            const bool inner = covers(face.kind, face.box.grown(-face.borderWidth), x, y);
            if (!inner) {
                put(x, y, face.borderColor);
            } else if (face.fill) {
                put(x, y, *face.fill);
            }
        }
    }
}

void RasterCanvas::text(const PixelRect& box, const TextFace& face) {
    const PixelRect area = box.intersected(visible_);
    for (int y = area.top; y < area.bottom; ++y) {
        for (int x = area.left; x < area.right; ++x) {
            put(x, y, face.color + static_cast<int>(face.text.size()));
        }
    }
}

void RasterCanvas::put(int x, int y, Color color) {
    if (visible_.contains({x, y}) && x >= 0 && y >= 0 && x < size_.width && y < size_.height) {
        pixels_[indexOf(x, y)] = color;
    }
}

void RasterCanvas::dab(const Pen& pen, int x, int y) {
    const int reach = pen.width() / 2;
    for (int dy = -reach; dy <= reach; ++dy) {
        for (int dx = -reach; dx <= reach; ++dx) {
            if (4 * (dx * dx + dy * dy) <= pen.width() * pen.width()) {
                put(x + dx, y + dy, pen.color);
            }
        }
    }
}

void RasterCanvas::stroke(const Pen& pen, PixelPoint from, PixelPoint to, int& phase) {
    const double dx = to.x - from.x;
    const double dy = to.y - from.y;
    const int steps = std::max(std::abs(to.x - from.x), std::abs(to.y - from.y));
    for (int i = 0; i < steps; ++i, ++phase) {
        if (inked(pen, phase)) {
            dab(pen, from.x + static_cast<int>(std::lround(dx * i / steps)),
                from.y + static_cast<int>(std::lround(dy * i / steps)));
        }
    }
}

void RasterCanvas::arc(const Pen& pen, std::span<const PixelPoint> p, int& phase) {
    constexpr int pieces = 128;
    PixelPoint last = p[0];
    for (int i = 1; i <= pieces; ++i) {
        const double t = static_cast<double>(i) / pieces;
        const double s = 1 - t;
        const auto blend = [&](int a, int b, int c, int d) {
            return static_cast<int>(
                std::lround(s * s * s * a + 3 * s * s * t * b + 3 * s * t * t * c + t * t * t * d));
        };
        const PixelPoint next{blend(p[0].x, p[1].x, p[2].x, p[3].x),
                              blend(p[0].y, p[1].y, p[2].y, p[3].y)};
        stroke(pen, last, next, phase);
        last = next;
    }
}

}  // namespace ormala
