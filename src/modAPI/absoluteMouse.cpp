#include "modAPI/absoluteMouse.h"

#include <cstdint>

namespace ormala {

int absoluteMouseCoordinate(int pixel, int origin, int size) {
    constexpr std::int64_t fullRange = 65536;
    // Rounded up: the system cuts off what is left of a pixel.
    return static_cast<int>((fullRange * (pixel - origin) + size - 1) / size);
}

}  // namespace ormala
