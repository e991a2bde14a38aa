#include <gtest/gtest.h>

#include <cmath>

#include "e2e/ToolPanel.h"

namespace ormala::test {
namespace {

/// One measuring tool of two separate lines, whose panel is played.
class MeasureCommands : public testing::Test {
  protected:
    void expectConnected(bool connected) const {
        EXPECT_TRUE(waitUntil([&] { return panel.isDown("optMode(0)") == connected; }));
        EXPECT_EQ(panel.isDown("optMode(1)"), !connected);
    }
    SettingsFile closeAndRead() {
        EXPECT_EQ(scene.program().close(), 0U);
        return SettingsFile::read(scene.data().toolsFile());
    }
    /// Where the lines are, with the mouse where it touches nothing.
    Picture toolPicture() {
        scene.mouse.moveTo(scene.onScreen({150, 420}));
        const ScreenPoint corner = scene.onScreen({140, 240});
        return screen::waitUntilStill({corner.x, corner.y, corner.x + 260, corner.y + 160});
    }
    /// Presses the button, expects its label on or off on the worksheet, and presses it again.
    void expectSwitch(const char* button, bool byKeys) {
        const auto pressOnce = [&] {
            if (byKeys) {
                panel.pressByKeys(button);
            } else {
                panel.press(button);
            }
        };
        const bool down = panel.isDown(button);
        const Picture before = toolPicture();
        pressOnce();
        EXPECT_TRUE(waitUntil([&] { return panel.isDown(button) != down; })) << button;
        EXPECT_FALSE(difference(toolPicture(), before).empty()) << button;
        pressOnce();
        EXPECT_TRUE(waitUntil([&] { return panel.isDown(button) == down; })) << button;
        EXPECT_TRUE(difference(toolPicture(), before).empty()) << button;
        // Labels are no step of undo.
        EXPECT_FALSE(panel.isEnabled("cmdUndo"));
    }

