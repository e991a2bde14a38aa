#pragma once

#include "scene/dpi.h"

namespace ormala {

/// How large stands on the worksheet what is made for the hand and the eye: grips and their reach,
/// the circle of the angles, the gaps and places of read-outs. Their lengths are designed at 96 DPI
/// and grow with the resolution of the worksheet's monitor. Coordinates of tools, the widths of
/// lines and the grid are pixels of the screen at every resolution.
class SheetScale {
  public:
    constexpr explicit SheetScale(int dpi = designDpi) : dpi_(dpi) {}

    bool operator==(const SheetScale&) const = default;

    [[nodiscard]] constexpr int dpi() const { return dpi_; }
    /// In pixels of the screen.
    [[nodiscard]] constexpr double length(double designed) const {
        return designed * dpi_ / designDpi;
    }
    /// The nearest whole number.
    [[nodiscard]] constexpr int pixels(int designed) const { return scaledLength(designed, dpi_); }
    /// The nearest odd number, of two the larger one: there is a pixel in the middle.
    [[nodiscard]] constexpr int oddPixels(int designed) const {
        return static_cast<int>(length(designed) / 2) * 2 + 1;
    }

  private:
    int dpi_;
};

}  // namespace ormala
