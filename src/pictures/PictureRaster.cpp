#include "pictures/PictureRaster.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "modAPI/constants.h"

namespace ormala {

namespace {

/// First point of a fine row or column whose middle lies at or after that place.
int firstFrom(double place, int end) {
    return static_cast<int>(std::clamp(std::ceil(place - 0.5), 0.0, static_cast<double>(end)));
}

std::uint32_t part(std::uint32_t argb, int shift) {
    return (argb >> shift) & 0xFFU;
}

}  // namespace

PictureRaster::PictureRaster(PixelSize size)
    : size_(size.width < 1 || size.height < 1 ? PixelSize{} : size),
      fine_{size_.width * oversampling, size_.height * oversampling},
      points_(static_cast<std::size_t>(fine_.width) * static_cast<std::size_t>(fine_.height)) {}

void PictureRaster::fill(std::span<const Contour> contours, std::uint32_t argb) {
    std::vector<Crossing> crossings;
    for (int row = 0; row < fine_.height; ++row) {
        const double y = (row + 0.5) / oversampling;
        crossings.clear();
        for (const Contour& contour : contours) {
            for (std::size_t i = 0; i < contour.points.size(); ++i) {
                const Point from = contour.points[i];
                const Point to = contour.points[(i + 1) % contour.points.size()];
                if ((from.y <= y) != (to.y <= y)) {
                    const double x = from.x + (y - from.y) / (to.y - from.y) * (to.x - from.x);
                    crossings.push_back({x * oversampling, to.y > from.y ? 1 : -1});
                }
            }
        }
        fillRow(row, crossings, argb);
    }
}

void PictureRaster::fillRow(int row, std::vector<Crossing>& crossings, std::uint32_t argb) {
    std::ranges::sort(crossings, {}, &Crossing::x);
    int winding = 0;
    for (std::size_t i = 0; i + 1 < crossings.size(); ++i) {
        winding += crossings[i].winding;
        if (winding != 0) {
            fillSpan(row, crossings[i].x, crossings[i + 1].x, argb);
        }
    }
}

void PictureRaster::fillSpan(int row, double from, double to, std::uint32_t argb) {
    const auto start = points_.begin() + static_cast<std::ptrdiff_t>(row) * fine_.width;
    const int first = firstFrom(from, fine_.width);
    std::fill(start + first, start + std::max(first, firstFrom(to, fine_.width)), argb);
}

void PictureRaster::stroke(std::span<const Contour> contours, double width, std::uint32_t argb) {
    for (const Contour& contour : contours) {
        const std::size_t count = contour.points.size();
        for (std::size_t i = 0; i < count; ++i) {
            disc(contour.points[i], width / 2, argb);
            if (i + 1 < count || contour.closed) {
                strokePiece(contour.points[i], contour.points[(i + 1) % count], width, argb);
            }
        }
    }
}

void PictureRaster::strokePiece(Point from, Point to, double width, std::uint32_t argb) {
    const double length = std::hypot(to.x - from.x, to.y - from.y);
    if (length == 0) {
        return;
    }
    const double across = (from.y - to.y) / length * width / 2;
    const double down = (to.x - from.x) / length * width / 2;
    const Contour bar{{{from.x + across, from.y + down},
                       {to.x + across, to.y + down},
                       {to.x - across, to.y - down},
                       {from.x - across, from.y - down}},
                      true};
    fill(std::span(&bar, 1), argb);
}

void PictureRaster::disc(Point middle, double radius, std::uint32_t argb) {
    for (int row = 0; row < fine_.height; ++row) {
        const double away = (row + 0.5) / oversampling - middle.y;
        if (std::abs(away) < radius) {
            const double half = std::sqrt(radius * radius - away * away);
            fillSpan(row, (middle.x - half) * oversampling, (middle.x + half) * oversampling, argb);
        }
    }
}

std::uint32_t PictureRaster::average(int x, int y) const {
    std::uint32_t alpha = 0;
    std::uint32_t red = 0;
    std::uint32_t green = 0;
    std::uint32_t blue = 0;
    for (int row = y * oversampling; row < (y + 1) * oversampling; ++row) {
        for (int column = x * oversampling; column < (x + 1) * oversampling; ++column) {
            const std::uint32_t point =
                points_[static_cast<std::size_t>(row) * static_cast<std::size_t>(fine_.width) +
                        static_cast<std::size_t>(column)];
            const std::uint32_t weight = part(point, 24);
            alpha += weight;
            red += weight * part(point, 16);
            green += weight * part(point, 8);
            blue += weight * part(point, 0);
        }
    }
    if (alpha == 0) {
        return 0;
    }
    constexpr std::uint32_t samples = oversampling * oversampling;
    const auto mean = [&](std::uint32_t sum) { return (sum + alpha / 2) / alpha; };
    return ((alpha + samples / 2) / samples) << 24 | mean(red) << 16 | mean(green) << 8 |
           mean(blue);
}

PixelImage PictureRaster::reduced() const {
    PixelImage image{size_, {}};
    image.argb.reserve(points_.size() / oversampling / oversampling);
    for (int y = 0; y < size_.height; ++y) {
        for (int x = 0; x < size_.width; ++x) {
            image.argb.push_back(average(x, y));
        }
    }
    return image;
}

}  // namespace ormala
