#pragma once

#include <string>

namespace ormala {

/// In what a measuring tool shows its quantities.
struct MeasureUnits {
    /// 0 degrees, 1 radians.
    int AngleMode = 0;
    /// 0 pixels, 1 units for each pixel, 2 units for the whole of line a.
    int LengthMode = 0;
    double LengthFactor = 1;
    std::string LengthUnit = "m";

    bool operator==(const MeasureUnits&) const = default;
};

}  // namespace ormala
