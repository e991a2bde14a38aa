#pragma once

#include <cstddef>
#include <cstdint>

#include "modAPI/PixelRect.h"
#include "modAPI/colors.h"

namespace ormala {

/// The pixels of a picture that something else owns: rows from the top, `stride` pixels from one to
/// the next. A pixel is 0xAARRGGBB, and its opacity counts for nothing.
struct PixelView {
    std::uint32_t* pixels = nullptr;
    int stride = 0;
    PixelSize size;

    /// A row inside the picture.
    [[nodiscard]] std::uint32_t* row(int y) const {
        return pixels + static_cast<std::ptrdiff_t>(y) * stride;
    }
    [[nodiscard]] bool contains(PixelPoint place) const {
        return PixelRect{0, 0, size.width, size.height}.contains(place);
    }
};

/// A pixel inside the picture, as a plain colour.
inline Color colorOfPixel(const PixelView& picture, PixelPoint place) {
    const auto pixel = static_cast<Color>(picture.row(place.y)[place.x]);
    return rgb(pixel >> 16 & 0xFF, pixel >> 8 & 0xFF, pixel & 0xFF);
}

}  // namespace ormala
