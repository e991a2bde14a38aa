#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "scene/PixelView.h"

namespace ormala {

/// The ten digits and the minus sign of a font, made once for a size, so that a number is drawn
/// without the system.
struct ScaleGlyphs {
    struct Glyph {
        int width = 0;
        /// How much of each pixel the sign covers, 0 to 255, row by row.
        std::vector<std::uint8_t> coverage;
    };
    static constexpr std::size_t minus = 10;
    static constexpr std::size_t count = 11;

    int height = 0;
    std::array<Glyph, count> glyphs;
    /// The width of the longest text that labels leave room for, "-0000 ".
    int sampleWidth = 0;
};

/// A number in decimal digits: the glyphs of its signs.
class NumberText {
  public:
    explicit NumberText(int value);

    [[nodiscard]] const std::size_t* begin() const { return signs_.data() + first_; }
    [[nodiscard]] const std::size_t* end() const { return signs_.data() + signs_.size(); }
    [[nodiscard]] int width(const ScaleGlyphs& glyphs) const;

  private:
    std::array<std::size_t, 11> signs_{};
    std::size_t first_ = signs_.size();
};

/// Draws the number with its upper left corner at `place`, as far as it lies in the picture.
void drawNumber(const PixelView& picture, const ScaleGlyphs& glyphs, PixelPoint place,
                const NumberText& number, std::uint32_t pixel);

}  // namespace ormala
