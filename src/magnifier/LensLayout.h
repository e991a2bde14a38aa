#pragma once

#include <array>
#include <cstddef>

#include "modAPI/PixelRect.h"
#include "scene/dpi.h"

namespace ormala {

/// The four scales around the image.
enum class LensScale { top, bottom, right, left };
constexpr std::size_t lensScaleCount = 4;
/// In the order in which they are drawn.
constexpr std::array<LensScale, lensScaleCount> lensScales{LensScale::top, LensScale::bottom,
                                                           LensScale::right, LensScale::left};

constexpr std::size_t indexOf(LensScale scale) {
    return static_cast<std::size_t>(scale);
}

/// Which values there are for the scales, one for each.
template <typename T>
using PerScale = std::array<T, lensScaleCount>;

/// What the places of the parts depend on. The image counts the screen's own pixels; the strips and
/// margins around it keep their size to the eye at any resolution.
struct LensFace {
    /// The client area of the window.
    PixelSize client;
    int factor = 4;
    bool gridOn = false;
    PerScale<bool> visible{};
    int dpi = designDpi;
};

struct LensLayout {
    int Factor = 1;
    /// The pixels that the grid's last lines would take outside the last enlarged pixel.
    int GridTrim = 0;
    /// The enlarged image, a whole multiple of the factor and at least one enlarged pixel.
    int LensWidth = 0;
    int LensHeight = 0;
    /// What is captured of the screen.
    int SourceWidth = 0;
    int SourceHeight = 0;
    PixelRect picLens;
    /// Empty for one that is not visible.
    PerScale<PixelRect> scales{};

    bool operator==(const LensLayout&) const = default;
};

/// Where the parts of the window lie. What the division by the factor leaves over stays empty at
/// the right and below.
LensLayout layOutLens(const LensFace& face);

/// The client area that shows an image of 300 pixels of the design with all four scales.
PixelSize firstLensClient(int dpi);

/// The window can be made no smaller.
PixelSize leastLensSize(int dpi);

/// The upper left corner of what is captured around the mouse: its pixel lies in the middle, or
/// just right of and below it if the size is even. It stays inside the bounds; if it is larger than
/// they are, its right and bottom sides are the ones that do.
PixelPoint lensSourceAt(PixelPoint cursor, PixelSize source, const PixelRect& bounds);

/// Where a window that follows the mouse stands: right of and below it, and slid along or flipped
/// at the edges of the screens so that it is never cut.
PixelPoint lensBesideMouse(PixelPoint cursor, PixelSize window, const PixelRect& bounds, int dpi);

}  // namespace ormala
