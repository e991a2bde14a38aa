#pragma once

#include <cstdint>
#include <vector>

#include "modAPI/PixelRect.h"

namespace ormala {

/// A picture in memory: `argb` holds it row by row from the top, each pixel 0xAARRGGBB and not
/// premultiplied.
struct PixelImage {
    PixelSize size;
    std::vector<std::uint32_t> argb;
};

}  // namespace ormala
