#include <gtest/gtest.h>

#include "e2e/SheetFrame.h"
#include "e2e/ToolPanel.h"
#include "e2e/TwoStencils.h"
#include "e2e/clickToFront.h"

// Who has the keyboard, and which click selects.

namespace ormala::test {
namespace {

constexpr const char* editCaption = "Ormala - Edit";
constexpr const char* templateCaption = "Ormala - Template";
constexpr const char* pauseCaption = "Ormala - Pause";

/// The first panel is the selected one, and another program is in front.
void leaveWithTheFirstSelected(PanelScene& scene) {
    clickTitle(scene, 0);
    ASSERT_TRUE(looksSelected(scene.panel(0)));
    scene.backdrop().window().activate();
}

bool comesForwardByClick(SheetScene& scene) {
    return clickToFront(scene.mouse, scene.worksheet(), scene.onScreen({40, 40}));
}

TEST(Focus, AReturnThroughTheWorksheetSwallowsNoClickOnAPanel) {
    PanelScene scene(twoStencils());
    leaveWithTheFirstSelected(scene);
    scene.mouse.click(scene.onScreen({700, 500}));
    EXPECT_TRUE(waitUntil([&] { return scene.worksheet().isForeground(); }));
    clickTitle(scene, 1);
    EXPECT_TRUE(looksSelected(scene.panel(1)));
}

TEST(Focus, AReturnThroughTheFrameSwallowsNoClickOnAPanel) {
    PanelScene scene(twoStencils());
    leaveWithTheFirstSelected(scene);
    scene.program().window("frmResizer").activate();
    clickTitle(scene, 1);
    EXPECT_TRUE(looksSelected(scene.panel(1)));
}

TEST(Focus, AReturnThroughTheMagnifierSwallowsNoClickOnAPanel) {
    SettingsFile options;
    options.set("Options", "LensVisible", "-1");
    PanelScene scene(twoStencils(), options);
    leaveWithTheFirstSelected(scene);
    scene.program().window("frmLens").activate();
    clickTitle(scene, 1);
    EXPECT_TRUE(looksSelected(scene.panel(1)));
}

TEST(Focus, AReturnThroughTheToolbarSwallowsNoClickOnAPanel) {
    PanelScene scene(twoStencils());
    leaveWithTheFirstSelected(scene);
    scene.press("chkGrid");
    EXPECT_TRUE(waitUntil([&] { return scene.settings().isForeground(); }));
    clickTitle(scene, 1);
    EXPECT_TRUE(looksSelected(scene.panel(1)));
}

TEST(Focus, TemplateModeAndPauseOfTheWorksheetGiveTheControlWindowTheKeyboard) {
    SheetScene scene;
    struct Change {
        WORD key;
        const char* caption;
    };
    for (const Change change : {Change{VK_F4, templateCaption}, Change{VK_F3, pauseCaption}}) {
        ASSERT_TRUE(comesForwardByClick(scene));
        keyboard::press(change.key);
        scene.settings().waitForText(change.caption);
        EXPECT_TRUE(waitUntil([&] { return scene.settings().isForeground(); }));
        keyboard::press(VK_F2);
        scene.settings().waitForText(editCaption);
        EXPECT_TRUE(scene.worksheet().isVisible());
    }
}

TEST(Focus, WithoutAControlWindowTheProgramBelowGetsTheKeyboard) {
    SheetScene scene;
    scene.settings().post(WM_SYSCOMMAND, SC_MINIMIZE);
    ASSERT_TRUE(waitUntil([&] { return scene.settings().isMinimised(); }));
    ASSERT_TRUE(comesForwardByClick(scene));
    keyboard::press(VK_F4);
    scene.settings().waitForText(templateCaption);
    EXPECT_TRUE(waitUntil([&] { return scene.backdrop().window().isForeground(); }));
    scene.backdrop().reset();
    keyboard::press('Q');
    EXPECT_EQ(scene.backdrop()
                  .waitFor("key", [](const BackdropReport& seen) { return seen.keyUp == 1; })
                  .lastKey,
              'Q');
}

TEST(Focus, MinimisingWithTheModeGivesTheProgramBelowTheKeyboard) {
    SheetScene scene;
    ASSERT_TRUE(comesForwardByClick(scene));
    keyboard::press(VK_F4, Modifiers::Shift);
    EXPECT_TRUE(waitUntil([&] { return scene.settings().isMinimised(); }));
    EXPECT_TRUE(waitUntil([&] { return scene.backdrop().window().isForeground(); }));
}

TEST(Focus, TheWorksheetHasNoneInTemplateMode) {
    SheetScene scene;
    scene.mouse.click(scene.settings().named("btnMode(1)").center());
    scene.settings().waitForText(templateCaption);
    // On a tool, which only shows.
    scene.mouse.click(scene.onScreen(scene.model.gripPixel(1, 0)));
    EXPECT_TRUE(waitUntil([&] { return scene.backdrop().window().isForeground(); }));
    EXPECT_NE(focusedWindow(), scene.worksheet());
    scene.backdrop().reset();
    keyboard::press(VK_RIGHT);
    scene.backdrop().waitFor("key", [](const BackdropReport& seen) { return seen.keyUp == 1; });
    scene.settings().post(WM_SYSCOMMAND, 1010);
    scene.settings().waitForText(editCaption);
    scene.expectPattern();
}

TEST(Focus, ADragEndsWithTheModeThatItNeeds) {
    struct Change {
        WORD key;
        const char* caption;
    };
    for (const Change change : {Change{VK_F4, templateCaption}, Change{VK_F3, pauseCaption}}) {
        SheetScene scene;
        const ScreenPoint from = scene.onScreen(scene.model.gripPixel(0, 0));
        scene.mouse.moveTo(from);
        scene.mouse.press();
        scene.mouse.moveTo(from + ScreenPoint{20, 10});
        scene.mouse.moveTo(from + ScreenPoint{50, 30});
        keyboard::press(change.key);
        scene.settings().waitForText(change.caption);
        // With the button still held: nobody of ours hears of it any more.
        GUITHREADINFO info{};
        info.cbSize = sizeof info;
        const DWORD thread = GetWindowThreadProcessId(scene.worksheet().handle(), nullptr);
        EXPECT_TRUE(GetGUIThreadInfo(thread, &info));
        EXPECT_EQ(info.hwndCapture, nullptr);
        scene.mouse.moveTo(from + ScreenPoint{120, 90});
        scene.mouse.release();
        keyboard::press(VK_F2);
        scene.settings().waitForText(editCaption);
        scene.model.dragCenter(50, 30);
        scene.expectPattern();
    }
}

}  // namespace
}  // namespace ormala::test
