#pragma once

#include "modAPI/drawingColors.h"

namespace ormala {

/// The colours of all windows of controls, by what they are for.
namespace dark {
/// Of windows and panels, of the selected panel, and of fields for entering something.
inline constexpr Color ground = rgb(96, 96, 96);
inline constexpr Color selectedGround = rgb(74, 74, 74);
inline constexpr Color fieldGround = rgb(74, 74, 74);
/// Of a field that is disabled, whose text the system draws in grey.
inline constexpr Color dimField = rgb(64, 64, 64);
/// Behind pictures, and where the light falls.
inline constexpr Color liftedGround = rgb(104, 104, 104);
inline constexpr Color toolbarTop = rgb(124, 124, 124);
inline constexpr Color deepestEdge = rgb(31, 31, 31);

/// Of texts and values, of headings, and of what is disabled.
inline constexpr Color text = pictureInk::accent;
inline constexpr Color quietText = rgb(255, 255, 192);
inline constexpr Color dimText = rgb(150, 150, 150);

/// Of a button or a row that is on, of the text on it, and of one that is off.
inline constexpr Color on = pictureInk::frame;
inline constexpr Color onText = rgb(31, 31, 31);
inline constexpr Color off = rgb(112, 112, 112);
inline constexpr Color pressed = rgb(84, 84, 84);

inline constexpr Color outline = rgb(64, 64, 64);
inline constexpr Color dimOutline = rgb(84, 84, 84);
inline constexpr Color hoverMark = rgb(225, 153, 71);
inline constexpr Color focusMark = rgb(140, 170, 230);
inline constexpr Color dimGlyph = rgb(128, 128, 128);

/// The buttons that leave the dialog of the patterns.
inline constexpr Color patternDialogButton = rgb(128, 128, 128);
/// Behind the path line as long as it tells of no file.
inline constexpr Color litPathLine = rgb(128, 128, 128);

// Of `ctlFrame`, whose quiet dark edge is an outline.
inline constexpr Color frameBright = rgb(144, 144, 144);
inline constexpr Color goldenFrame = rgb(43, 34, 0);
inline constexpr Color goldenFrameBright = rgb(255, 234, 32);
inline constexpr Color goldenFrameDark = rgb(144, 115, 0);

/// Lines on the scales of the magnifier that stand back.
inline constexpr Color quietScaleInk = rgb(128, 119, 38);
}  // namespace dark

/// A button's face and the caption on it, which stands out from every row behind it: the contrast
/// is at least 4.5 to 1.
struct CaptionColors {
    Color face;
    Color text;
    /// On a shaded face of that colour the contrast would be too little at the top.
    bool plane;
};

/// Of the buttons in dialogs, and of those that are on.
inline constexpr CaptionColors dialogCaption{rgb(58, 58, 58), dark::text, false};
inline constexpr CaptionColors dialogCaptionOn{dark::on, dark::onText, false};
/// Of the toolbar.
inline constexpr CaptionColors toolbarCaption{dark::off, dark::quietText, true};
inline constexpr CaptionColors toolbarCaptionOn{dark::on, dark::onText, true};

// The system colours that the controls start with, and grey marks for buttons without the
// program's own.
inline constexpr Color systemSelection = static_cast<Color>(0x8000000DU);
inline constexpr Color systemButtonFace = static_cast<Color>(0x8000000FU);
inline constexpr Color systemShadow = static_cast<Color>(0x80000010U);
inline constexpr Color systemButtonText = static_cast<Color>(0x80000012U);
inline constexpr Color systemHighlight = static_cast<Color>(0x80000014U);
inline constexpr Color plainPressMark = rgb(128, 128, 128);
inline constexpr Color plainHoverMark = rgb(192, 192, 192);

}  // namespace ormala
