#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <string>
#include <vector>

#include "e2e/PanelScene.h"

namespace ormala::test {
namespace {

constexpr Color dark = 0x4F4F4F;
constexpr Color white = 0xFFFFFF;
constexpr Color red = 0x0000FF;
constexpr Color brightGreen = 0x00FF00;
constexpr Color darkGreen = 0x007F00;

/// One stencil, far from the part of the sheet that the tests look at.
const SettingsFile oneStencil = ToolSet().stencil({650, 350, 750, 430}).file();

std::string number(int value) {
    return (value < 0 ? "" : " ") + std::to_string(value);
}

struct GridKeys {
    int style = 2;
    int lineWidth = 2;
    int stepX = 40;
    int stepY = 30;
    int offsetX = 7;
    int offsetY = 9;
};

/// An opaque worksheet, so that its colours are those on the screen.
SettingsFile opaqueSheet(Color color = dark) {
    SettingsFile options;
    options.set("Options", "TransparencyEditMode", " 0");
    options.set("Options", "TransparencyTemplateMode", " 0");
    options.set("Options", "WorksheetColor", number(static_cast<int>(color)));
    return options;
}

SettingsFile withGrid(const GridKeys& keys) {
    SettingsFile options = opaqueSheet();
    options.set("Options", "GridEnabled", "-1");
    options.set("Options", "GridStyle", number(keys.style));
    options.set("Options", "GridLineWidth", number(keys.lineWidth));
    options.set("Options", "GridColor", number(red));
    options.set("Options", "GridSizeX", number(keys.stepX));
    options.set("Options", "GridSizeY", number(keys.stepY));
    options.set("Options", "GridOffsetX", number(keys.offsetX));
    options.set("Options", "GridOffsetY", number(keys.offsetY));
    return options;
}

SettingsFile withCrossHair() {
    SettingsFile options = opaqueSheet();
    options.set("Options", "CrossHairEnabled", "-1");
    return options;
}

/// The part of the sheet that the tests look at.
ScreenRect lookedAt(const PanelScene& scene) {
    const ScreenPoint origin = scene.onScreen({0, 0});
    return {origin.x, origin.y, origin.x + 420, origin.y + 300};
}

/// What the sheet shows there, with the mouse aside.
Picture picture(PanelScene& scene) {
    scene.mouse.moveTo(scene.onScreen({560, 40}));
    return screen::waitUntilStill(lookedAt(scene));
}

/// Compares each pixel, by its place on the sheet, with what is expected there.
void expectPixels(const Picture& seen, const std::function<Color(int, int)>& expected) {
    int wrong = 0;
    for (int y = 0; y < seen.rect().height(); ++y) {
        for (int x = 0; x < seen.rect().width(); ++x) {
            const Color now = seen.at(seen.rect().origin() + ScreenPoint{x, y});
            if (now != expected(x, y) && wrong++ == 0) {
                ADD_FAILURE() << ShownColor{now} << " instead of " << ShownColor{expected(x, y)}
                              << " at " << x << ", " << y;
            }
        }
    }
    EXPECT_EQ(wrong, 0);
}

bool inStroke(int lineWidth, int along) {
    return lineWidth >= 2 || (lineWidth == 0 ? along % 6 < 3 : along % 24 < 18);
}

/// Whether a place lies in one of the lines of a width, from the first one on.
bool inLine(int place, int offset, int step, int width) {
    const int sinceFirst = place - (offset - width / 2);
    return sinceFirst >= 0 && sinceFirst % step < width;
}

TEST(WorksheetAids, GridHasTheLinesOfItsWidthAtItsStepsFromItsOrigin) {
    for (const int lineWidth : {0, 1, 2, 4}) {
        const GridKeys keys{2, lineWidth};
        PanelScene scene(oneStencil, withGrid(keys));
        const int width = lineWidth < 2 ? 1 : lineWidth - 1;
        expectPixels(picture(scene), [&](int x, int y) {
            const bool down = inLine(x, keys.offsetX, keys.stepX, width) && inStroke(lineWidth, y);
            const bool along = inLine(y, keys.offsetY, keys.stepY, width) && inStroke(lineWidth, x);
            return down || along ? red : dark;
        });
    }
}

TEST(WorksheetAids, GridOfPointsKnowsNoDottedStyle) {
    const GridKeys keys{1, 0};
    PanelScene scene(oneStencil, withGrid(keys));
    expectPixels(picture(scene), [&](int x, int y) {
        return inLine(x, keys.offsetX, keys.stepX, 1) && inLine(y, keys.offsetY, keys.stepY, 1)
                   ? red
                   : dark;
    });
}

TEST(WorksheetAids, GridOfNoStyleDrawsNothingAndStaysOn) {
    PanelScene scene(oneStencil, withGrid({0, 2}));
    expectPixels(picture(scene), [](int, int) { return dark; });
    EXPECT_EQ(scene.program().close(), 0U);
    const SettingsFile kept = SettingsFile::read(scene.data().optionsFile());
    EXPECT_EQ(kept.value("Options", "GridEnabled"), "-1");
    EXPECT_EQ(kept.value("Options", "GridStyle"), " 0");
}

TEST(WorksheetAids, GridStaysVisibleInTemplateModeAndItsGroundIsGone) {
    const GridKeys keys{2, 2, 200, 150};
    SettingsFile options = withGrid(keys);
    options.set("Options", "Mode", " 1");
    PanelScene scene(oneStencil, options);
    expectPixels(picture(scene), [&](int x, int y) {
        return inLine(x, keys.offsetX, keys.stepX, 1) || inLine(y, keys.offsetY, keys.stepY, 1)
                   ? red
                   : white;
    });
}

TEST(WorksheetAids, ToolsSnapToTheStepAndOriginOfTheGrid) {
    PanelScene scene(oneStencil, withGrid({2, 2}));
    // From the centre at (700, 390) to beside the crossing of 7 + 19 * 40 and 9 + 12 * 30.
    scene.mouse.drag(scene.onScreen({700, 390}), scene.onScreen({757, 367}), 8, Modifiers::Ctrl);
    EXPECT_EQ(scene.program().close(), 0U);
    const SettingsFile kept = SettingsFile::read(scene.data().toolsFile());
    EXPECT_EQ(kept.number("Tool 1", "RectBoundLeft"), 767 - 50);
    EXPECT_EQ(kept.number("Tool 1", "RectBoundRight"), 767 + 50);
    EXPECT_EQ(kept.number("Tool 1", "RectBoundTop"), 369 - 40);
    EXPECT_EQ(kept.number("Tool 1", "RectBoundBottom"), 369 + 40);
}

DesktopWindow lineOf(PanelScene& scene, std::string_view name) {
    for (const DesktopWindow& window : topLevelWindows(scene.program().process().id())) {
        if (window.className() == "frmCrossHair" && window.name() == name) {
            return window;
        }
    }
    return {};
}

/// Waits for the cross hair of a cursor, each of its lines shown or not.
void expectCrossHair(PanelScene& scene, ScreenPoint cursor, bool along, bool down) {
    scene.mouse.moveTo(cursor);
    const ScreenRect sheet = scene.worksheet().rect();
    DesktopWindow x;
    DesktopWindow y;
    EXPECT_TRUE(waitUntil([&] {
        x = lineOf(scene, "CrossHairX");
        y = lineOf(scene, "CrossHairY");
        return x.rect() == ScreenRect{sheet.left, cursor.y, sheet.right, cursor.y + 1} &&
               y.rect() == ScreenRect{cursor.x, sheet.top, cursor.x + 1, sheet.bottom} &&
               x.isVisible() == along && y.isVisible() == down;
    })) << cursor
        << (x.isVisible() ? ", a horizontal" : ", no horizontal")
        << (y.isVisible() ? " and a vertical line" : " and no vertical line");
}

TEST(WorksheetAids, CrossHairIsFaintAndOnePixelWide) {
    PanelScene scene(oneStencil, withCrossHair());
    expectCrossHair(scene, scene.onScreen({300, 200}), true, true);
    const Picture seen = screen::waitUntilStill(lookedAt(scene));
    const auto at = [&](int x, int y) { return seen.at(scene.onScreen({x, y})); };
    const Color faint = blended(0, dark, 84);
    EXPECT_LE(channelDifference(at(100, 200), faint), 2) << ShownColor{at(100, 200)};
    EXPECT_LE(channelDifference(at(300, 50), faint), 2) << ShownColor{at(300, 50)};
    for (const int beside : {-1, 1}) {
        EXPECT_EQ(at(100, 200 + beside), dark);
        EXPECT_EQ(at(300 + beside, 50), dark);
    }
}

TEST(WorksheetAids, CrossHairLosesTheLineWhoseAxisTheMouseHasLeft) {
    PanelScene scene(oneStencil, withCrossHair());
    const ScreenRect sheet = scene.worksheet().rect();
    const int x = sheet.left + 300;
    const int y = sheet.top + 200;
    // Above the sheet but within its width, on the title bar, the vertical line stays.
    expectCrossHair(scene, {x, sheet.top - 12}, false, true);
    expectCrossHair(scene, {x, y}, true, true);
    expectCrossHair(scene, {sheet.left - 20, y}, true, false);
    expectCrossHair(scene, {sheet.left - 20, sheet.bottom + 20}, false, false);
}

TEST(WorksheetAids, EdgesOfTheSheetCountAsInsideForTheCrossHair) {
    PanelScene scene(oneStencil, withCrossHair());
    const ScreenRect sheet = scene.worksheet().rect();
    expectCrossHair(scene, {sheet.left, sheet.top}, true, true);
    expectCrossHair(scene, {sheet.left + 300, sheet.bottom}, true, true);
    expectCrossHair(scene, {sheet.left + 300, sheet.bottom + 1}, false, true);
}

TEST(WorksheetAids, CrossHairTakesNoClick) {
    PanelScene scene(oneStencil, withCrossHair());
    scene.mouse.drag(scene.onScreen({700, 390}), scene.onScreen({640, 300}));
    EXPECT_EQ(scene.program().close(), 0U);
    const SettingsFile kept = SettingsFile::read(scene.data().toolsFile());
    EXPECT_EQ(kept.number("Tool 1", "RectBoundLeft"), 650 - 60);
    EXPECT_EQ(kept.number("Tool 1", "RectBoundTop"), 350 - 90);
}

/// The pixels of the row of the press that have a colour, as distances from it.
std::vector<int> distancesInRow(PanelScene& scene, ScreenPoint press, Color color) {
    const Picture seen = screen::waitUntilStill(lookedAt(scene));
    std::vector<int> found;
    for (int x = 0; x < seen.rect().width(); ++x) {
        if (seen.at({seen.rect().left + x, scene.onScreen(press).y}) == color) {
            found.push_back(x - press.x);
        }
    }
    return found;
}

std::size_t greens(const PanelScene& scene) {
    const Picture seen = screen::waitUntilStill(lookedAt(scene));
    return seen.count(brightGreen) + seen.count(darkGreen);
}

TEST(WorksheetAids, CompassShowsNothingUpTo12PixelsAndBothCirclesWithTheCentreAt13) {
    PanelScene scene(oneStencil, opaqueSheet());
    constexpr ScreenPoint press{200, 150};
    scene.mouse.moveTo(scene.onScreen(press));
    scene.mouse.press();
    scene.mouse.moveTo(scene.onScreen({212, 150}));
    EXPECT_EQ(greens(scene), 0U);
    scene.mouse.moveTo(scene.onScreen({213, 150}));
    EXPECT_EQ(distancesInRow(scene, press, brightGreen), (std::vector<int>{-13, -8, -1, 1, 8, 13}));
    EXPECT_EQ(distancesInRow(scene, press, darkGreen), std::vector<int>{0});
    scene.mouse.release();
    EXPECT_EQ(greens(scene), 0U);
}

TEST(WorksheetAids, CompassHasTheMouseOnOneCircleAndItsGoldenSectionOnTheOther) {
    PanelScene scene(oneStencil, opaqueSheet());
    constexpr ScreenPoint press{200, 150};
    scene.mouse.moveTo(scene.onScreen(press));
    scene.mouse.press();
    for (const ScreenPoint by : {ScreenPoint{60, 80}, ScreenPoint{-140, 20}, ScreenPoint{3, 41}}) {
        scene.mouse.moveTo(scene.onScreen(press + by));
        const double distance = std::hypot(by.x, by.y);
        const int outer = static_cast<int>(std::floor(distance + 0.5));
        const int inner = static_cast<int>(std::floor(0.6180339887498949 * distance + 0.5));
        EXPECT_EQ(distancesInRow(scene, press, brightGreen),
                  (std::vector<int>{-outer, -inner, -1, 1, inner, outer}));
    }
    scene.mouse.release();
}

TEST(WorksheetAids, CompassIsDarkGreenOnWhite) {
    PanelScene scene(oneStencil, opaqueSheet(white));
    constexpr ScreenPoint press{200, 150};
    scene.mouse.moveTo(scene.onScreen(press));
    scene.mouse.press();
    scene.mouse.moveTo(scene.onScreen({200, 200}));
    EXPECT_EQ(distancesInRow(scene, press, darkGreen), (std::vector<int>{-50, -31, -1, 1, 31, 50}));
    EXPECT_EQ(distancesInRow(scene, press, brightGreen), std::vector<int>{0});
    scene.mouse.release();
}

TEST(WorksheetAids, APressOnAToolStartsNoCompass) {
    PanelScene scene(ToolSet().stencil({150, 100, 250, 200}).file(), opaqueSheet());
    scene.mouse.moveTo(scene.onScreen({200, 150}));
    scene.mouse.press();
    scene.mouse.moveTo(scene.onScreen({240, 160}));
    scene.mouse.moveTo(scene.onScreen({300, 180}));
    EXPECT_EQ(greens(scene), 0U);
    scene.mouse.release();
    EXPECT_EQ(scene.program().close(), 0U);
    const SettingsFile kept = SettingsFile::read(scene.data().toolsFile());
    EXPECT_EQ(kept.number("Tool 1", "RectBoundLeft"), 250) << "the tool was dragged";
}

TEST(WorksheetAids, TemplateModeHasNeitherCompassNorCrossHair) {
    SettingsFile options = withCrossHair();
    options.set("Options", "Mode", " 1");
    PanelScene scene(oneStencil, options);
    scene.mouse.moveTo(scene.onScreen({200, 150}));
    scene.mouse.press();
    scene.mouse.moveTo(scene.onScreen({300, 180}));
    expectPixels(screen::waitUntilStill(lookedAt(scene)), [](int, int) { return white; });
    scene.mouse.release();
    EXPECT_FALSE(lineOf(scene, "CrossHairX").isVisible());
    EXPECT_FALSE(lineOf(scene, "CrossHairY").isVisible());
    EXPECT_EQ(scene.backdrop().report().leftDown, 1) << "the press is the program's below";
}

}  // namespace
}  // namespace ormala::test
