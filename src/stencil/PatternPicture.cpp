#include "stencil/PatternPicture.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <utility>

#include "stencil/LineCoverage.h"
#include "stencil/PatternCurves.h"
#include "stencil/PatternTable.h"
#include "stencil/StencilPainter.h"

namespace ormala {

namespace {

constexpr int solidOnePixel = 2;

/// The smallest rectangle around the ends of all segments.
class ExtentOfSegments : public PatternReceiver {
  public:
    void segment(Point p1, Point p2) override {
        add(p1);
        add(p2);
    }
    void polyline(std::span<const Point> /*points*/) override {}
    void bezier(const BezierEllipse& /*points*/) override {}

    /// The unit square if there is no segment.
    [[nodiscard]] Rect extent() const { return extent_.value_or(Rect{0, 0, 1, 1}); }

  private:
    void add(Point point) {
        const Rect& known = extent_ ? *extent_ : Rect{point.x, point.y, point.x, point.y};
        extent_ = {std::min(known.left, point.x), std::min(known.top, point.y),
                   std::max(known.right, point.x), std::max(known.bottom, point.y)};
    }

    std::optional<Rect> extent_;
};

/// Draws what it receives.
class PictureLines : public PatternReceiver {
  public:
    explicit PictureLines(LineCoverage& coverage) : coverage_(coverage) {}

    void setCurve(bool curve) { curve_ = curve; }

    void segment(Point p1, Point p2) override {
        constexpr double straight = 1e-6;
        const bool alongAxis = std::abs(p2.x - p1.x) < straight || std::abs(p2.y - p1.y) < straight;
        if (alongAxis && !curve_) {
            coverage_.strokeAlongAxis(p1, p2);
        } else {
            coverage_.stroke(p1, p2);
        }
    }

    void polyline(std::span<const Point> points) override {
        for (std::size_t i = 1; i < points.size(); ++i) {
            coverage_.stroke(points[i - 1], points[i]);
        }
    }

    void bezier(const BezierEllipse& points) override {
        for (std::size_t i = 0; i + 3 < points.size(); i += 3) {
            arc(points[i], points[i + 1], points[i + 2], points[i + 3]);
        }
    }

  private:
    void arc(Point a, Point b, Point c, Point d) {
        constexpr int pieces = 32;
        Point last = a;
        for (int i = 1; i <= pieces; ++i) {
            const double t = static_cast<double>(i) / pieces;
            const double s = 1 - t;
            const auto blend = [s, t](double p, double q, double r, double u) {
                return s * s * s * p + 3 * s * s * t * q + 3 * s * t * t * r + t * t * t * u;
            };
            const Point next{blend(a.x, b.x, c.x, d.x), blend(a.y, b.y, c.y, d.y)};
            coverage_.stroke(last, next);
            last = next;
        }
    }

    LineCoverage& coverage_;
    bool curve_ = false;
};

constexpr std::uint32_t opaque = 0xFF000000U;

Rect extentOf(const PatternList& patterns) {
    ExtentOfSegments measured;
    PatternCurves curves;
    for (const PatternSetting& slot : patterns) {
        if (const PatternRecord* pattern = patternOfSlot(slot)) {
            curves.draw(*pattern, {slot.PreRotation, {0, 0, 1, 1}, {}, solidOnePixel}, measured);
        }
    }
    return measured.extent();
}

void drawLines(const PatternList& patterns, LineCoverage& coverage) {
    const Rect place = pictureRect(extentOf(patterns), coverage.size(), coverage.lineWidth());
    PictureLines lines(coverage);
    PatternCurves curves;
    for (const PatternSetting& slot : patterns) {
        if (const PatternRecord* pattern = patternOfSlot(slot)) {
            lines.setCurve(pattern->Polyline);
            curves.draw(*pattern, {slot.PreRotation, place, {}, solidOnePixel}, lines);
        }
    }
}

std::uint32_t mixed(Color back, Color ink, int coverage) {
    std::uint32_t argb = opaque;
    for (int shift = 0; shift < 24; shift += 8) {
        const int from = (back >> shift) & 0xFF;
        const int to = (ink >> shift) & 0xFF;
        constexpr int half = LineCoverage::full / 2;
        const int part =
            (from * (LineCoverage::full - coverage) + to * coverage + half) / LineCoverage::full;
        // The components of a colour stand the other way round than those of a pixel.
        argb |= static_cast<std::uint32_t>(part) << (16 - shift);
    }
    return argb;
}

/// First and last coordinate of the unit square along one axis.
std::pair<double, double> stretched(double low, double high, int pixels, int lineWidth) {
    const double extent = high == low ? 1 : high - low;
    const double start = (low + high - extent) / 2;
    const double scale = (pixels - lineWidth) / extent;
    const double first = (lineWidth - 1) / 2.0 - start * scale;
    return {first, first + scale};
}

/// `pixel` answers for each possible coverage.
template <typename Pixel>
PixelImage pictureFrom(const PatternList& patterns, PixelSize size, int lineWidth,
                       const Pixel& pixel) {
    PixelImage picture;
    picture.size = {std::max(0, size.width), std::max(0, size.height)};
    LineCoverage coverage(picture.size, std::max(1, lineWidth));
    drawLines(patterns, coverage);
    picture.argb.reserve(static_cast<std::size_t>(picture.size.width) *
                         static_cast<std::size_t>(picture.size.height));
    for (int y = 0; y < picture.size.height; ++y) {
        for (int x = 0; x < picture.size.width; ++x) {
            picture.argb.push_back(pixel(coverage.at(x, y)));
        }
    }
    return picture;
}

}  // namespace

Rect pictureRect(const Rect& extent, PixelSize size, int lineWidth) {
    const auto [left, right] = stretched(extent.left, extent.right, size.width, lineWidth);
    const auto [top, bottom] = stretched(extent.top, extent.bottom, size.height, lineWidth);
    return {left, top, right, bottom};
}

PixelImage GetPatternPicture(const PatternList& patterns, PixelSize size, Color backColor,
                             Color color, int lineWidth) {
    return pictureFrom(patterns, size, lineWidth, [backColor, color](int coverage) {
        return mixed(backColor, color, coverage);
    });
}

PixelImage patternLines(const PatternList& patterns, PixelSize size, Color color, int lineWidth) {
    const std::uint32_t plain = mixed(color, color, 0) & ~opaque;
    return pictureFrom(patterns, size, lineWidth, [plain](int coverage) {
        const int alpha = coverage * 255 / LineCoverage::full;
        return coverage == 0 ? 0 : plain | static_cast<std::uint32_t>(alpha) << 24;
    });
}

}  // namespace ormala
