#include <gtest/gtest.h>

#include "e2e/OwnWindow.h"
#include "e2e/PanelScene.h"

namespace ormala::test {
namespace {

const SettingsFile twoLines =
    ToolSet().measure({{200, 500}, {300, 500}}, {{200, 560}, {260, 560}}, false).file();

TEST(Measuring, ALineOverTenPixelsReadsTen) {
    PanelScene scene(twoLines);
    scene.mouse.drag(scene.onScreen({300, 500}), scene.onScreen({209, 500}));
    EXPECT_TRUE(PanelScene::says(scene.panel(0), "lblLengthA", "a = 10.0 "));
}

TEST(Measuring, TheSidesOfAKnownRectangleAreItsPixels) {
    PanelScene scene(twoLines);
    const ScreenPoint corner = scene.onScreen({360, 240});
    OwnWindow rectangle({corner.x, corner.y, corner.x + 160, corner.y + 100}, 0, 0xC08040);
    rectangle.show();
    scene.mouse.drag(scene.onScreen({200, 500}), scene.onScreen({360, 240}));
    scene.mouse.drag(scene.onScreen({300, 500}), scene.onScreen({519, 240}));
    scene.mouse.drag(scene.onScreen({200, 560}), scene.onScreen({520, 240}));
    scene.mouse.drag(scene.onScreen({260, 560}), scene.onScreen({520, 339}));
    const DesktopWindow panel = scene.panel(0);
    EXPECT_TRUE(PanelScene::says(panel, "lblLengthA", "a = 160.0 "));
    EXPECT_TRUE(PanelScene::says(panel, "lblLengthB", "b = 100.0 "));
    EXPECT_TRUE(PanelScene::says(panel, "lblRatioA", "a:b = 1.600 "));
    EXPECT_TRUE(PanelScene::says(panel, "lblRatioB", "b:a = 0.6250 "));
    EXPECT_TRUE(PanelScene::says(panel, "lblAngleVertA", "90.00° "));
    EXPECT_TRUE(PanelScene::says(panel, "lblAngleVertB", "0.00° "));
}

TEST(Measuring, AThreeFourFiveTriangleHasItsRatioAndAngles) {
    // The common end at the right angle's other end: a is the side of 400, b the one of 500.
    PanelScene scene(
        ToolSet().measure({{600, 400}, {200, 400}}, {{500, 500}, {200, 400}}, true).file());
    scene.mouse.drag(scene.onScreen({500, 500}), scene.onScreen({600, 100}));
    const DesktopWindow panel = scene.panel(0);
    ASSERT_TRUE(PanelScene::says(panel, "lblLengthA", "a = 401.0 "));
    ASSERT_TRUE(PanelScene::says(panel, "lblLengthB", "b = 501.0 "));
    EXPECT_TRUE(PanelScene::says(panel, "lblRatioA", "a:b = 0.8004 "));
    EXPECT_TRUE(PanelScene::says(panel, "lblRatioB", "b:a = 1.249 "));
    // From the direction of a, leftwards, to that of b, down to the left: atan(3/4).
    EXPECT_TRUE(PanelScene::says(panel, "lblAngleA", "ab = 36.87° "));
    EXPECT_TRUE(PanelScene::says(panel, "lblAngleB", "ba = 323.13° "));
    EXPECT_TRUE(PanelScene::says(panel, "lblAngleVertA", "90.00° "));
    EXPECT_TRUE(PanelScene::says(panel, "lblAngleVertB", "53.13° "));
}

TEST(Measuring, TheCommonEndMovesTheWholeTool) {
    PanelScene scene(
        ToolSet().measure({{600, 400}, {200, 400}}, {{200, 100}, {200, 400}}, true).file());
    scene.mouse.drag(scene.onScreen({200, 400}), scene.onScreen({260, 420}));
    EXPECT_EQ(scene.program().close(), 0U);
    const SettingsFile kept = SettingsFile::read(scene.data().toolsFile());
    EXPECT_EQ(kept.number("Tool 1", "AX1"), 660);
    EXPECT_EQ(kept.number("Tool 1", "AY1"), 420);
    EXPECT_EQ(kept.number("Tool 1", "BX1"), 260);
    EXPECT_EQ(kept.number("Tool 1", "BY1"), 120);
    EXPECT_EQ(kept.number("Tool 1", "BX2"), 260);
}

TEST(Measuring, UndoAndRedoOfThePanelGoThroughTheDrags) {
    PanelScene scene(twoLines);
    const DesktopWindow panel = scene.panel(0);
    EXPECT_FALSE(PanelScene::control(panel, "cmdUndo").isEnabled());
    scene.mouse.drag(scene.onScreen({300, 500}), scene.onScreen({400, 500}));
    EXPECT_TRUE(PanelScene::says(panel, "lblLengthA", "a = 201.0 "));
    EXPECT_TRUE(waitUntil([&] { return PanelScene::control(panel, "cmdUndo").isEnabled(); }));
    scene.press(PanelScene::control(panel, "cmdUndo"));
    EXPECT_TRUE(PanelScene::says(panel, "lblLengthA", "a = 101.0 "));
    EXPECT_FALSE(PanelScene::control(panel, "cmdUndo").isEnabled());
    scene.press(PanelScene::control(panel, "cmdRedo"));
    EXPECT_TRUE(PanelScene::says(panel, "lblLengthA", "a = 201.0 "));
    EXPECT_FALSE(PanelScene::control(panel, "cmdRedo").isEnabled());
}

TEST(Measuring, GermanUsersReadGermanTexts) {
    SettingsFile options;
    options.set("Options", "Language", " 1031");
    PanelScene scene(twoLines, options);
    const DesktopWindow panel = scene.panel(0);
    EXPECT_TRUE(PanelScene::says(panel, "lblTitle", "Messwerkzeug 1"));
    EXPECT_TRUE(PanelScene::says(panel, "lblLength", "Länge "));
    EXPECT_TRUE(PanelScene::says(panel, "lblAngleVert", "Vertikalwinkel"));
}

}  // namespace
}  // namespace ormala::test
