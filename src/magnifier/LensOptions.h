#pragma once

#include "modAPI/drawingColors.h"

namespace ormala {

/// The factors of the enlargement.
constexpr int leastFactor = 1;
constexpr int mostFactor = 10;

/// What the user sets of the magnifier, with the defaults of a first start.
struct LensOptions {
    /// `leastFactor` to `mostFactor`.
    int factor = 4;
    bool sticked = false;
    bool cursorOn = true;
    bool hotSpotOn = true;
    Color hotSpotColor = firstColor::lensMark;
    /// 0 to 7; any other value draws no shape.
    int hotSpotStyle = 2;
    /// Raster operations of the pen on the picture, as the system numbers them.
    int hotSpotDrawMode = 9;
    bool gridOn = true;
    Color gridColor = firstColor::lensGrid;
    int gridDrawMode = 9;
    /// The scales at the top and at the left, and those at the bottom and at the right.
    bool topScales = true;
    bool bottomScales = true;
    /// Where they count from: 0 worksheet, 1 magnifier, 2 primary screen, 3 all screens.
    int topOrigin = 0;
    int bottomOrigin = 1;

    bool operator==(const LensOptions&) const = default;
};

}  // namespace ormala
