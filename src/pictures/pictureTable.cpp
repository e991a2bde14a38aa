#include "pictures/pictureTable.h"

#include <array>
#include <cstddef>

namespace ormala {

namespace {

using enum Stroke;
using enum Ink;

// The worksheet, its modes and its tools.

constexpr Layer modeEdit[] = {
    {body, paper, "R 1 3 20 15"},
    {fill, accent, "R 1 3 13 15"},
    {line, ink, "R 1 3 20 15 M13 3L13 15"},
    {body, paper, "M7 23L8 18L18 8L22 12L12 22Z"},
    {line, ink, "M16 10L20 14"},
};
constexpr Layer modeTemplate[] = {
    {edged, accent, "M3 4L21 4L21 20L3 20L3 4 M14 4L14 20"},
};
constexpr Layer modePause[] = {
    {edged, paper, "M4 3L9 3L9 21L4 21Z M15 3L20 3L20 21L15 21Z"},
};
constexpr Layer templateAndMinimize[] = {
    {edged, accent, "M4 2L20 2L20 13L4 13L4 2 M14 2L14 13"},
    {edged, paper, "M4 20L20 20"},
};
constexpr Layer pauseAndMinimize[] = {
    {edged, paper, "M7 2L10 2L10 14L7 14Z M14 2L17 2L17 14L14 14Z"},
    {edged, paper, "M4 20L20 20"},
};
constexpr Layer addStencil[] = {
    {body, paper, "R 1 3 20 15"},
    {fill, accent, "R 1 3 13 15"},
    {line, ink, "R 1 3 20 15 M13 3L13 15"},
    {edged, accent, "M18 15L18 21 M15 18L21 18"},
};
constexpr Layer addMeasure[] = {
    {edged, paper, "M15 3L3 17L12 17"},
    {edged, accent, "M18 15L18 21 M15 18L21 18"},
};

// Sets of tools.

constexpr Layer newTools[] = {
    {body, paper, "M3 2L11 2L17 8L17 21L3 21Z"},
    {body, shade, "M11 2L11 8L17 8Z"},
    {edged, accent, "M18 15L18 21 M15 18L21 18"},
};
constexpr Layer loadTools[] = {
    {body, shade, "M2 20L2 4L9 4L11 7L19 7L19 20Z"},
    {body, accent, "M2 20L6 11L23 11L19 20Z"},
};
constexpr Layer saveTools[] = {
    {body, paper, "M3 3L18 3L21 6L21 21L3 21Z"},
    {fill, ink, "R 8 3 16 9"},
    {body, accent, "R 7 14 17 21"},
};
constexpr Layer saveToolsAs[] = {
    {body, paper, "M1 2L14 2L17 5L17 18L1 18Z"},
    {fill, ink, "R 5 2 13 7"},
    {body, accent, "R 5 12 13 18"},
    {body, paper, "M9 23L10 19L18 11L21 14L13 22Z"},
};
constexpr Layer screenShot[] = {
    {body, paper, "M2 7L7 7L9 4L15 4L17 7L22 7L22 20L2 20Z"},
    {body, accent, "O 12 13 4"},
};

// What is shown.

constexpr Layer lens[] = {
    {edged, paper, "M16 16L20 20", 3},
    {body, paper, "O 10 10 7"},
    {line, shade, "A 10 10 4 -10 100"},
};
constexpr Layer grid[] = {
    {body, paper, "R 3 3 21 21"},
    {line, ink, "M9 3L9 21 M15 3L15 21 M3 9L21 9 M3 15L21 15", 1.5},
};
constexpr Layer crossHair[] = {
    {edged, paper, "M12 2L12 8 M12 16L12 22 M2 12L8 12 M16 12L22 12"},
    {edged, accent, "M11 11L13 11L13 13L11 13Z"},
};
constexpr Layer referenceLines[] = {
    {body, paper, "R 7 8 20 18"},
    {edged, accent, "M7 2L7 22 M2 8L22 8"},
};
constexpr Layer circleCompass[] = {
    {edged, accent, "A 6 21 15 -45 45"},
    {edged, paper, "M12 5L6 21 M12 5L18 19"},
    {body, paper, "O 12 5 3"},
};
constexpr Layer worksheetWindow[] = {
    {body, shade, "R 7 2 22 14"},
    {body, paper, "R 2 8 17 21"},
    {fill, accent, "R 2 8 17 12"},
    {line, ink, "R 2 8 17 21 M2 12L17 12"},
};
constexpr Layer options[] = {
    {body, paper,
     "M19.4 10.3L22.5 10.5L22.5 13.5L19.4 13.7L18.4 16L20.5 18.4L18.4 20.5L16 18.4L13.7 19.4"
     "L13.5 22.5L10.5 22.5L10.3 19.4L8 18.4L5.6 20.5L3.5 18.4L5.6 16L4.6 13.7L1.5 13.5L1.5 10.5"
     "L4.6 10.3L5.6 8L3.5 5.6L5.6 3.5L8 5.6L10.3 4.6L10.5 1.5L13.5 1.5L13.7 4.6L16 5.6L18.4 3.5"
     "L20.5 5.6L18.4 8Z"},
    {body, hole, "O 12 12 3"},
};
constexpr Layer help[] = {
    {body, accent, "O 12 12 10"},
    {line, ink, "M8 9C8 4 16 4 16 9C16 12 12 11 12 14.5 M12 18L12 18", 2.5},
};

// Commands of a panel.

constexpr Layer hide[] = {
    {body, paper, "M1 12C6 3 18 3 23 12C18 21 6 21 1 12Z"},
    {fill, ink, "O 12 12 4"},
    {line, ink, "M4 20L20 4", 4.5},
    {line, accent, "M4 20L20 4"},
};
constexpr Layer show[] = {
    {body, paper, "M1 12C6 3 18 3 23 12C18 21 6 21 1 12Z"},
    {fill, ink, "O 12 12 4"},
};
constexpr Layer undo[] = {
    {edged, paper, "M8 8L14 8C22 8 22 19 14 19L8 19 M9 3L9 13L3 8Z"},
};
constexpr Layer remove[] = {
    {body, paper, "O 12 12 10"},
    {line, red, "M8 8L16 16 M16 8L8 16", 3.5},
};
constexpr Layer selectPattern[] = {
    {body, paper, "R 2 2 11 11 R 13 2 22 11 R 2 13 11 22"},
    {body, accent, "R 13 13 22 22"},
    {line, ink, "M8 2L8 11 M13 11L22 2 M2 17L11 17 M13 22C13 16 16 13 22 13", 1},
};
constexpr Layer color[] = {
    {body, accent, "M12 2C12 2 5 10 5 15C5 24 19 24 19 15C19 10 12 2 12 2Z"},
    {line, paper, "A 12 15 3.5 180 -90"},
};
constexpr Layer lineStyle[] = {
    {body, paper, "R 2 2 22 22"},
    {line, ink, "M6 7L6 7 M10 7L10 7 M14 7L14 7 M18 7L18 7 M6 12L18 12"},
    {line, ink, "M6 17L18 17", 3},
};
constexpr Layer defaultPlace[] = {
    {body, veil, "R 1 3 23 21"},
    {body, paper, "R 5 7 19 17"},
    {fill, accent, "R 5 7 13 17"},
    {line, ink, "R 5 7 19 17 M13 7L13 17"},
};
constexpr Layer fullSize[] = {
    {body, accent, "R 1 3 23 21"},
    {line, ink, "M7 9L17 15", 1.5},
    {fill, ink, "M4 6L12 6L4 14Z M20 18L12 18L20 10Z"},
};
constexpr Layer center[] = {
    {edged, paper,
     "M12 9L8 4L16 4Z M12 2L12 5 M12 15L16 20L8 20Z M12 22L12 19"
     "M9 12L4 16L4 8Z M2 12L5 12 M15 12L20 8L20 16Z M22 12L19 12"},
    {edged, accent, "M11 11L13 11L13 13L11 13Z"},
};
constexpr Layer editRatio[] = {
    {body, paper, "R 1 4 23 20"},
    {line, ink, "M5 8L9 8L9 16L5 16 M9 12L6 12 M19 8L15 8L15 12L19 12L19 16L15 16", 1.5},
    {line, ink, "M12 10L12 10 M12 14L12 14", 1.5},
};
constexpr Layer mouseAction[] = {
    {body, paper, "M2 8C2 0 14 0 14 8L14 13C14 21 2 21 2 13Z"},
    {fill, accent, "M2 8C2 4 5 2 8 2L8 8Z"},
    {line, ink, "M8 8L2 8C2 4 5 2 8 2L8 8 M8 8L14 8"},
    {edged, paper, "M15 15L19 19 M22 22L15 22L22 15Z"},
};
constexpr Layer rotateCounterclockwise[] = {
    {edged, paper, "A 12 13 8 -100 275 M5 7L11.5 10.5L8.5 1Z"},
    {edged, accent, "M9 11L15 11L15 15L9 15Z"},
};
constexpr Layer angleZero[] = {
    {edged, paper, "M8.5 4C2 4 2 20 8.5 20C15 20 15 4 8.5 4", 2.5},
    {edged, accent, "o 18.5 6 2.5"},
};
constexpr Layer moveLeft[] = {
    {edged, paper, "M11 4L3 12L11 20L11 14L21 14L21 10L11 10Z"},
};
constexpr Layer leftBorderLeft[] = {
    {edged, paper, "M21 4L14 4 M21 20L14 20"},
    {edged, accent, "M14 3L14 21", 2},
    {edged, paper, "M7 7L2 12L7 17Z M7 12L9 12"},
};
constexpr Layer leftBorderRight[] = {
    {edged, paper, "M21 4L4 4 M21 20L4 20"},
    {edged, accent, "M4 3L4 21", 2},
    {edged, paper, "M15 7L20 12L15 17Z M10 12L15 12"},
};
constexpr Layer decreaseWidth[] = {
    {edged, accent, "M11 4L13 4L13 20L11 20Z"},
    {edged, paper, "M4 7L8 12L4 17Z M2 12L4 12 M20 7L16 12L20 17Z M22 12L20 12"},
};
constexpr Layer increaseWidth[] = {
    {edged, accent, "M11 4L13 4L13 20L11 20Z"},
    {edged, paper, "M6 7L2 12L6 17Z M6 12L8 12 M18 7L22 12L18 17Z M18 12L16 12"},
};
constexpr Layer decreaseSize[] = {
    {edged, paper, "M2 2L6 6 M8 2L8 8L2 8Z M22 22L18 18 M16 22L16 16L22 16Z"},
    {edged, accent, "M11 11L13 11L13 13L11 13Z"},
};
constexpr Layer increaseSize[] = {
    {edged, paper, "M5 5L8 8 M2 2L9 2L2 9Z M19 19L16 16 M22 22L15 22L22 15Z"},
    {edged, accent, "M11 11L13 11L13 13L11 13Z"},
};

// Commands of a measurement.

constexpr Layer units[] = {
    {body, paper, "R 1 7 23 17"},
    {line, ink, "M4 8L4 12 M8 8L8 10 M12 8L12 12 M16 8L16 10 M20 8L20 12", 1.5},
};
constexpr Layer connectLines[] = {
    {edged, paper, "M3 20L12 6L21 20"},
    {body, accent, "O 12 6 4"},
};
constexpr Layer disconnectLines[] = {
    {edged, paper, "M2 20L6 6 M22 20L18 6"},
    {body, accent, "O 6 6 4 O 18 6 4"},
};
constexpr Layer showLengths[] = {
    {body, paper, "R 1 1 23 12"},
    {line, ink, "M5 4L5 9 M9 4L12 4L12 6.5L9 6.5L9 9L12 9 M16 4L19 4L19 9L16 9 M17 6.5L19 6.5",
     1.5},
    {edged, accent, "M3 16L3 22 M21 16L21 22 M3 19L21 19"},
};
constexpr Layer showAngles[] = {
    {edged, accent, "A 3 20 13 0 -45"},
    {edged, paper, "M16 4L3 20L21 20"},
};

// The device, and the program's sign.

constexpr Layer mouse[] = {
    {body, paper, "M5 9C5 -1 19 -1 19 9L19 15C19 25 5 25 5 15Z"},
    {line, ink, "M5 10L19 10 M12 2L12 10"},
};
// The icon's own lines, as `tools/make_icon --outlines` prints them.
constexpr Layer logo[] = {
    {fill, plate,
     "M4 0L20 0C23 0 24 1 24 4L24 20C24 23 23 24 20 24L4 24C1 24 0 23 0 20L0 4C0 1 1 0 4 0Z"},
    {fill, ink, "R 2.438 6.094 21.56 17.91"},
    {line, quiet,
     "M14.25 6.094L14.25 17.91 M14.25 13.41L21.56 13.41 M17.06 13.41L17.06 17.91"
     "M14.25 15.09L17.06 15.09 M15.94 13.41L15.94 15.09",
     0.2},
    {line, accent,
     "A14.25 17.91 11.81 -180 90 A14.25 13.41 7.312 -90 90 A17.06 13.41 4.5 0 90"
     "A17.06 15.09 2.812 90 90 A15.94 15.09 1.688 -180 90 A15.94 14.53 1.125 -90 90"
     "A16.5 14.53 0.5625 0 90",
     0.85},
    {line, frame,
     "M2.438 6.094L21.56 6.094 M21.56 6.094L21.56 17.91 M21.56 17.91L2.438 17.91"
     "M2.438 17.91L2.438 6.094",
     0.4},
};

constexpr std::array<Drawing, pictureCount> drawings = {{
    {modeEdit},
    {modeTemplate},
    {modePause},
    {templateAndMinimize},
    {pauseAndMinimize},
    {addStencil},
    {addMeasure},
    {newTools},
    {loadTools},
    {saveTools},
    {saveToolsAs},
    {screenShot},
    {lens},
    {grid},
    {crossHair},
    {referenceLines},
    {circleCompass},
    {worksheetWindow},
    {options},
    {help},
    {hide},
    {show},
    {undo},
    {undo, Turn::mirrored},
    {remove},
    {selectPattern},
    {color},
    {lineStyle},
    {defaultPlace},
    {fullSize},
    {center},
    {editRatio},
    {mouseAction},
    {rotateCounterclockwise},
    {rotateCounterclockwise, Turn::mirrored},
    {angleZero},
    {moveLeft},
    {moveLeft, Turn::half},
    {moveLeft, Turn::quarter},
    {moveLeft, Turn::threeQuarters},
    {leftBorderLeft},
    {leftBorderRight},
    {leftBorderRight, Turn::half},
    {leftBorderLeft, Turn::half},
    {leftBorderLeft, Turn::quarter},
    {leftBorderRight, Turn::quarter},
    {leftBorderRight, Turn::threeQuarters},
    {leftBorderLeft, Turn::threeQuarters},
    {decreaseWidth},
    {increaseWidth},
    {decreaseWidth, Turn::quarter},
    {increaseWidth, Turn::quarter},
    {decreaseSize},
    {increaseSize},
    {units},
    {connectLines},
    {disconnectLines},
    {showLengths},
    {showAngles},
    {mouse},
    {logo},
}};

}  // namespace

Drawing drawingOf(Picture picture) {
    return drawings.at(static_cast<std::size_t>(picture));
}

}  // namespace ormala
