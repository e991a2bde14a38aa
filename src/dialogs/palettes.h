#pragma once

#include <vector>

#include "modAPI/colors.h"
#include "scene/PixelRect.h"

namespace ormala {

/// A table of colours to pick from; no two fields have the same one.
struct Palette {
    /// In fields.
    PixelSize size;
    /// Row by row from the top.
    std::vector<Color> colors;

    /// The field must be one of the palette.
    [[nodiscard]] Color at(PixelPoint field) const;
    /// The nearest field of the palette.
    [[nodiscard]] PixelPoint clamped(PixelPoint field) const;
    /// Where that colour stands first, row by row; `otherwise` if it stands nowhere.
    [[nodiscard]] PixelPoint find(Color color, PixelPoint otherwise) const;
};

inline constexpr int paletteCount = 3;

namespace palette {
/// 25 x 12: hues from left to right, from light to dark downwards, pure in the seventh row; greys
/// at the right end.
constexpr int hues = 0;
/// 12 x 4: a row of greys; under it each pure hue, dark and light.
constexpr int pure = 1;
/// 13 x 8: subdued hues, that stay quiet beside a photograph, and greys.
constexpr int muted = 2;
}  // namespace palette

/// An index beyond an end takes the palette at that end.
const Palette& paletteOf(int index);

}  // namespace ormala
