#pragma once

#include <array>

#include "app/modes.h"
#include "scene/PixelRect.h"

namespace ormala {

/// Where things stand in the client area of the control window, in its monitor's pixels.
struct SettingsLayout {
    explicit SettingsLayout(int dpi);

    /// The mode bar, in the order of the modes.
    std::array<PixelRect, mode::count> btnMode;
    /// The list of panels; its bottom follows the window.
    PixelRect picOuter;
    /// Of the client area: the fixed width, the least height and the one of a first start.
    int width = 0;
    int shortHeight = 0;
    int firstHeight = 0;
};

}  // namespace ormala
