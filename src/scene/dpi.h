#pragma once

#include <algorithm>

namespace ormala {

/// The resolution that lengths are designed at.
constexpr int designDpi = 96;

/// A length of the design, not negative, in the pixels of a screen of that resolution.
constexpr int scaledLength(int length, int dpi) {
    return (length * dpi + designDpi / 2) / designDpi;
}

/// The width of an outline and of the other fine lines, at least one pixel.
constexpr int lineWidthAt(int dpi) {
    return std::max(1, dpi / designDpi);
}

/// The size of text that users can change, in per cent.
constexpr int normalTextSize = 100;

/// The resolution for controls whose text the user wants at so many per cent of its size. Layouts
/// follow up to half as much again.
constexpr int textScaledDpi(int dpi, int percent) {
    constexpr int most = 150;
    return (dpi * std::clamp(percent, normalTextSize, most) + normalTextSize / 2) / normalTextSize;
}

}  // namespace ormala
