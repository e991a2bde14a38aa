#include "worksheet/seeThrough.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace ormala {

namespace {

constexpr std::uint32_t colorBits = allButClear - 1;
constexpr std::uint32_t fullOpacity = 255;

/// The same colour in the pixels of a row from `from` on, clear or not: where it ends.
int endOfRun(const std::uint32_t* row, int from, int width, std::uint32_t key) {
    const bool clear = (row[from] & colorBits) == key;
    int end = from + 1;
    while (end < width && ((row[end] & colorBits) == key) == clear) {
        ++end;
    }
    return end;
}

/// Each channel times the opacity.
class Dimming {
  public:
    explicit Dimming(std::uint32_t opacity) : opacity_(opacity) {
        for (std::uint32_t i = 0; i <= fullOpacity; ++i) {
            dimmed_[i] = (i * opacity + fullOpacity / 2) / fullOpacity;
        }
    }
    [[nodiscard]] std::uint32_t operator()(std::uint32_t pixel) const {
        return opacity_ << 24U | dimmed_[pixel >> 16U & fullOpacity] << 16U |
               dimmed_[pixel >> 8U & fullOpacity] << 8U | dimmed_[pixel & fullOpacity];
    }

  private:
    std::uint32_t opacity_;
    std::array<std::uint32_t, fullOpacity + 1> dimmed_{};
};

}  // namespace

VisibleRuns visibleRunsOf(const PixelView& picture, std::uint32_t key) {
    const std::uint32_t color = key & colorBits;
    const int width = picture.size.width;
    VisibleRuns runs;
    runs.gapsOfWidth.resize(static_cast<std::size_t>(std::max(width, 0)));
    for (int y = 0; y < picture.size.height; ++y) {
        const std::uint32_t* const row = picture.row(y);
        int end = 0;
        for (int x = 0; x < width; x = end) {
            end = endOfRun(row, x, width, color);
            if ((row[x] & colorBits) != color) {
                ++runs.count;
            } else if (x > 0 && end < width) {
                ++runs.gapsOfWidth[static_cast<std::size_t>(end - x)];
            }
        }
    }
    return runs;
}

int narrowestOpenGap(const VisibleRuns& runs, int mostRuns) {
    int left = runs.count;
    int width = 1;
    while (left > mostRuns && width < static_cast<int>(runs.gapsOfWidth.size())) {
        left -= runs.gapsOfWidth[static_cast<std::size_t>(width)];
        ++width;
    }
    return width;
}

void makeSeeThrough(const PixelView& from, const PixelView& to, int top, int bottom,
                    const SeeThrough& how) {
    const std::uint32_t color = how.key & colorBits;
    const Dimming dimmed(static_cast<std::uint32_t>(how.opacity));
    const std::uint32_t closing = how.opacity > 0 ? allButClear : 0;
    const int width = from.size.width;
    for (int y = top; y < bottom; ++y) {
        const std::uint32_t* const row = from.row(y);
        std::uint32_t* const made = to.row(y);
        int end = 0;
        for (int x = 0; x < width; x = end) {
            end = endOfRun(row, x, width, color);
            if ((row[x] & colorBits) != color) {
                std::transform(row + x, row + end, made + x, dimmed);
            } else {
                const bool closed = x > 0 && end < width && end - x < how.narrowestOpenGap;
                std::fill(made + x, made + end, closed ? closing : 0U);
            }
        }
    }
}

}  // namespace ormala
