#pragma once

#include <string>

#include "widgets/lookColors.h"

namespace ormala {

/// Of a button with a caption in one line, in pixels at 96 DPI.
inline constexpr int textButtonHeight = 24;

/// What tells the kind and the state of a button without any colour: a box with a tick in it while
/// the button is on, or a lamp that is lit.
enum class ButtonSign { none, tick, lamp };

/// What becomes of a button's picture in high contrast: a drawing in light and dark is shown in the
/// colours of the button, mere lines in that of its text, and what shows what the user measures
/// with stays what it is.
enum class PictureKind { drawing, lines, preview };

/// How a button is to look, as its owner has set it. Colours may be system colours; lengths are
/// pixels at 96 DPI.
struct ButtonDesign {
    /// UTF-8; a letter after "&" is the access key.
    std::string Caption;
    /// Of the picture: 0 above the text, 1 left of it, 2 right of it, 3 below it.
    int PicturePosition = 1;
    /// 1 is flat, 2 a shaded face with round corners; any other paints no face.
    int ButtonStyle = 2;
    int PictureWidth = 32;
    int PictureHeight = 32;
    /// Only style 1 has a focus rectangle; style 2 marks the focus on its face.
    bool ShowFocusRect = true;
    /// The marks of focus and hover, for a button without `XPDefaultColors`.
    Color XPColor_Pressed = plainPressMark;
    Color XPColor_Hover = plainHoverMark;
    bool XPDefaultColors = true;
    Color BackColor = systemButtonFace;
    Color ForeColor = systemButtonText;
    /// Shows the picture in grey while the mouse is not over the button.
    bool GreyPicture = false;
    PictureKind Kind = PictureKind::drawing;
    /// A face without gradient.
    bool PlaneFace = false;
    bool UseCornerStyle = true;
    /// 0 all corners round, 1 the left ones, 2 the right ones, 3 none: two neighbours form one bar.
    int CornerStyle = 0;
    /// Stands at the left end of the face.
    ButtonSign Sign = ButtonSign::none;
    /// Has no edge at the bottom, so that it is one with what lies below.
    bool OpenBelow = false;
};

}  // namespace ormala
