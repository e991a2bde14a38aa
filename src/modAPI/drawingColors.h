#pragma once

#include <array>

#include "modAPI/colors.h"

namespace ormala {

// The colours of all that is drawn but the windows of controls, which have a table of their own in
// `widgets/lookColors.h`. No other file has a colour in figures.

namespace plain {
inline constexpr Color black = rgb(0, 0, 0);
inline constexpr Color white = rgb(255, 255, 255);
}  // namespace plain

/// Of the pictures on buttons.
namespace pictureInk {
inline constexpr Color ink = rgb(40, 40, 40);
inline constexpr Color paper = rgb(235, 235, 235);
/// Paper that lies away from the light.
inline constexpr Color shade = rgb(168, 168, 168);
inline constexpr Color accent = rgb(255, 230, 0);
/// For removing only.
inline constexpr Color red = rgb(200, 60, 40);
// Of the program's sign alone.
inline constexpr Color plate = rgb(88, 88, 88);
inline constexpr Color frame = rgb(187, 168, 0);
inline constexpr Color quiet = rgb(135, 122, 20);
}  // namespace pictureInk

/// What a first start and new tools begin with; the user changes it.
namespace firstColor {
/// Handed out in this order; see `ToolColors`.
inline constexpr std::array<Color, 12> tools = {
    rgb(255, 159, 0),   rgb(0, 191, 191),   rgb(255, 0, 255),   rgb(0, 191, 0),
    rgb(0, 0, 255),     rgb(255, 0, 0),     rgb(127, 127, 0),   rgb(180, 0, 255),
    rgb(255, 127, 127), rgb(127, 176, 255), rgb(125, 125, 125), rgb(212, 212, 212),
};
inline constexpr Color worksheet = rgb(79, 79, 79);
inline constexpr Color backgroundGrid = rgb(125, 125, 125);
inline constexpr Color lensMark = rgb(0, 0, 255);
inline constexpr Color lensGrid = rgb(191, 191, 191);
}  // namespace firstColor

/// Of a tool whose colour is missing in its file.
namespace missingColor {
inline constexpr Color stencil = rgb(0, 255, 255);
inline constexpr Color lineA = rgb(0, 0, 255);
inline constexpr Color lineB = rgb(255, 0, 0);
}  // namespace missingColor

/// A grip at rest and pressed, or its body and its edge.
struct GripColors {
    Color pale;
    Color strong;
};

/// What lies on the worksheet besides the lines of the tools.
namespace sheetColor {
/// Keyed out of the frame: the hole in which the worksheet lies.
inline constexpr Color frameKey = rgb(192, 192, 192);
inline constexpr Color compassOnDark = rgb(0, 255, 0);
inline constexpr Color compassOnBright = rgb(0, 127, 0);
/// Of a grip whose tool is not selected, and of a stencil's before it is known.
inline constexpr Color quietGripEdge = rgb(191, 191, 191);
inline constexpr Color stencilGripEdge = rgb(200, 200, 200);

inline constexpr GripColors moveGrip{rgb(255, 224, 192), rgb(255, 128, 0)};
inline constexpr GripColors rotateGrip{rgb(192, 255, 255), rgb(0, 192, 192)};
inline constexpr GripColors sideGrip{rgb(255, 255, 128), rgb(221, 221, 0)};
/// Of the stencil's right side.
inline constexpr GripColors rightGrip{rgb(255, 192, 192), rgb(255, 128, 128)};
inline constexpr GripColors cornerGrip{rgb(192, 255, 192), rgb(0, 225, 0)};

inline constexpr GripColors lineAGrip{rgb(128, 128, 255), rgb(0, 15, 255)};
inline constexpr GripColors lineBGrip{rgb(255, 128, 128), rgb(255, 0, 0)};
inline constexpr GripColors crossingGrip{rgb(225, 136, 255), rgb(191, 0, 255)};

/// The button of the mouse that shows how to place a stencil.
inline constexpr Color pressedMouseButton = rgb(255, 128, 0);
}  // namespace sheetColor

/// The pens of the magnifier that hide the chosen colour.
namespace lensPen {
inline constexpr Color exclusive = rgb(31, 31, 31);
inline constexpr Color restrainedMark = rgb(192, 192, 192);
inline constexpr Color restrainedGrid = rgb(239, 239, 239);
inline constexpr Color brightened = rgb(63, 63, 63);
}  // namespace lensPen

}  // namespace ormala
