#include "magnifier/enlargement.h"

#include <algorithm>

namespace ormala {

namespace {

void enlargeRow(std::uint32_t* to, int width, const std::uint32_t* from, int factor) {
    const int whole = width / factor;
    for (int x = 0; x < whole; ++x) {
        for (int i = 0; i < factor; ++i) {
            *to++ = from[x];
        }
    }
    if (const int cut = width % factor; cut != 0) {
        std::fill_n(to, cut, from[whole]);
    }
}

}  // namespace

void enlarge(const PixelView& to, const PixelView& from, int factor) {
    const int width = std::min(to.size.width, from.size.width * factor);
    const int height = std::min(to.size.height, from.size.height * factor);
    for (int y = 0; y < height; ++y) {
        if (factor == 1) {
            std::copy_n(from.row(y), width, to.row(y));
        } else if (y % factor == 0) {
            enlargeRow(to.row(y), width, from.row(y / factor), factor);
        } else {
            std::copy_n(to.row(y - 1), width, to.row(y));
        }
    }
}

}  // namespace ormala
