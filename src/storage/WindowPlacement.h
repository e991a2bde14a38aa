#pragma once

#include <cstdint>
#include <string>

#include "modAPI/PixelRect.h"
#include "storage/INIFile.h"

namespace ormala {

/// What the window manager tells and takes of a top-level window, in pixels of the screen. A
/// damaged file may bring in any numbers, also a right that is less than left.
struct WindowPlacement {
    std::int32_t showCmd = 0;  ///< 3 = maximised
    PixelRect rcNormalPosition;

    bool operator==(const WindowPlacement&) const = default;
};

/// The screens there are.
struct ScreenAreas {
    PixelRect workArea;       ///< of the primary screen
    PixelRect virtualScreen;  ///< all screens together
};

/// How to place a window again. A maximised window is shown so first and then given its normal
/// rectangle.
struct RestoredPlacement {
    PixelRect rect;
    bool maximise = false;
};

/// Cuts the normal rectangle to the size of the bounds and moves it into them; left and top win.
void KeepRectInBounds(WindowPlacement& placement, const PixelRect& bounds);

/// The rectangle brought onto the screens there are: into the work area of the primary screen if it
/// shows there, else into the bounds of all screens.
PixelRect keptOnScreens(const PixelRect& rect, const ScreenAreas& screens);

/// Writes the placement into a section of the options file; the current section stays.
void storePlacement(INIFile& options, const std::string& section, const WindowPlacement& placement);

/// What a user can change of a window's size.
enum class Sizable { nothing, height, both };

/// Where the window stood when its placement was stored, brought back onto the screens there are.
/// `present` serves where nothing is stored, and gives the size in each direction that isn't
/// sizable: at the time of storing it may have been another one.
/// With `cascade` the place lies 20 pixels further right and down, and is stored at once, for the
/// next copy of the program. The current section stays.
RestoredPlacement restoredPlacement(INIFile& options, const std::string& section, bool cascade,
                                    const WindowPlacement& present, Sizable sizable,
                                    const ScreenAreas& screens);

}  // namespace ormala
