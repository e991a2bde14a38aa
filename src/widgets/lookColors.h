#pragma once

#include "modAPI/drawingColors.h"

namespace ormala {

/// The colours of all windows of controls, by what they are for: in figures, and the role whose
/// colour of the system stands for them in high contrast.
namespace dark {
/// Of windows and panels, of the selected panel, and of fields for entering something.
inline constexpr Color ground = roleColor(rgb(96, 96, 96), ColorRole::window);
inline constexpr Color selectedGround = roleColor(rgb(74, 74, 74), ColorRole::window);
inline constexpr Color fieldGround = roleColor(rgb(74, 74, 74), ColorRole::window);
/// Of a field that is disabled, whose text the system draws in grey.
inline constexpr Color dimField = roleColor(rgb(64, 64, 64), ColorRole::window);
/// Behind pictures, and where the light falls.
inline constexpr Color liftedGround = roleColor(rgb(104, 104, 104), ColorRole::window);
inline constexpr Color toolbarTop = roleColor(rgb(124, 124, 124), ColorRole::window);
inline constexpr Color deepestEdge = roleColor(rgb(31, 31, 31), ColorRole::windowText);

/// Behind the heads of panels, at their darker ends, and of the selected one.
inline constexpr Color titleEnd = roleColor(rgb(31, 31, 31), ColorRole::window);
inline constexpr Color selectedTitle = roleColor(rgb(74, 74, 74), ColorRole::highlight);

/// Of texts and values, of headings, and of what is disabled.
inline constexpr Color text = roleColor(pictureInk::accent, ColorRole::windowText);
inline constexpr Color quietText = roleColor(rgb(255, 255, 192), ColorRole::windowText);
inline constexpr Color dimText = roleColor(rgb(150, 150, 150), ColorRole::grayText);

/// Of links, and of what throws a shadow on the ground.
inline constexpr Color link = roleColor(pictureInk::accent, ColorRole::hotlight);
inline constexpr Color textShadow = roleColor(rgb(64, 64, 64), ColorRole::window);

/// Of a button or a row that is on, of the text on it, and of one that is off.
inline constexpr Color on = roleColor(pictureInk::frame, ColorRole::highlight);
inline constexpr Color onText = roleColor(rgb(31, 31, 31), ColorRole::highlightText);
inline constexpr Color off = roleColor(rgb(112, 112, 112), ColorRole::buttonFace);
inline constexpr Color pressed = roleColor(rgb(84, 84, 84), ColorRole::buttonFace);

/// On what is off: a mark, a row of ribs, and the sign of a field that is disabled.
inline constexpr Color offMark = roleColor(pictureInk::accent, ColorRole::buttonText);
inline constexpr Color offRibs = roleColor(rgb(64, 64, 64), ColorRole::buttonText);
inline constexpr Color dimMark = roleColor(rgb(112, 112, 112), ColorRole::grayText);
/// Of a chosen row's text in a list of turns.
inline constexpr Color chosenRowText = roleColor(plain::black, ColorRole::highlightText);

inline constexpr Color outline = roleColor(rgb(64, 64, 64), ColorRole::windowText);
inline constexpr Color dimOutline = roleColor(rgb(84, 84, 84), ColorRole::grayText);
inline constexpr Color hoverMark = roleColor(rgb(225, 153, 71), ColorRole::highlight);
inline constexpr Color focusMark = roleColor(rgb(140, 170, 230), ColorRole::highlight);
inline constexpr Color dimGlyph = roleColor(rgb(128, 128, 128), ColorRole::grayText);

/// The buttons that leave the dialog of the patterns.
inline constexpr Color patternDialogButton = roleColor(rgb(128, 128, 128), ColorRole::buttonFace);
/// Behind the path line as long as it tells of no file.
inline constexpr Color litPathLine = roleColor(rgb(128, 128, 128), ColorRole::window);

// Of `ctlFrame`, whose quiet dark edge is an outline.
inline constexpr Color frameBright = roleColor(rgb(144, 144, 144), ColorRole::window);
inline constexpr Color goldenFrame = roleColor(rgb(43, 34, 0), ColorRole::windowText);
inline constexpr Color goldenFrameBright = roleColor(rgb(255, 234, 32), ColorRole::window);
inline constexpr Color goldenFrameDark = roleColor(rgb(144, 115, 0), ColorRole::window);

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
inline constexpr CaptionColors dialogCaption{roleColor(rgb(58, 58, 58), ColorRole::buttonFace),
                                             dark::text, false};
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
