#include "pictures/linePicture.h"

#include <algorithm>
#include <cstddef>

#include "scene/Canvas.h"

namespace ormala {

namespace {

constexpr std::uint32_t white = 0xFFFFFFFF;
constexpr std::uint32_t black = 0xFF000000;

/// Pixels drawn and pixels left out, short enough to be told apart in a narrow picture.
struct Rhythm {
    int on;
    int off;
};

Rhythm rhythmOf(int lineCode) {
    if (lineCode <= 0) {
        return {2, 2};
    }
    return lineCode == 1 ? Rhythm{5, 3} : Rhythm{1, 0};
}

}  // namespace

PixelImage drawLinePicture(int lineCode, PixelSize size) {
    if (size.width < 1 || size.height < 1) {
        return {};
    }
    const auto width = static_cast<std::size_t>(size.width);
    PixelImage image{size, std::vector(width * static_cast<std::size_t>(size.height), white)};
    const int lineWidth = std::min(Pen{0, lineCode}.width(), size.height);
    const int top = (size.height - lineWidth) / 2;
    const int margin = size.width / 8;
    const Rhythm rhythm = rhythmOf(lineCode);
    for (int y = top; y < top + lineWidth; ++y) {
        for (int x = margin; x < size.width - margin; ++x) {
            if ((x - margin) % (rhythm.on + rhythm.off) < rhythm.on) {
                image.argb[static_cast<std::size_t>(y) * width + static_cast<std::size_t>(x)] =
                    black;
            }
        }
    }
    return image;
}

}  // namespace ormala
