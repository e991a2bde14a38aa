#include "storage/WindowPlacement.h"

#include <algorithm>
#include <limits>

namespace ormala {

namespace {

constexpr std::int32_t showNormal = 1;
constexpr std::int32_t showMaximised = 3;
constexpr std::int32_t cascadeStep = 20;
/// A window that shows less than this of itself in both directions isn't really on the screen.
constexpr std::int64_t smallestVisible = 11;

/// Wide enough to add and subtract what a damaged file may hold.
using Wide = std::int64_t;

std::int32_t narrowed(Wide value) {
    using Limits = std::numeric_limits<std::int32_t>;
    return static_cast<std::int32_t>(std::clamp<Wide>(value, Limits::min(), Limits::max()));
}

/// One direction of keeping a rectangle in bounds.
void keepInBounds(std::int32_t& low, std::int32_t& high, std::int32_t lowBound,
                  std::int32_t highBound) {
    if (Wide{high} - low > Wide{highBound} - lowBound) {
        low = lowBound;
        high = highBound;
    }
    const Wide size = Wide{high} - low;
    if (high > highBound) {
        low = narrowed(highBound - size);
        high = highBound;
    }
    if (low < lowBound) {
        low = lowBound;
        high = narrowed(lowBound + size);
    }
}

bool liesOn(const PixelRect& area, const PixelRect& rect) {
    const Wide width = Wide{std::min(area.right, rect.right)} - std::max(area.left, rect.left);
    const Wide height = Wide{std::min(area.bottom, rect.bottom)} - std::max(area.top, rect.top);
    const bool intersects = width > 0 && height > 0;
    return intersects && (width >= smallestVisible || height >= smallestVisible);
}

void writeRect(INIFile& options, const PixelRect& rect) {
    options.setLongValue("Left", rect.left);
    options.setLongValue("Top", rect.top);
    options.setLongValue("Right", rect.right);
    options.setLongValue("Bottom", rect.bottom);
}

PixelRect readRect(INIFile& options, const PixelRect& present, Sizable sizable) {
    PixelRect rect;
    rect.top = options.LongValue("Top", present.top);
    rect.left = options.LongValue("Left", present.left);
    rect.bottom = sizable == Sizable::nothing
                      ? narrowed(Wide{rect.top} + present.bottom - present.top)
                      : options.LongValue("Bottom", present.bottom);
    rect.right = sizable == Sizable::both
                     ? options.LongValue("Right", present.right)
                     : narrowed(Wide{rect.left} + present.right - present.left);
    return rect;
}

void offsetRect(PixelRect& rect, std::int32_t step) {
    for (std::int32_t* const side : {&rect.left, &rect.top, &rect.right, &rect.bottom}) {
        *side = narrowed(Wide{*side} + step);
    }
}

}  // namespace

void KeepRectInBounds(WindowPlacement& placement, const PixelRect& bounds) {
    PixelRect& rect = placement.rcNormalPosition;
    keepInBounds(rect.left, rect.right, bounds.left, bounds.right);
    keepInBounds(rect.top, rect.bottom, bounds.top, bounds.bottom);
}

PixelRect keptOnScreens(const PixelRect& rect, const ScreenAreas& screens) {
    WindowPlacement placement;
    placement.rcNormalPosition = rect;
    KeepRectInBounds(placement,
                     liesOn(screens.workArea, rect) ? screens.workArea : screens.virtualScreen);
    return placement.rcNormalPosition;
}

void storePlacement(INIFile& options, const std::string& section,
                    const WindowPlacement& placement) {
    const CurrentSectionGuard current(options, section);
    const auto scope = options.group();
    writeRect(options, placement.rcNormalPosition);
    options.setLongValue("WindowState", placement.showCmd);
}

RestoredPlacement restoredPlacement(INIFile& options, const std::string& section, bool cascade,
                                    const WindowPlacement& present, Sizable sizable,
                                    const ScreenAreas& screens) {
    const CurrentSectionGuard current(options, section);
    const auto scope = options.group();
    PixelRect rect = readRect(options, present.rcNormalPosition, sizable);
    const bool maximise = options.LongValue("WindowState", showNormal) == showMaximised;
    if (cascade) {
        offsetRect(rect, cascadeStep);
        // A file that can't be read now may hold options that are worth more than a place.
        if (options.status() != ReadResult::Status::failed) {
            writeRect(options, rect);
        }
    }
    return {keptOnScreens(rect, screens), maximise};
}

}  // namespace ormala
