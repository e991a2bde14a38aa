#pragma once

#include <cstdint>

#include "modAPI/colors.h"

namespace ormala {

/// How the worksheet's window is layered.
struct LayeredLook {
    /// Extended style bits: layered, and transparent to the mouse or not.
    std::uint32_t extendedStyle = 0;
    std::uint32_t colorKey = 0;
    int alpha = 255;
    /// 1 the key applies, 2 the opacity applies.
    std::uint32_t flags = 0;

    bool operator==(const LayeredLook&) const = default;
};

/// A window that takes the mouse is a veil of one opacity; one that passes it on shows only what is
/// not of the background's colour. `background` is a plain colour, no system colour.
LayeredLook layeredLook(bool clickable, Color background, int alpha, int clickAlpha);

/// From a slider's transparency in percent, 100 being fully gone, to an opacity of 0 to 255.
int alphaOfTransparency(int percent);

}  // namespace ormala
