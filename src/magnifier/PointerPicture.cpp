#include "magnifier/PointerPicture.h"

#include <algorithm>

#include "scene/pixelImages.h"

namespace ormala {

namespace {

constexpr int full = static_cast<int>(fullChannel);

int channelOf(std::uint32_t pixel, unsigned shift) {
    return static_cast<int>((pixel >> shift) & 0xFFU);
}

void fillEnlarged(const PixelView& image, const PointerPicture::Pixel& pointer,
                  const PixelRect& box) {
    const PixelRect area = box.intersected({0, 0, image.size.width, image.size.height});
    if (area.empty()) {
        return;
    }
    // The ground is enlarged too: one pixel of it tells all.
    const std::uint32_t result = pixelUnder(pointer, image.row(area.top)[area.left]);
    for (int y = area.top; y < area.bottom; ++y) {
        std::fill_n(image.row(y) + area.left, area.width(), result);
    }
}

}  // namespace

PointerPicture pointerPicture(const PixelView& onBlack, const PixelView& onWhite,
                              PixelPoint hotSpot) {
    PointerPicture picture{{}, hotSpot};
    for (int y = 0; y < onBlack.size.height; ++y) {
        for (int x = 0; x < onBlack.size.width; ++x) {
            const PointerPicture::Pixel pixel{
                {x, y}, onBlack.row(y)[x] & colorBits, onWhite.row(y)[x] & colorBits};
            const bool leavesGround = pixel.onBlack == 0 && pixel.onWhite == colorBits;
            if (!leavesGround) {
                picture.pixels.push_back(pixel);
            }
        }
    }
    return picture;
}

std::uint32_t pixelUnder(const PointerPicture::Pixel& pointer, std::uint32_t ground) {
    std::uint32_t result = ground & ~colorBits;
    for (const unsigned shift : {0U, 8U, 16U}) {
        const int black = channelOf(pointer.onBlack, shift);
        const int white = channelOf(pointer.onWhite, shift);
        const int state = channelOf(ground, shift);
        const int sum = black * (full - state) + white * state;
        result |= static_cast<std::uint32_t>((sum + full / 2) / full) << shift;
    }
    return result;
}

void drawPointer(const PixelView& image, const PointerPicture& pointer, PixelPoint hotSpot,
                 int factor) {
    for (const PointerPicture::Pixel& pixel : pointer.pixels) {
        const int left = (hotSpot.x - pointer.hotSpot.x + pixel.place.x) * factor;
        const int top = (hotSpot.y - pointer.hotSpot.y + pixel.place.y) * factor;
        fillEnlarged(image, pixel, {left, top, left + factor, top + factor});
    }
}

}  // namespace ormala
