#include "magnifier/rasterLines.h"

#include <algorithm>
#include <cstdlib>

#include "scene/pixelImages.h"

namespace ormala {

namespace {

int signOf(int value) {
    return (value > 0 ? 1 : 0) - (value < 0 ? 1 : 0);
}

/// What the mode makes of a picture in which all bits are the same.
std::uint32_t onPlain(std::uint32_t pixel, int mode, bool set) {
    // A mode's number, less one, is its truth table: one bit for each state of pen and picture.
    const auto table = static_cast<std::uint32_t>(mode - 1) >> (set ? 1U : 0U);
    const auto where = [table](std::uint32_t bit, std::uint32_t state) {
        return (table & bit) != 0 ? state : 0U;
    };
    return (where(1U, ~pixel) | where(4U, pixel)) & colorBits;
}

/// The steps of a walk from `from` by `step` that stay below `end` and are not negative.
struct Steps {
    int first = 0;
    int last = 0;

    void keepInside(int from, int step, int end) {
        if (step == 0) {
            last = from >= 0 && from < end ? last : 0;
        } else if (step > 0) {
            first = std::max(first, -from);
            last = std::min(last, end - from);
        } else {
            first = std::max(first, from - end + 1);
            last = std::min(last, from + 1);
        }
    }
};

}  // namespace

RasterPen::RasterPen(std::uint32_t pixel, int mode) {
    constexpr int modes = 16;
    if (mode >= 1 && mode <= modes) {
        flipped_ = onPlain(pixel, mode, false);
        kept_ = ~colorBits | (flipped_ ^ onPlain(pixel, mode, true));
    }
}

void drawLine(const PixelView& picture, const RasterPen& pen, const Segment& line) {
    const int dx = line.to.x - line.from.x;
    const int dy = line.to.y - line.from.y;
    const PixelPoint step{signOf(dx), signOf(dy)};
    Steps steps{0, std::max(std::abs(dx), std::abs(dy))};
    steps.keepInside(line.from.x, step.x, picture.size.width);
    steps.keepInside(line.from.y, step.y, picture.size.height);
    if (steps.first >= steps.last) {
        return;
    }
    std::uint32_t* pixel = picture.row(line.from.y + steps.first * step.y) + line.from.x +
                           static_cast<std::ptrdiff_t>(steps.first) * step.x;
    const std::ptrdiff_t next = static_cast<std::ptrdiff_t>(step.y) * picture.stride + step.x;
    for (int i = steps.first; i + 1 < steps.last; ++i) {
        *pixel = pen.over(*pixel);
        pixel += next;
    }
    *pixel = pen.over(*pixel);
}

}  // namespace ormala
