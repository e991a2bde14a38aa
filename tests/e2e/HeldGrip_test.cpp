#include <gtest/gtest.h>

#include <algorithm>
#include <array>

#include "e2e/PanelScene.h"
#include "e2e/withKeys.h"

// Arrow keys while the mouse holds a grip, and what a drag snaps to.

namespace ormala::test {
namespace {

constexpr Color sheetColor = 0x4F4F4F;

/// An opaque worksheet with a grid of 100 pixels that is not drawn.
SettingsFile opaque(const char* language) {
    return withKeys({{"Language", language},
                     {"TransparencyEditMode", " 0"},
                     {"WorksheetColor", " 5197647"},
                     {"GridSizeX", " 100"},
                     {"GridSizeY", " 100"},
                     {"ShowReferenceLines", " 0"}});
}

TEST(HeldGrip, ArrowKeysMoveTheMouseWithTheGripByOnePixelAndWithCtrlByTen) {
    PanelScene scene(ToolSet().stencil({300, 200, 500, 350}).file(), opaque(" 9"));
    const DesktopWindow panel = scene.panel(0);
    scene.mouse.moveTo(scene.onScreen({400, 275}));
    scene.mouse.press();
    keyboard::press(VK_RIGHT, Modifiers::None, 5);
    keyboard::press(VK_UP, Modifiers::None, 2);
    EXPECT_TRUE(PanelScene::says(panel, "lblPositionLeft", "left = 305 "));
    EXPECT_TRUE(PanelScene::says(panel, "lblPositionTop", "top = 198 "));
    EXPECT_EQ(Mouse::position(), scene.onScreen({405, 273}));
    // While Ctrl is down it binds the centre to the grid; then the grip is where the mouse is.
    keyboard::press(VK_RIGHT, Modifiers::Ctrl);
    EXPECT_TRUE(PanelScene::says(panel, "lblPositionLeft", "left = 315 "));
    EXPECT_EQ(Mouse::position(), scene.onScreen({415, 273}));
    keyboard::press(VK_HOME);
    keyboard::press(VK_DELETE);
    scene.mouse.release();
    EXPECT_TRUE(PanelScene::says(panel, "lblPositionLeft", "left = 315 "));
    EXPECT_TRUE(PanelScene::says(panel, "lblPositionTop", "top = 198 "));
    // The tool has its keys again, and the whole drag was one step.
    keyboard::press(VK_LEFT);
    EXPECT_TRUE(PanelScene::says(panel, "lblPositionLeft", "left = 314 "));
    keyboard::press('Z', Modifiers::Ctrl, 2);
    EXPECT_TRUE(PanelScene::says(panel, "lblPositionLeft", "left = 300 "));
}

TEST(HeldGrip, AKeyThatOutlastsTheGripDoesNothingToTheTool) {
    PanelScene scene(ToolSet().stencil({300, 200, 500, 350}).file(), opaque(" 1031"));
    const DesktopWindow panel = scene.panel(0);
    scene.mouse.moveTo(scene.onScreen({400, 275}));
    scene.mouse.press();
    keyboard::down(VK_RIGHT);
    keyboard::down(VK_DELETE);
    EXPECT_TRUE(PanelScene::says(panel, "lblPositionLeft", "links = 301 "));
    scene.mouse.release();
    // As the keyboard repeats what is still held.
    keyboard::down(VK_RIGHT);
    keyboard::down(VK_DELETE);
    keyboard::up(VK_RIGHT);
    keyboard::up(VK_DELETE);
    keyboard::press(VK_DOWN);
    EXPECT_TRUE(PanelScene::says(panel, "lblPositionTop", "oben = 201 "));
    EXPECT_TRUE(PanelScene::says(panel, "lblPositionLeft", "links = 301 "));
}

/// From the middle of a ring to its edge, in pixels of the screen.
int ringRadius(const PanelScene& scene) {
    const int dpi = static_cast<int>(GetDpiForWindow(scene.worksheet().handle()));
    return 33 * dpi / 96 / 2;
}

/// Whether a ring lies around the place, by its outermost pixels on all sides.
bool hasRing(const PanelScene& scene, ScreenPoint place, bool wanted) {
    const int radius = ringRadius(scene);
    const std::array sides{ScreenPoint{0, -radius}, ScreenPoint{0, radius}, ScreenPoint{-radius, 0},
                           ScreenPoint{radius, 0}};
    return waitUntil([&] {
        keyboard::repeatHeldModifiers();
        const bool closed = std::ranges::all_of(sides, [&](ScreenPoint side) {
            return screen::pixel(scene.onScreen(place) + side) != sheetColor;
        });
        return closed == wanted;
    });
}

TEST(HeldGrip, ARingLiesAroundTheCrossingOfTheGridWhileCtrlIsHeld) {
    PanelScene scene(ToolSet().stencil({300, 250, 500, 450}).file(), opaque(" 9"));
    scene.mouse.moveTo(scene.onScreen({400, 350}));
    scene.mouse.press();
    scene.mouse.moveTo(scene.onScreen({412, 312}));
    EXPECT_TRUE(hasRing(scene, {400, 300}, false));
    keyboard::down(VK_CONTROL);
    EXPECT_TRUE(hasRing(scene, {400, 300}, true));
    keyboard::up(VK_CONTROL);
    EXPECT_TRUE(hasRing(scene, {400, 300}, false));
    scene.mouse.release();
}

TEST(HeldGrip, ARingLiesAroundTheEndThatAltJoins) {
    PanelScene scene(ToolSet()
                         .measure({{200, 400}, {300, 400}}, {{200, 450}, {260, 450}}, false)
                         .measure({{500, 420}, {600, 520}}, {{650, 420}, {700, 520}}, false, 2)
                         .file(),
                     opaque(" 9"));
    scene.mouse.moveTo(scene.onScreen({300, 400}));
    scene.mouse.press();
    scene.mouse.moveTo(scene.onScreen({497, 423}));
    EXPECT_TRUE(hasRing(scene, {500, 420}, false));
    keyboard::down(VK_MENU);
    EXPECT_TRUE(hasRing(scene, {500, 420}, true));
    scene.mouse.moveTo(scene.onScreen({330, 330}));
    EXPECT_TRUE(hasRing(scene, {500, 420}, false));
    scene.mouse.release();
    keyboard::up(VK_MENU);
}

TEST(HeldGrip, AShiftPressAtASideSaysAtOnceWhatIsNear) {
    PanelScene scene(ToolSet().stencil({300, 200, 498, 333}).file(), opaque(" 9"));
    const ScreenPoint side{498, 266};
    // Where the label stands, left of the grip.
    const auto label = [&] {
        const ScreenPoint to = scene.onScreen({side.x - 40, side.y + 10});
        return screen::waitUntilStill({to.x - 120, to.y - 20, to.x, to.y});
    };
    scene.mouse.moveTo(scene.onScreen(side));
    scene.mouse.press();
    const Picture plain = label();
    scene.mouse.release();
    {
        const HeldKeys shift(Modifiers::Shift);
        scene.mouse.press();
        EXPECT_FALSE(difference(label(), plain).empty());
        scene.mouse.release();
    }
}

}  // namespace
}  // namespace ormala::test
