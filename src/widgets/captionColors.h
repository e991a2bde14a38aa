#pragma once

#include "modAPI/colors.h"

namespace ormala {

/// The colours of a two-state button.
inline constexpr Color onColor = rgb(187, 168, 0);
inline constexpr Color offColor = rgb(112, 112, 112);

/// A button's face and the caption on it, which stands out from every row behind it: the contrast
/// is at least 4.5 to 1.
struct CaptionColors {
    Color face;
    Color text;
    /// On a shaded face of that colour the contrast would be too little at the top.
    bool plane;
};

/// Of the buttons in dialogs, and of those that are on.
inline constexpr CaptionColors dialogCaption{rgb(58, 58, 58), rgb(255, 230, 0), false};
inline constexpr CaptionColors dialogCaptionOn{onColor, rgb(31, 31, 31), false};
/// Of the toolbar.
inline constexpr CaptionColors toolbarCaption{offColor, rgb(255, 255, 192), true};
inline constexpr CaptionColors toolbarCaptionOn{onColor, rgb(31, 31, 31), true};

}  // namespace ormala
