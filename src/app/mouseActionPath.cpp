#include "app/mouseActionPath.h"

#include <algorithm>
#include <cstdint>
#include <limits>

#include "modAPI/rounding.h"

namespace ormala {

namespace {

constexpr double furthest = std::numeric_limits<int>::max() / 4.0;

int pixelOf(double place, int origin) {
    return static_cast<int>(RoundHalfAway(std::clamp(place, -furthest, furthest))) + origin;
}

PixelPoint nearestIn(const PixelRect& monitor, PixelPoint point) {
    return {std::clamp(point.x, monitor.left, monitor.right - 1),
            std::clamp(point.y, monitor.top, monitor.bottom - 1)};
}

std::int64_t squaredDistance(PixelPoint a, PixelPoint b) {
    const std::int64_t dx = std::int64_t{a.x} - b.x;
    const std::int64_t dy = std::int64_t{a.y} - b.y;
    return dx * dx + dy * dy;
}

PixelPoint cutToMonitors(PixelPoint point, std::span<const PixelRect> monitors) {
    const auto wayTo = [point](const PixelRect& monitor) {
        return squaredDistance(point, nearestIn(monitor, point));
    };
    const auto nearest = std::ranges::min_element(monitors, {}, wayTo);
    return nearest == monitors.end() ? point : nearestIn(*nearest, point);
}

}  // namespace

MouseActionPath mouseActionPath(const Rect& rectBound, PixelPoint origin,
                                std::span<const PixelRect> monitors) {
    const PixelPoint first{pixelOf(rectBound.left, origin.x), pixelOf(rectBound.top, origin.y)};
    const PixelPoint last{pixelOf(rectBound.right, origin.x), pixelOf(rectBound.bottom, origin.y)};
    return {cutToMonitors(first, monitors), cutToMonitors(last, monitors)};
}

}  // namespace ormala