    PanelScene scene{
        ToolSet().measure({{200, 300}, {300, 300}}, {{200, 360}, {260, 360}}, false, 3).file(),
        userOptions()};
    ToolPanel panel{scene};
};

TEST_F(MeasureCommands, TheMouseConnectsAndDisconnectsTheLines) {
    expectConnected(false);
    panel.press("optMode(0)");
    expectConnected(true);
    panel.press("optMode(1)");
    expectConnected(false);
    panel.press("cmdUndo");
    expectConnected(true);
    panel.press("cmdUndo");
    expectConnected(false);
    EXPECT_TRUE(panel.shows("lblLengthA", 101));
    EXPECT_TRUE(panel.shows("lblLengthB", 61));
    EXPECT_TRUE(waitUntil([&] { return !panel.isEnabled("cmdUndo"); }));
    panel.press("cmdRedo");
    expectConnected(true);
    const SettingsFile kept = closeAndRead();
    EXPECT_EQ(kept.number("Tool 1", "Connected"), -1);
    EXPECT_EQ(kept.number("Tool 1", "AX2"), kept.number("Tool 1", "BX2"));
    EXPECT_EQ(kept.number("Tool 1", "AY2"), kept.number("Tool 1", "BY2"));
}

TEST_F(MeasureCommands, TheSpaceBarConnectsAndDisconnectsTheLines) {
    panel.pressByKeys("optMode(0)");
    expectConnected(true);
    panel.pressByKeys("cmdUndo");
    expectConnected(false);
    panel.pressByKeys("cmdRedo");
    expectConnected(true);
    panel.pressByKeys("optMode(1)");
    expectConnected(false);
}

TEST_F(MeasureCommands, ModifiersChangeNothingInWhatTheButtonsDo) {
    for (const Modifiers keys : {Modifiers::Shift, Modifiers::Ctrl, Modifiers::Alt}) {
        panel.press("optMode(0)", keys);
        expectConnected(true);
        panel.press("cmdUndo", keys);
        expectConnected(false);
    }
}

TEST_F(MeasureCommands, TheSwitchesShowAndHideTheLabels) {
    expectSwitch("chkShowLength", false);
    expectSwitch("chkShowLength", true);
    // Lines that don't meet have no angle to show.
    panel.press("optMode(0)");
    expectConnected(true);
    PanelScene::choose(panel.control("chkShowAngle"));
    EXPECT_TRUE(waitUntil([&] { return !panel.isDown("chkShowAngle"); }));
    const SettingsFile kept = closeAndRead();
    EXPECT_EQ(kept.number("Tool 1", "LabelsAngleVisible"), 0);
    EXPECT_EQ(kept.number("Tool 1", "LabelsLengthVisible"), -1);
}

TEST_F(MeasureCommands, CenterPutsTheCommonEndInTheMiddle) {
    const ScreenRect sheet = scene.worksheet().clientRect();
    panel.press("optMode(0)");
    expectConnected(true);
    panel.press("cmdDefaultPos");
    EXPECT_TRUE(waitUntil([&] { return panel.isEnabled("cmdUndo"); }));
    panel.press("cmdUndo");
    EXPECT_TRUE(waitUntil([&] { return panel.isEnabled("cmdRedo"); }));
    expectConnected(true);
    panel.pressByKeys("cmdDefaultPos");
    EXPECT_TRUE(waitUntil([&] { return !panel.isEnabled("cmdRedo"); }));
    const SettingsFile kept = closeAndRead();
    EXPECT_EQ(kept.number("Tool 1", "AX2"), std::floor(sheet.width() / 2.0));
    EXPECT_EQ(kept.number("Tool 1", "AY2"), std::floor(sheet.height() / 2.0));
}

TEST_F(MeasureCommands, PauseHidesTheToolAndLeavesOnlyItsOwnButton) {
    const Picture shown = toolPicture();
    panel.press("cmdPause");
    ASSERT_TRUE(waitUntil([&] { return panel.isDown("cmdPause"); }));
    for (const DesktopWindow& control : panel.window().descendants()) {
        if (control.className() == "ZelvikButtonXP") {
            EXPECT_EQ(control.isEnabled(), control.name() == "cmdPause") << control.name();
        }
    }
    const Picture hidden = toolPicture();
    EXPECT_EQ(hidden.count(hidden.at(hidden.rect().origin())), 260U * 160U);
    panel.pressByKeys("cmdPause");
    ASSERT_TRUE(waitUntil([&] { return panel.isEnabled("optMode(0)"); }));
    EXPECT_FALSE(panel.isEnabled("cmdUndo"));
    EXPECT_TRUE(difference(shown, toolPicture()).empty());
}

TEST_F(MeasureCommands, APausedToolComesBackPaused) {
    panel.press("cmdPause");
    ASSERT_TRUE(waitUntil([&] { return panel.isDown("cmdPause"); }));
    scene.restart();
    const ToolPanel again(scene);
    EXPECT_TRUE(again.isDown("cmdPause"));
    EXPECT_FALSE(again.isEnabled("cmdUnits"));
    EXPECT_TRUE(again.shows("lblTitle", 3));
}

TEST_F(MeasureCommands, TheMouseRemovesTheTool) {
    panel.press("cmdDelete");
    EXPECT_TRUE(scene.waitForPanels(0));
}

TEST_F(MeasureCommands, TheSpaceBarRemovesTheTool) {
    panel.pressByKeys("cmdDelete");
    EXPECT_TRUE(scene.waitForPanels(0));
}

TEST_F(MeasureCommands, ButtonsGrowUnderTheMouseAndShrinkAgain) {
    const int growth = MulDiv(4, static_cast<int>(GetDpiForSystem()), USER_DEFAULT_SCREEN_DPI);
    for (const char* name : {"cmdColorA", "cmdUnits", "optMode(1)", "chkShowAngle", "cmdDelete"}) {
        const DesktopWindow button = panel.control(name);
        const ScreenRect rest = button.rect();
        scene.mouse.moveTo(rest.center());
        const ScreenRect grown{rest.left - growth, rest.top - growth, rest.right + growth,
                               rest.bottom + growth};
        EXPECT_TRUE(waitUntil([&] { return button.rect() == grown; })) << name;
        scene.mouse.moveTo(scene.onScreen({150, 420}));
        EXPECT_TRUE(waitUntil([&] { return button.rect() == rest; })) << name;
    }
}

}  // namespace
}  // namespace ormala::test
