#pragma once

#include <array>
#include <vector>

#include "modAPI/PixelRect.h"
#include "stencil/PatternTable.h"

namespace ormala {

/// Where the controls of `ctlPatternSelect` stand, in pixels at 96 DPI.
struct PatternSelectLayout {
    struct Choice {
        PixelRect button;
        PixelRect label;
    };

    /// By their index in the `PatternTable`.
    std::vector<Choice> patterns;
    /// The headings of the groups.
    std::array<PixelRect, 3> groups;
    Choice noPattern;
    PixelRect rotationLabel;
    PixelRect rotation;
    PixelSize size;
};

/// The patterns of a group follow each other under its heading, in the order of the table. A group
/// that has room beside the former one stands there.
PatternSelectLayout patternSelectLayout();

/// The indexes of the `PatternTable` in the order in which the patterns are seen, row by row: keys
/// go through them in this order.
std::vector<int> patternsAsSeen();

}  // namespace ormala
