#pragma once

#include <cstdint>

#include "scene/PixelView.h"

namespace ormala {

/// A straight line without its last point, as a pen that is lifted where it arrives.
struct Segment {
    PixelPoint from;
    PixelPoint to;

    bool operator==(const Segment&) const = default;
};

/// What a pen leaves of a picture, as the system numbers it: 1 to 16.
namespace drawMode {
constexpr int inverted = 6;
constexpr int exclusive = 7;
constexpr int restrained = 9;
constexpr int color = 13;
constexpr int brightened = 15;
}  // namespace drawMode

/// A pen of a colour and a draw mode.
class RasterPen {
  public:
    /// `pixel` is 0xAARRGGBB, of which the opacity counts for nothing. Any number that is no draw
    /// mode leaves the picture as it is.
    explicit RasterPen(std::uint32_t pixel, int mode = drawMode::color);

    /// The pixel that the pen leaves; the opacity stays the picture's.
    [[nodiscard]] std::uint32_t over(std::uint32_t picture) const {
        return (picture & kept_) ^ flipped_;
    }

  private:
    /// Which bits of the picture count, and which bits are turned over then.
    std::uint32_t kept_ = ~0U;
    std::uint32_t flipped_ = 0;
};

/// Draws a horizontal, vertical or diagonal line, as far as it lies in the picture.
void drawLine(const PixelView& picture, const RasterPen& pen, const Segment& line);

}  // namespace ormala
