#pragma once

#include <cstddef>
#include <cstdint>

#include "modAPI/PixelRect.h"

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

}  // namespace ormala
