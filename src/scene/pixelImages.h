#pragma once

#include "modAPI/colors.h"
#include "scene/PixelImage.h"

namespace ormala {

/// Of a pixel's red, green, blue or opacity.
inline constexpr std::uint32_t fullChannel = 255;

/// The part of a pixel that is its colour.
constexpr std::uint32_t colorBits = 0xFFFFFFU;

/// `pixel` with that opacity, 0 to 255, over the opaque `ground`.
std::uint32_t blended(std::uint32_t ground, std::uint32_t pixel, std::uint32_t opacity);

/// The plain colour as an opaque pixel.
std::uint32_t opaquePixel(Color color);

/// An image of one pixel value.
PixelImage filledImage(PixelSize size, std::uint32_t pixel);

/// A pixel inside the image.
std::uint32_t pixelAt(const PixelImage& image, PixelPoint place);

/// Sets the pixels of `box` that lie in the image.
void fillBox(PixelImage& image, const PixelRect& box, std::uint32_t pixel);

/// Lays `picture` with its upper left corner at `place` over the opaque `ground`.
void blendOnto(PixelImage& ground, const PixelImage& picture, PixelPoint place);

/// In grey of the same brightness.
PixelImage greyed(PixelImage image);

/// A drawing in light with dark edges, as one in two plain colours: what is dark in one, and all
/// else in the other.
PixelImage inTwoColors(PixelImage image, Color dark, Color light);

/// With that part of its opacity, from 0 to 255.
PixelImage faded(PixelImage image, int opacity);

}  // namespace ormala
