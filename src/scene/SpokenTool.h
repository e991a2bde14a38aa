#pragma once

#include <string>
#include <vector>

#include "modAPI/PixelRect.h"

namespace ormala {

/// What a tool says of itself to those who can't see it, in the user's language.
struct SpokenTool {
    std::string name;
    std::string value;
    std::string description;
    /// How many are shown.
    int grips = 0;
};

/// The same of a grip. Its place is in worksheet pixels.
struct SpokenGrip {
    std::string name;
    std::string value;
    PixelRect place;
    bool held = false;
};

}  // namespace ormala
