#pragma once

#include "scene/PixelRect.h"

namespace ormala {

/// A line of the cross hair on the screen.
struct CrossHairLine {
    PixelRect place;
    /// Whether the mouse is within the worksheet's reach along that axis.
    bool shown = false;

    bool operator==(const CrossHairLine&) const = default;
};

/// From the left to the right edge of the worksheet, at the cursor's height. The edges of the
/// worksheet's rectangle, also the right and the bottom one, count as inside.
CrossHairLine horizontalLine(PixelPoint cursor, const PixelRect& worksheet);

/// From the top to the bottom edge.
CrossHairLine verticalLine(PixelPoint cursor, const PixelRect& worksheet);

}  // namespace ormala
