#pragma once

namespace ormala {

/// What the menu of the magnifier shows of it: the entry of the factor that is in force, the check
/// marks, and whether the grid can be chosen.
struct LensMenuState {
    int factor = 0;
    bool sticked = false;
    bool cursorOn = false;
    bool hotSpotOn = false;
    bool gridOn = false;
    /// Without enlargement there is no grid.
    bool gridAllowed = false;
    bool topScales = false;
    bool bottomScales = false;

    bool operator==(const LensMenuState&) const = default;
};

}  // namespace ormala
