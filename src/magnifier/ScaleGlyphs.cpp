#include "magnifier/ScaleGlyphs.h"

#include <cstdlib>
#include <numeric>

#include "scene/pixelImages.h"

namespace ormala {

namespace {

void drawGlyph(const PixelView& picture, const ScaleGlyphs& glyphs, PixelPoint place,
               const ScaleGlyphs::Glyph& glyph, std::uint32_t pixel) {
    const PixelRect box{place.x, place.y, place.x + glyph.width, place.y + glyphs.height};
    const PixelRect area = box.intersected({0, 0, picture.size.width, picture.size.height});
    for (int y = area.top; y < area.bottom; ++y) {
        const auto first = static_cast<std::ptrdiff_t>(y - place.y) * glyph.width - place.x;
        for (int x = area.left; x < area.right; ++x) {
            const std::uint8_t opacity = glyph.coverage[static_cast<std::size_t>(first + x)];
            if (opacity != 0) {
                std::uint32_t& shown = picture.row(y)[x];
                shown = blended(shown, pixel, opacity);
            }
        }
    }
}

}  // namespace

NumberText::NumberText(int value) {
    constexpr int base = 10;
    int left = value;
    do {
        // The smallest number has no positive counterpart; its digits have.
        signs_.at(--first_) = static_cast<std::size_t>(std::abs(left % base));
        left /= base;
    } while (left != 0);
    if (value < 0) {
        signs_.at(--first_) = ScaleGlyphs::minus;
    }
}

int NumberText::width(const ScaleGlyphs& glyphs) const {
    return std::accumulate(begin(), end(), 0, [&glyphs](int sum, std::size_t sign) {
        return sum + glyphs.glyphs.at(sign).width;
    });
}

void drawNumber(const PixelView& picture, const ScaleGlyphs& glyphs, PixelPoint place,
                const NumberText& number, std::uint32_t pixel) {
    for (const std::size_t sign : number) {
        const ScaleGlyphs::Glyph& glyph = glyphs.glyphs.at(sign);
        drawGlyph(picture, glyphs, place, glyph, pixel);
        place.x += glyph.width;
    }
}

}  // namespace ormala
