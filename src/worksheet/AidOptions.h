#pragma once

#include "modAPI/drawingColors.h"
#include "modAPI/transforms.h"

namespace ormala {

/// The grid on the background of the worksheet and how it looks, with the defaults of a first
/// start. Tools snap to its steps whether it is shown or not.
struct BackgroundGrid {
    bool enabled = false;
    /// 0 none, 1 points, 2 lines.
    int style = 2;
    /// 0 dotted, 1 dashed, n >= 2 solid and n - 1 pixels wide.
    int lineWidth = 2;
    Color color = firstColor::backgroundGrid;
    Grid steps;

    bool operator==(const BackgroundGrid&) const = default;
};

/// What the user sets of the worksheet's own aids, with the defaults of a first start.
struct AidOptions {
    BackgroundGrid grid;
    bool crossHair = false;
    bool circleCompass = true;

    bool operator==(const AidOptions&) const = default;
};

}  // namespace ormala
