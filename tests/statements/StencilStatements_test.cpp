#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "modAPI/constants.h"
#include "modAPI/rectangles.h"
#include "stencil/StencilOnSheet.h"
#include "support/HelpStatements.h"

// What the help says of the grips and the keys of a stencil.

namespace ormala {
namespace {

constexpr auto centreGrip = StencilGripKind::move;
constexpr auto roundGrip = StencilGripKind::rotate;
constexpr auto sideGrip = StencilGripKind::size;
constexpr auto cornerGrip = StencilGripKind::sizeCorner;

using ormala::shown;

std::string shown(const Point& point) {
    return shown(point.x) + ", " + shown(point.y);
}

double degrees(const StencilOnSheet& stage) {
    return stage.tool.RotationAngle() * 180 / pi;
}

Point centreOf(const StencilOnSheet& stage) {
    return RectCenter(stage.tool.RectBound());
}

/// 401 x 301 pixels about (500, 400).
struct MiddleStencil : StencilOnSheet {
    MiddleStencil() {
        tool.setRectBound({300, 250, 700, 550});
        tool.History().Add(true);
    }
    [[nodiscard]] std::string sides() const {
        const Rect& rect = tool.RectBound();
        return shown(rect.left) + " " + shown(rect.top) + " " + shown(rect.right) + " " +
               shown(rect.bottom);
    }
    [[nodiscard]] std::string size() const {
        const Rect& rect = tool.RectBound();
        return std::to_string(std::lround(PixelWidth(rect))) + " x " +
               std::to_string(std::lround(PixelHeight(rect)));
    }
    [[nodiscard]] std::string ratio() const {
        return FormatRatio(PixelRatio(tool.RectBound(), false), {".", {}});
    }
    /// Where the centre goes by a drag.
    std::string moved(const Point& by, int shift = 0) {
        const Point before = centreOf(*this);
        drag(centreGrip, 0, by, shift);
        const Point after = centreOf(*this);
        return shown({after.x - before.x, after.y - before.y});
    }
    /// The angle after a drag of a round grip along its circle.
    std::string turned(double byDegrees, int shift = 0) {
        const Point centre = centreOf(*this);
        const Point from = gripAt(roundGrip);
        const double angle =
            std::atan2(centre.y - from.y, from.x - centre.x) + byDegrees * pi / 180;
        const double radius = std::hypot(from.x - centre.x, from.y - centre.y);
        dragBy(from,
               {centre.x + std::cos(angle) * radius - from.x,
                centre.y - std::sin(angle) * radius - from.y},
               shift);
        // The mouse stands on whole pixels.
        return shown(shift == 0 ? std::round(degrees(*this)) : degrees(*this));
    }
    /// What the label says in the middle of a drag.
    std::string label(StencilGripKind kind, int number, const Point& by, int shift = 0) {
        const Point from = gripAt(kind, number);
        press(from, shift);
        dragTo({from.x + by.x, from.y + by.y}, shift);
        return withSingleBlanks(tool.aids().lblInfo().Caption());
    }
    std::string afterKey(int key, int shift = 0) {
        tool.keyDown(key, shift);
        return shown(centreOf(*this)) + " " + shown(degrees(*this));
    }
};

constexpr int right = 1;
constexpr int bottomRight = 1;

TEST(HelpStatements, OfTheCentreGrip) {
    expectHeld({
        {"Moves the stencil.", "a drag of the centre by 30 and -20",
         [] {
             return MiddleStencil().moved({30, -20});
         },
         "30, -20"},
        {"Moves it only in sixteen fixed directions, 22.5° apart, counted from where the drag "
         "began.",
         "Shift and a drag by 40 and 3, nearly to the right",
         [] {
             return MiddleStencil().moved({40, 3}, modifier::shift);
         },
         "40, 0"},
        {"So it stays exactly at one height or on one line.",
         "Shift and a drag by -3 and 40, nearly down",
         [] {
             return MiddleStencil().moved({-3, 40}, modifier::shift);
         },
         "0, 40"},
        {"The centre jumps from crossing to crossing of the grid, whether the grid is shown or "
         "not.",
         "Ctrl and a drag to the right by 37",
         [] {
             MiddleStencil stage;
             stage.drag(centreGrip, 0, {37, 0}, modifier::ctrl);
             return shown(centreOf(stage));
         },
         "550, 400"},
    });
}

TEST(HelpStatements, OfTheRoundGrips) {
    expectHeld({
        {"Rotates the stencil about its centre.", "a drag by 30°, and where the centre is then",
         [] {
             MiddleStencil stage;
             return stage.turned(30) + " at " + shown(centreOf(stage));
         },
         "30 at 500, 400"},
        {"Rotates it in steps of 9°, forty in a full turn.", "Ctrl and a drag by 20°",
         [] { return MiddleStencil().turned(20, modifier::ctrl); }, "18"},
        {"Rotates it in steps of 11.25°, thirty-two in a full turn.", "Shift and a drag by 20°",
         [] { return MiddleStencil().turned(20, modifier::shift); }, "22.5"},
        {"Rotates it in steps of 45°.", "Alt and a drag by 60°",
         [] { return MiddleStencil().turned(60, modifier::alt); }, "45"},
        {"Ctrl counts before Shift, and Shift before Alt.", "two keys at once and a drag by 20°",
         [] {
             return MiddleStencil().turned(20, modifier::ctrl | modifier::shift) + " " +
                    MiddleStencil().turned(20, modifier::shift | modifier::alt);
         },
         "18 22.5"},
        {"Angles count counter-clockwise.", "a drag of the grip at the upper right upwards",
         [] { return MiddleStencil().turned(10); }, "10"},
    });
}

TEST(HelpStatements, OfTheSideGrips) {
    expectHeld({
        {"Moves the side; the opposite one stays.", "a drag of the right side by 25",
         [] {
             MiddleStencil stage;
             stage.drag(sideGrip, right, {25, 0});
             return stage.sides();
         },
         "300 250 725.5 550"},
        {"Snaps to the nearest special ratio.", "Shift and a drag of the right side by 40",
         [] {
             MiddleStencil stage;
             stage.drag(sideGrip, right, {40, 0}, modifier::shift);
             return stage.size();
         },
         "451 x 301"},
        {"Moves both sides, symmetrically about the centre.",
         "Ctrl and a drag of the right side by 40",
         [] {
             MiddleStencil stage;
             stage.drag(sideGrip, right, {40, 0}, modifier::ctrl);
             return stage.size() + " at " + shown(centreOf(stage));
         },
         "442 x 301 at 500, 400"},
        {"Both: a special ratio, and the centre stays in its place.",
         "Shift and Ctrl and a drag of the right side by 40",
         [] {
             MiddleStencil stage;
             stage.drag(sideGrip, right, {40, 0}, modifier::shift | modifier::ctrl);
             return stage.size() + " at " + shown(centreOf(stage));
         },
         "451 x 301 at 500, 400"},
    });
}

TEST(HelpStatements, OfTheCornerGrips) {
    expectHeld({
        {"Changes the size and keeps the ratio; the opposite corner stays.",
         "a drag of the lower right corner by 100 and 75",
         [] {
             MiddleStencil stage;
             const std::string before = stage.ratio();
             stage.drag(cornerGrip, bottomRight, {100, 75});
             const Rect& rect = stage.tool.RectBound();
             return std::string(stage.ratio() == before ? "the same ratio, " : "another, ") +
                    (PixelWidth(rect) > 490 ? "larger, " : "as large, ") + shown(rect.left) + " " +
                    shown(rect.top);
         },
         "the same ratio, larger, 300 250"},
        {"Does the same symmetrically about the centre.",
         "Ctrl and a drag of the lower right corner by 100 and 75",
         [] {
             MiddleStencil stage;
             const std::string before = stage.ratio();
             stage.drag(cornerGrip, bottomRight, {100, 75}, modifier::ctrl);
             const bool larger = PixelWidth(stage.tool.RectBound()) > 590;
             return std::string(stage.ratio() == before ? "the same ratio, " : "another, ") +
                    (larger ? "larger, " : "as large, ") + shown(centreOf(stage));
         },
         "the same ratio, larger, 500, 400"},
        {"No side becomes shorter than about 22 pixels", "a drag of the right side past the left",
         [] {
             MiddleStencil stage;
             stage.drag(sideGrip, right, {-500, 0});
             return stage.size();
         },
         "23 x 301"},
    });
}

TEST(HelpStatements, OfTheLabel) {
    expectHeld({
        {"The position of the centre, such as X = 640 Y = 400", "a drag to that place",
         [] {
             return MiddleStencil().label(centreGrip, 0, {140, 0});
         },
         "X = 640 Y = 400"},
        {"The angle in degrees, 45.0°, and in radians, 0.785 rad.",
         "Alt and a drag of a round grip",
         [] {
             return MiddleStencil().label(roundGrip, 0, {-150, -60}, modifier::alt);
         },
         "45.0° 0.785 rad"},
        {"Width and height in pixels and their ratio, 780 x 520 ratio = 1.500, with the name of a "
         "special ratio below.",
         "Shift and a drag of the right side to that size",
         [] {
             MiddleStencil stage;
             stage.tool.setRectBound({100, 100, 859, 619});
             return stage.label(sideGrip, right, {19, 0}, modifier::shift);
         },
         "780 x 520 ratio = 1.500 3:2 (chemical photo)"},
        {"from pixel 10 to pixel 19 there are 10.", "the width of such a stencil",
         [] {
             return shown(PixelWidth({10, 0, 19, 9}));
         },
         "10"},
        {"The ratio is width divided by height, so that of an upright format lies below 1.",
         "the ratio of 300 x 400",
         [] {
             return shown(PixelRatio({0, 0, 299, 399}, false));
         },
         "0.75"},
    });
}

TEST(HelpStatements, OfTheKeysOfAStencil) {
    expectHeld({
        {"Move the stencil by 1 pixel.", "the right arrow key",
         [] { return MiddleStencil().afterKey(key::right); }, "501, 400 0"},
        {"Moves it one grid step further, onto a crossing of the grid.",
         "Ctrl and the right arrow key",
         [] { return MiddleStencil().afterKey(key::right, modifier::ctrl); }, "550, 400 0"},
        {"Brings the tool to the centre of the worksheet; with Shift, Ctrl or Alt to the nearest "
         "crossing of the grid.",
         "Home, and Alt and Home, on a worksheet of 1000 x 780",
         [] {
             MiddleStencil stage;
             stage.tool.resize({1000, 780});
             return stage.afterKey(key::home) + ", " + stage.afterKey(key::home, modifier::alt);
         },
         "500, 390 0, 500, 400 0"},
        {"Rotate the stencil by 1°, counter-clockwise or clockwise.", "Page Up, Page Down twice",
         [] {
             MiddleStencil stage;
             stage.afterKey(key::pageUp);
             const std::string up = shown(degrees(stage));
             stage.afterKey(key::pageDown);
             stage.afterKey(key::pageDown);
             return up + " " + shown(degrees(stage));
         },
         "1 359"},
        {"To the next multiple of 9°.", "Ctrl and Page Up from 1°",
         [] {
             MiddleStencil stage;
             stage.afterKey(key::pageUp);
             stage.afterKey(key::pageUp, modifier::ctrl);
             return shown(degrees(stage));
         },
         "9"},
        {"To the next multiple of 11.25°.", "Shift and Page Up from 1°",
         [] {
             MiddleStencil stage;
             stage.afterKey(key::pageUp);
             stage.afterKey(key::pageUp, modifier::shift);
             return shown(degrees(stage));
         },
         "11.25"},
        {"By 0.1°.", "Alt and Page Up",
         [] {
             MiddleStencil stage;
             stage.afterKey(key::pageUp, modifier::alt);
             return shown(degrees(stage));
         },
         "0.1"},
    });
}

/// What a drag with that key snaps to.
std::string snapsTo(int shift) {
    MiddleStencil stage;
    const auto kind = shift == modifier::shift ? sideGrip : centreGrip;
    const Point from = stage.gripAt(kind, 1);
    stage.press(from, shift);
    const std::string pressed = withSingleBlanks(stage.tool.aids().lblInfo().Caption());
    stage.dragTo({from.x + 12, from.y + 12}, shift);
    return std::string(stage.tool.aids().ring().face() ? "ring, " : "no ring, ") + pressed;
}

TEST(HelpStatements, OfWhatADragSnapsTo) {
    expectHeld({
        {"with Ctrl a ring lies around the crossing of the grid, and with Shift at a side the "
         "label names the special ratio that is nearest, from the press on.",
         "a drag of the centre with Ctrl, and a press at a side of 401 x 301 with Shift",
         [] { return snapsTo(modifier::ctrl) + "; " + snapsTo(modifier::shift); },
         "ring, ; no ring, 401 x 301 ratio = 1.332 4:3 (digital photo, TV, monitor)"},
        {"Mit Strg liegt ein Ring um die Kreuzung des Rasters, und mit Umschalt an einer Seite "
         "nennt die Beschriftung vom Drücken an das nächste besondere Verhältnis.",
         "a drag of the centre without a key", [] { return snapsTo(0); }, "no ring, "},
    });
}

TEST(HelpStatements, OfAWorksheetThatIsResized) {
    expectHeld({
        {"the tools keep their size and their distance from the top left corner of the worksheet.",
         "a worksheet of 1000 x 800 becomes one of 400 x 300, and large again",
         [] {
             MiddleStencil stage;
             stage.tool.resize({400, 300});
             const std::string small = stage.sides();
             stage.tool.resize({1000, 800});
             return small == stage.sides() ? small : "changed";
         },
         "300 250 700 550"},
    });
}

}  // namespace
}  // namespace ormala
