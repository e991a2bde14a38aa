#pragma once

#include <vector>

#include "modAPI/PixelRect.h"
#include "modAPI/colors.h"
#include "scene/PixelImage.h"

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
    [[nodiscard]] bool holds(Color color) const;
    /// Where that colour stands first, row by row; if it stands nowhere, the field whose colour
    /// differs least from it.
    [[nodiscard]] PixelPoint nearest(Color color) const;
};

inline constexpr int paletteCount = 3;

namespace palette {
/// 25 x 12: hues from left to right, from light to dark downwards, pure in the seventh row; greys
/// at the right end. All colours that tools, grid and magnifier begin with are among them.
constexpr int hues = 0;
/// 12 x 4: a row of greys; under it each pure hue, dark and light.
constexpr int pure = 1;
/// 13 x 8: subdued hues, that stay quiet beside a photograph, and greys.
constexpr int muted = 2;
}  // namespace palette

/// An index beyond an end takes the palette at that end.
const Palette& paletteOf(int index);

/// The palette that shows a colour: the first one that holds it, and the hues for any other one.
int paletteFor(Color color);

/// All fields of a palette in a picture of that size.
PixelImage palettePicture(int index, PixelSize size);

}  // namespace ormala
