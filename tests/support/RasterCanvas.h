#pragma once

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <vector>

#include "scene/Canvas.h"

namespace ormala {

/// Pixels in memory: lines with their dots, dashes and widths, bezier curves, shapes; a text
/// colours its whole box by its length.
class RasterCanvas : public Canvas {
  public:
    explicit RasterCanvas(PixelSize size) : RasterCanvas(size, {0, 0, size.width, size.height}) {}
    RasterCanvas(PixelSize size, const PixelRect& visible)
        : size_(size),
          visible_(visible),
          pixels_(static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height),
                  empty) {}

    static constexpr int empty = -1;

    [[nodiscard]] PixelRect visible() const override { return visible_; }
    [[nodiscard]] PixelSize size() const { return size_; }
    [[nodiscard]] int at(int x, int y) const { return pixels_[indexOf(x, y)]; }
    [[nodiscard]] int painted() const {
        return static_cast<int>(pixels_.size()) -
               static_cast<int>(std::ranges::count(pixels_, empty));
    }

    void line(const Pen& pen, PixelPoint from, PixelPoint to) override {
        int phase = 0;
        stroke(pen, from, to, phase);
    }

    void polyline(const Pen& pen, std::span<const PixelPoint> points) override {
        int phase = 0;
        for (std::size_t i = 1; i < points.size(); ++i) {
            stroke(pen, points[i - 1], points[i], phase);
        }
    }

    void bezier(const Pen& pen, std::span<const PixelPoint> points) override {
        int phase = 0;
        for (std::size_t i = 0; i + 3 < points.size(); i += 3) {
            arc(pen, points.subspan(i, 4), phase);
        }
    }

    void shape(const ShapeFace& face) override {
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

    void text(const PixelRect& box, const TextFace& face) override {
        const PixelRect area = box.intersected(visible_);
        for (int y = area.top; y < area.bottom; ++y) {
            for (int x = area.left; x < area.right; ++x) {
                put(x, y, face.color + static_cast<int>(face.text.size()));
            }
        }
    }

  private:
    [[nodiscard]] std::size_t indexOf(int x, int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(size_.width) +
               static_cast<std::size_t>(x);
    }

    void put(int x, int y, Color color) {
        if (visible_.contains({x, y}) && x >= 0 && y >= 0 && x < size_.width && y < size_.height) {
            pixels_[indexOf(x, y)] = color;
        }
    }

    void dab(const Pen& pen, int x, int y) {
        const int reach = pen.width() / 2;
        for (int dy = -reach; dy <= reach; ++dy) {
            for (int dx = -reach; dx <= reach; ++dx) {
                if (4 * (dx * dx + dy * dy) <= pen.width() * pen.width()) {
                    put(x + dx, y + dy, pen.color);
                }
            }
        }
    }

    static bool inked(const Pen& pen, int phase) {
        return pen.lineCode >= 2 || (pen.lineCode == 1 ? phase % 24 < 18 : phase % 6 < 3);
    }

    void stroke(const Pen& pen, PixelPoint from, PixelPoint to, int& phase) {
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

    void arc(const Pen& pen, std::span<const PixelPoint> p, int& phase) {
        constexpr int pieces = 128;
        PixelPoint last = p[0];
        for (int i = 1; i <= pieces; ++i) {
            const double t = static_cast<double>(i) / pieces;
            const double s = 1 - t;
            const auto blend = [&](int a, int b, int c, int d) {
                return static_cast<int>(std::lround(s * s * s * a + 3 * s * s * t * b +
                                                    3 * s * t * t * c + t * t * t * d));
            };
            const PixelPoint next{blend(p[0].x, p[1].x, p[2].x, p[3].x),
                                  blend(p[0].y, p[1].y, p[2].y, p[3].y)};
            stroke(pen, last, next, phase);
            last = next;
        }
    }

    static bool covers(ShapeKind kind, const PixelRect& box, int x, int y) {
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

    PixelSize size_;
    PixelRect visible_;
    std::vector<int> pixels_;
};

}  // namespace ormala
