#pragma once

#include "language/MlStringModule.h"
#include "magnifier/LensOptions.h"
#include "worksheet/AidOptions.h"

namespace ormala {

/// Everything that the options dialog sets.
struct OptionValues {
    int language = languageEnglish;
    /// The worksheet keeps its border in template mode.
    bool templateWithBorder = false;
    BackgroundGrid grid;
    LensOptions lens;
    /// The read-outs count in logical pixels.
    bool logicalPixels = false;

    bool operator==(const OptionValues&) const = default;
};

}  // namespace ormala
