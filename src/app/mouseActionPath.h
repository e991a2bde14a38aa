#pragma once

#include <span>

#include "modAPI/PixelRect.h"
#include "modAPI/points.h"

namespace ormala {

/// Where the automatic mouse action presses and lets go, in screen pixels.
struct MouseActionPath {
    PixelPoint from;
    PixelPoint to;

    bool operator==(const MouseActionPath&) const = default;
};

/// From the stencil's first pixel to its last one, unturned. `origin` is the worksheet's client
/// origin on the screen. What lies beyond all `monitors` is cut to the nearest of their pixels.
MouseActionPath mouseActionPath(const Rect& rectBound, PixelPoint origin,
                                std::span<const PixelRect> monitors);

}  // namespace ormala
