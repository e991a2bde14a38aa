#include "scene/pixelImages.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "modAPI/drawingColors.h"

namespace ormala {

namespace {

std::uint32_t channel(std::uint32_t pixel, unsigned shift) {
    return (pixel >> shift) & fullChannel;
}

std::size_t indexOf(const PixelImage& image, int x, int y) {
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(image.size.width) +
           static_cast<std::size_t>(x);
}

}  // namespace

std::uint32_t blended(std::uint32_t ground, std::uint32_t pixel, std::uint32_t opacity) {
    std::uint32_t result = fullChannel << 24U;
    for (const unsigned shift : {0U, 8U, 16U}) {
        const std::uint32_t sum =
            channel(pixel, shift) * opacity + channel(ground, shift) * (fullChannel - opacity);
        result |= ((sum + fullChannel / 2) / fullChannel) << shift;
    }
    return result;
}

std::uint32_t opaquePixel(Color color) {
    const ColorParts parts = ColorComponents(color, nullptr);
    return static_cast<std::uint32_t>(rgb(parts.blue, parts.green, parts.red)) | fullChannel << 24U;
}

PixelImage filledImage(PixelSize size, std::uint32_t pixel) {
    const std::size_t count =
        static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height);
    return {size, std::vector<std::uint32_t>(count, pixel)};
}

std::uint32_t pixelAt(const PixelImage& image, PixelPoint place) {
    return image.argb[indexOf(image, place.x, place.y)];
}

void fillBox(PixelImage& image, const PixelRect& box, std::uint32_t pixel) {
    const PixelRect area = box.intersected({0, 0, image.size.width, image.size.height});
    for (int y = area.top; y < area.bottom; ++y) {
        for (int x = area.left; x < area.right; ++x) {
            image.argb[indexOf(image, x, y)] = pixel;
        }
    }
}

void blendOnto(PixelImage& ground, const PixelImage& picture, PixelPoint place) {
    const PixelRect box{place.x, place.y, place.x + picture.size.width,
                        place.y + picture.size.height};
    const PixelRect area = box.intersected({0, 0, ground.size.width, ground.size.height});
    for (int y = area.top; y < area.bottom; ++y) {
        for (int x = area.left; x < area.right; ++x) {
            std::uint32_t& pixel = ground.argb[indexOf(ground, x, y)];
            const std::uint32_t laid = pixelAt(picture, {x - place.x, y - place.y});
            pixel = blended(pixel, laid, channel(laid, 24));
        }
    }
}

PixelImage greyed(PixelImage image) {
    for (std::uint32_t& pixel : image.argb) {
        const Color color =
            rgb(static_cast<int>(channel(pixel, 16)), static_cast<int>(channel(pixel, 8)),
                static_cast<int>(channel(pixel, 0)));
        const auto grey = static_cast<std::uint32_t>(std::lround(Luminance(color) * fullChannel));
        pixel = (pixel & fullChannel << 24U) | grey << 16U | grey << 8U | grey;
    }
    return image;
}

PixelImage inTwoColors(PixelImage image, Color dark, Color light) {
    const float darkest = Luminance(pictureInk::ink);
    // The darkest of the other inks.
    const float brightEnough = Luminance(pictureInk::red);
    const std::uint32_t darkPixel = opaquePixel(dark);
    const std::uint32_t lightPixel = opaquePixel(light);
    for (std::uint32_t& pixel : image.argb) {
        const auto channelOf = [pixel](unsigned shift) {
            return static_cast<int>(channel(pixel, shift));
        };
        const float bright = Luminance(rgb(channelOf(16), channelOf(8), channelOf(0)));
        const float part = std::clamp((bright - darkest) / (brightEnough - darkest), 0.0F, 1.0F);
        const auto opacity = static_cast<std::uint32_t>(std::lround(255 * part));
        const std::uint32_t mixed = blended(darkPixel, lightPixel, opacity);
        pixel = (pixel & ~colorBits) | (mixed & colorBits);
    }
    return image;
}

PixelImage faded(PixelImage image, int opacity) {
    for (std::uint32_t& pixel : image.argb) {
        const std::uint32_t alpha =
            (channel(pixel, 24) * static_cast<std::uint32_t>(opacity) + fullChannel / 2) /
            fullChannel;
        pixel = (pixel & ~(fullChannel << 24U)) | alpha << 24U;
    }
    return image;
}

}  // namespace ormala
