#pragma once

#include <cstdint>
#include <vector>

#include "modAPI/PixelRect.h"
#include "modAPI/points.h"

namespace ormala {

/// How much of each pixel of a picture is covered by lines of that width, found by drawing them at
/// four times the size. Whole coordinates are the middles of pixels; what lies outside the picture
/// is cut off.
class LineCoverage {
  public:
    /// What `at` answers for a pixel that is covered completely.
    static constexpr int full = 16;

    /// Neither side is negative; the width is at least 1 pixel.
    explicit LineCoverage(PixelSize size, int lineWidth = 1);

    /// A line with round ends.
    void stroke(Point from, Point to);
    /// A line along an axis, which covers whole pixels and so stays crisp in the smallest picture.
    void strokeAlongAxis(Point from, Point to);

    [[nodiscard]] int at(int x, int y) const;
    [[nodiscard]] PixelSize size() const { return size_; }
    [[nodiscard]] int lineWidth() const { return lineWidth_; }

  private:
    void cover(const PixelRect& cells);

    PixelSize size_;
    int lineWidth_;
    PixelSize cells_;
    std::vector<std::uint8_t> covered_;
};

}  // namespace ormala
