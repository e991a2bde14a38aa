#pragma once

#include <cstdint>

#include "modAPI/colors.h"

namespace ormala {

/// How the worksheet's window is layered.
struct LayeredLook {
    /// All of its extended style.
    std::uint32_t extendedStyle = 0;
    std::uint32_t colorKey = 0;
    int alpha = 255;
    /// 1 the key applies, 2 the opacity applies.
    std::uint32_t flags = 0;

    bool operator==(const LayeredLook&) const = default;
};

/// What decides that. A window that takes the mouse is a veil of one opacity; one that passes it on
/// shows only what is not of the background's colour.
struct Transparency {
    /// It takes the mouse.
    bool clickable = false;
    /// Every click falls through all the same; nothing that is seen changes.
    bool transparentToMouse = false;
    /// Opacities, 0 to 255: while it passes the mouse on, and while it takes it.
    int alpha = 255;
    int clickAlpha = 255;
};

/// `background` is a plain colour, no system colour.
LayeredLook layeredLook(const Transparency& transparency, Color background);

/// From a slider's transparency in percent, 100 being fully gone, to an opacity of 0 to 255.
int alphaOfTransparency(int percent);

}  // namespace ormala
