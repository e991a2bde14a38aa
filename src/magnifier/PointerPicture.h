#pragma once

#include <cstdint>
#include <vector>

#include "scene/PixelView.h"

namespace ormala {

/// The picture of a mouse pointer, taken once and then laid over any ground at any factor. A
/// pointer covers its ground, blends with it or inverts it; all three are told by what it makes of
/// black and of white.
struct PointerPicture {
    struct Pixel {
        PixelPoint place;
        /// 0x00RRGGBB.
        std::uint32_t onBlack = 0;
        std::uint32_t onWhite = 0;
    };

    /// Of all pixels that change their ground.
    std::vector<Pixel> pixels;
    /// The pixel that points.
    PixelPoint hotSpot;
};

/// From a pointer drawn on a black and on a white ground of the same size.
PointerPicture pointerPicture(const PixelView& onBlack, const PixelView& onWhite,
                              PixelPoint hotSpot);

/// What that pixel of a pointer makes of a pixel of the ground.
std::uint32_t pixelUnder(const PointerPicture::Pixel& pointer, std::uint32_t ground);

/// Lays the pointer, each of its pixels `factor` times enlarged, over an image that is enlarged in
/// the same way. `hotSpot` is the pixel that it points to, before the enlargement.
void drawPointer(const PixelView& image, const PointerPicture& pointer, PixelPoint hotSpot,
                 int factor);

}  // namespace ormala
