#pragma once

#include <algorithm>
#include <cmath>

#include "modAPI/colors.h"

namespace ormala::test {

/// Of a plain colour, from 0 to 1, by the definition that the guidelines on contrast use.
inline double relativeLuminance(Color color) {
    const auto part = [color](int shift) {
        const double value = (color >> shift & 0xFF) / 255.0;
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(0) + 0.7152 * part(8) + 0.0722 * part(16);
}

/// From 1 to 21.
inline double contrast(Color a, Color b) {
    const auto [low, high] = std::minmax({relativeLuminance(a), relativeLuminance(b)});
    return (high + 0.05) / (low + 0.05);
}

/// What a text needs to be read well.
inline constexpr double readable = 4.5;

}  // namespace ormala::test
