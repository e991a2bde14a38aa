#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "measure/MeasureOnSheet.h"
#include "modAPI/angles.h"
#include "modAPI/constants.h"
#include "modAPI/textForms.h"
#include "support/HelpStatements.h"

// What the help says of the measuring tool.

namespace ormala {
namespace {

using enum MeasureGrip;

using ormala::shown;

std::string shownLine(const Line& line) {
    return shown(line.x1) + "," + shown(line.y1) + " " + shown(line.x2) + "," + shown(line.y2);
}

std::string linesOf(const MeasureOnSheet& stage) {
    return shownLine(stage.tool.LineA()) + " | " + shownLine(stage.tool.LineB());
}

/// Line a to the right, from its free end on (400, 400) to the common point (500, 400); line b up.
struct LevelAndUpright : MeasureOnSheet {
    explicit LevelAndUpright(bool connected = true) : MeasureOnSheet(sheet, connected) {
        tool.setLineA({400, 400, 500, 400});
        tool.setLineB({500, 250, 500, connected ? 400.0 : 350.0});
    }
};

std::string afterDrag(MeasureGrip grip, const Point& by, int shift = 0, bool connected = true) {
    LevelAndUpright stage(connected);
    stage.drag(grip, by, shift);
    return linesOf(stage);
}

TEST(HelpStatements, OfTheEndsOfLines) {
    expectHeld({
        {"Moves this end by whole pixels.", "a drag of the free end of a by -10 and 7",
         [] {
             return afterDrag(endA1, {-10, 7});
         },
         "390,407 500,400 | 500,250 500,400"},
        {"The line keeps its direction and changes only its length.",
         "Shift and a drag of the free end of a by -40 and 30",
         [] {
             return afterDrag(endA1, {-40, 30}, modifier::shift);
         },
         "356.82,400 500,400 | 500,250 500,400"},
        {"Joins an end of another visible measuring tool that is less than 8 pixels away; a "
         "ring lies around it.",
         "Alt and a drag to 7 pixels from one, and to 8 from another",
         [] {
             std::string all;
             for (const double distance : {7.0, 8.0}) {
                 LevelAndUpright stage;
                 stage.others.ends = {{350 - distance, 420}};
                 stage.drag(endA1, {-50, 20}, modifier::alt);
                 all += shown(stage.tool.LineA().x1) + " ";
             }
             return all;
         },
         "343 350 "},
    });
}

TEST(HelpStatements, OfTheMiddles) {
    expectHeld({
        {"Moves the whole tool.", "a drag of the common point by 20 and 10",
         [] {
             return afterDrag(intersect, {20, 10});
         },
         "420,410 520,410 | 520,260 520,410"},
        {"Moves it in sixteen fixed directions.",
         "Shift and a drag of the common point by 40 and 3",
         [] {
             return afterDrag(intersect, {40, 3}, modifier::shift);
         },
         "440,400 540,400 | 540,250 540,400"},
        {"Moves it onto the grid.", "Ctrl and a drag of the common point by 30 and 10",
         [] {
             return afterDrag(intersect, {30, 10}, modifier::ctrl);
         },
         "450,400 550,400 | 550,250 550,400"},
        {"Joins a near end of another measuring tool.",
         "Alt and a drag of the common point to 5 pixels from one",
         [] {
             LevelAndUpright stage;
             stage.others.ends = {{535, 430}};
             stage.drag(intersect, {30, 30}, modifier::alt);
             return linesOf(stage);
         },
         "435,430 535,430 | 535,280 535,430"},
        {"Moves this line; the other one stays.", "a drag of the middle of a by 5 and 6",
         [] {
             return afterDrag(centerA, {5, 6}, 0, false);
         },
         "405,406 505,406 | 500,250 500,350"},
    });
}

TEST(HelpStatements, OfWhatIsMeasured) {
    expectHeld({
        {"Of line a and of line b, both end pixels included: from pixel 10 to pixel 19 is 10.",
         "such a line",
         [] {
             MeasureOnSheet stage;
             stage.tool.setLineA({10, 50, 19, 50});
             return shown(stage.tool.PixelLengthA());
         },
         "10"},
        {"a divided by b, and b divided by a.", "lines of 100 and 50 pixels",
         [] {
             MeasureOnSheet stage;
             stage.tool.setLineA({400, 400, 499, 400});
             stage.tool.setLineB({499, 351, 499, 400});
             return shown(stage.tool.RatioAToB()) + " " + shown(stage.tool.RatioBToA());
         },
         "2 0.5"},
        {"From a to b counter-clockwise, and the rest of the full turn.",
         "a to the left of the common point, b above it",
         [] {
             LevelAndUpright stage;
             return shown(stage.tool.AngleAToB() * 180 / pi) + " " +
                    shown(stage.tool.AngleBToA() * 180 / pi);
         },
         "270 90"},
        {"Of each line to the vertical, from 0° to 90°", "a level line and an upright one",
         [] {
             LevelAndUpright stage;
             return shown(stage.tool.AngleVertA() * 180 / pi) + " " +
                    shown(stage.tool.AngleVertB() * 180 / pi);
         },
         "90 0"},
        {"They share an end: the second end of b jumps to that of a.", "separate lines, connected",
         [] {
             LevelAndUpright stage(false);
             stage.tool.setConnected(true);
             return linesOf(stage);
         },
         "400,400 500,400 | 500,250 500,400"},
    });
}

TEST(HelpStatements, OfUnits) {
    const auto lengthOfB = [](int mode, double factor, const char* unit) {
        MeasureOnSheet stage;
        stage.tool.setLineA({400, 400, 499, 400});
        stage.tool.setLineB({499, 201, 499, 400});
        return FormatLength(stage.tool.PixelLengthB(), mode, factor, unit,
                            stage.tool.PixelLengthA(), {".", {}});
    };
    expectHeld({
        {"Lengths in pixels of the screen.", "a line of 200 pixels",
         [=] { return lengthOfB(0, 5, "m"); }, "200.0"},
        {"type how much one pixel is, and the name of the unit.", "1 pixel = 0.25 m",
         [=] { return lengthOfB(1, 0.25, "m"); }, "50.0 m"},
        {"Line b is then measured in it.", "line a of 100 pixels = 5 m, line b of 200",
         [=] { return lengthOfB(2, 5, "m"); }, "10.0 m"},
        {"if you change “m” to “km”, the number stays.", "the same with km",
         [=] { return lengthOfB(2, 5, "km"); }, "10.0 km"},
    });
}

TEST(HelpStatements, OfTheKeysOfAMeasuringTool) {
    expectHeld({
        {"Brings the tool to the centre of the worksheet;", "Home from elsewhere",
         [] {
             LevelAndUpright stage;
             stage.tool.keyDown(key::home, 0);
             return linesOf(stage);
         },
         "400,400 500,400 | 500,250 500,400"},
        {"The ends of a measuring tool have no keys of their own.",
         "the arrow keys and those that rotate",
         [] {
             LevelAndUpright stage;
             const std::string before = linesOf(stage);
             for (const int each :
                  {key::left, key::up, key::right, key::down, key::pageUp, key::pageDown}) {
                 stage.tool.keyDown(each, 0);
             }
             return linesOf(stage) == before ? "nothing moved" : linesOf(stage);
         },
         "nothing moved"},
    });
}

}  // namespace
}  // namespace ormala
