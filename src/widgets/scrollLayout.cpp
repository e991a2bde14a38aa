#include "widgets/scrollLayout.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "modAPI/rounding.h"
#include "scene/dpi.h"

namespace ormala {

namespace {

/// The shortest thumb that is still easy to hit, in pixels at 96 DPI.
constexpr int shortestThumb = 16;

/// The piece of a bar from one place to another, over its whole breadth.
PixelRect piece(bool horizontal, int from, int to, int breadth) {
    return horizontal ? PixelRect{from, 0, to, breadth} : PixelRect{0, from, breadth, to};
}

double distance(int from, int to) {
    return static_cast<double>(static_cast<std::int64_t>(to) - from);
}

/// In proportion to what is in sight. Rounded up, so that a page never moves the thumb by more than
/// its own length.
int thumbLength(int track, int shortest, const ScrollRange& range) {
    const double whole = std::abs(distance(range.Min, range.Max));
    if (whole == 0) {
        return track;
    }
    const double inSight = std::abs(distance(0, range.LargeChange));
    const auto length = static_cast<int>(std::ceil(track * (inSight / (whole + inSight))));
    return std::clamp(length, shortest, track);
}

int thumbOffset(int free, const ScrollRange& range) {
    if (range.Min == range.Max) {
        return 0;
    }
    const double share = distance(range.Min, range.Value) / distance(range.Min, range.Max);
    return static_cast<int>(RoundHalfAway(free * std::clamp(share, 0.0, 1.0)));
}

}  // namespace

int ScrollLayout::free() const {
    return horizontal ? shapeMiddle.width() - cmdMove.width()
                      : shapeMiddle.height() - cmdMove.height();
}

ScrollPart ScrollLayout::partAt(PixelPoint point) const {
    if (cmdMove.contains(point)) {
        return ScrollPart::thumb;
    }
    if (cmdTL.contains(point)) {
        return ScrollPart::topLeft;
    }
    if (cmdBR.contains(point)) {
        return ScrollPart::bottomRight;
    }
    return shapeMiddle.contains(point) ? ScrollPart::track : ScrollPart::none;
}

ScrollLayout layoutScroll(PixelSize size, int dpi, const ScrollRange& range) {
    ScrollLayout layout;
    layout.horizontal = size.width > size.height;
    const int length = std::max(0, std::max(size.width, size.height));
    const int breadth = std::max(0, std::min(size.width, size.height));
    const int arrow = std::min(breadth, length / 2);
    const int shared = std::min(lineWidthAt(dpi), arrow);
    const int start = arrow - shared;
    const int end = length - arrow + shared;
    layout.cmdTL = piece(layout.horizontal, 0, arrow, breadth);
    layout.cmdBR = piece(layout.horizontal, length - arrow, length, breadth);
    layout.shapeMiddle = piece(layout.horizontal, start, end, breadth);
    const int shortest = std::max(1, shortestThumb * dpi / designDpi);
    const int track = end - start;
    if (breadth > 0 && track >= shortest) {
        const int thumb = thumbLength(track, shortest, range);
        const int at = start + thumbOffset(track - thumb, range);
        layout.cmdMove = piece(layout.horizontal, at, at + thumb, breadth);
    }
    return layout;
}

}  // namespace ormala
