#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <vector>

#include "modAPI/PixelRect.h"
#include "worksheet/AidOptions.h"

namespace ormala {

/// The worksheet's background with its grid as rows of pixels, to be copied to where they belong:
/// there are four different rows at most, so that a grid costs no more than a plain fill.
///
/// The lines or points stand at the grid's origin and in its steps from there to the right and
/// down, up to and with the client area's size. A wide line lies about its place as a pen's would.
/// Along a step below 1 there is none.
class GridRows {
  public:
    /// As they are copied.
    struct Pixels {
        std::uint32_t background = 0;
        std::uint32_t grid = 0;
    };

    /// Whether there is anything to see of the grid.
    static bool shows(const BackgroundGrid& grid);

    GridRows(const BackgroundGrid& grid, PixelSize client, const Pixels& pixels);

    /// A row of the client area, from its left to its right edge.
    [[nodiscard]] std::span<const std::uint32_t> row(int y) const {
        return rows_[kinds_[static_cast<std::size_t>(y)]];
    }

  private:
    /// Bits of the kind of a row.
    enum Kind : std::uint8_t { plain = 0, crossesColumns = 1, liesInLine = 2 };

    void chooseKinds(const BackgroundGrid& grid, int height);
    void makeRows(const BackgroundGrid& grid, int width, const Pixels& pixels);

    std::array<std::vector<std::uint32_t>, 4> rows_;
    std::vector<std::uint8_t> kinds_;
};

}  // namespace ormala
