#include <gtest/gtest.h>

#include <string>

#include "e2e/SheetScene.h"
#include "e2e/clickToFront.h"
#include "e2e/support/placedWindows.h"

namespace ormala::test {
namespace {

constexpr const char* editCaption = "Ormala - Edit";
constexpr const char* templateCaption = "Ormala - Template";
constexpr const char* pauseCaption = "Ormala - Pause";

ScreenPoint modeButton(const SheetScene& scene, int mode) {
    return scene.settings().named("btnMode(" + std::to_string(mode) + ")").center();
}

/// A place of the control window without a control.
ScreenPoint emptyPlace(const SheetScene& scene) {
    const ScreenRect client = scene.settings().clientRect();
    return {client.left + 2, client.top + 2};
}

TEST(Modes, KeysOfTheControlWindowChangeThem) {
    SheetScene scene;
    scene.mouse.click(emptyPlace(scene));
    keyboard::press(VK_F4);
    scene.settings().waitForText(templateCaption);
    EXPECT_TRUE(scene.worksheet().isVisible());
    EXPECT_TRUE(scene.worksheet().hasExtendedStyle(WS_EX_TRANSPARENT));
    keyboard::press(VK_F3);
    scene.settings().waitForText(pauseCaption);
    scene.worksheet().waitUntilHidden();
    keyboard::press(VK_F2);
    scene.settings().waitForText(editCaption);
    scene.worksheet().waitUntilVisible();
    scene.expectPattern();
}

TEST(Modes, KeysOfTheWorksheetChangeThem) {
    SheetScene scene;
    scene.mouse.click(scene.onScreen({40, 40}));
    keyboard::press(VK_F3);
    scene.settings().waitForText(pauseCaption);
    scene.worksheet().waitUntilHidden();
}

TEST(Modes, ButtonsOfTheBarChangeThem) {
    SheetScene scene;
    scene.mouse.click(modeButton(scene, 1));
    scene.settings().waitForText(templateCaption);
    scene.mouse.click(modeButton(scene, 2));
    scene.settings().waitForText(pauseCaption);
    scene.mouse.click(modeButton(scene, 0));
    scene.settings().waitForText(editCaption);
}

TEST(Modes, ShiftMinimisesTheControlWindowAsWell) {
    SheetScene scene;
    scene.mouse.click(emptyPlace(scene));
    keyboard::press(VK_F4, Modifiers::Shift);
    scene.settings().waitForText(templateCaption);
    EXPECT_TRUE(waitUntil([&] { return scene.settings().isMinimised(); }));
    EXPECT_TRUE(scene.worksheet().isVisible());
}

TEST(Modes, ShiftWithCtrlDoesNotMinimise) {
    SheetScene scene;
    scene.mouse.click(emptyPlace(scene));
    keyboard::press(VK_F3, Modifiers::Shift | Modifiers::Ctrl);
    scene.settings().waitForText(pauseCaption);
    EXPECT_FALSE(scene.settings().isMinimised());
}

TEST(Modes, SystemMenuChangesThem) {
    SheetScene scene;
    scene.settings().post(WM_SYSCOMMAND, 1011);
    scene.settings().waitForText(templateCaption);
    scene.settings().post(WM_SYSCOMMAND, 1012);
    scene.settings().waitForText(pauseCaption);
    scene.settings().post(WM_SYSCOMMAND, 1010);
    scene.settings().waitForText(editCaption);
}

TEST(Modes, ControlWindowStandsShortOutsideEditModeAndGetsItsHeightBack) {
    SheetScene scene;
    const ScreenRect first = scene.settings().rect();
    SetWindowPos(scene.settings().handle(), nullptr, 0, 0, first.width(), first.height() + 77,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    EXPECT_TRUE(waitUntil([&] { return scene.settings().rect().height() == first.height() + 77; }));
    // What the display tells late of one size would undo the next one.
    waitUntilPlaced({scene.settings()});
    scene.mouse.click(modeButton(scene, 1));
    scene.settings().waitForText(templateCaption);
    EXPECT_TRUE(waitUntil([&] { return scene.settings().rect().height() < first.height(); }));
    waitUntilPlaced({scene.settings()});
    scene.mouse.click(modeButton(scene, 0));
    scene.settings().waitForText(editCaption);
    EXPECT_TRUE(waitUntil([&] { return scene.settings().rect().height() == first.height() + 77; }));
    EXPECT_EQ(scene.settings().rect().width(), first.width());
}

TEST(Modes, TheTwinOfTemplateMinimisesAndHidesItself) {
    SheetScene scene;
    scene.mouse.click(scene.settings().named("cmdTemplateMin").center());
    scene.settings().waitForText(templateCaption);
    EXPECT_TRUE(waitUntil([&] { return scene.settings().isMinimised(); }));
    EXPECT_FALSE(scene.settings().named("cmdTemplateMin").hasStyle(WS_VISIBLE));
    EXPECT_TRUE(scene.settings().named("cmdPauseMin").hasStyle(WS_VISIBLE));
}

TEST(Modes, TheTwinOfPauseMinimisesAndHidesItself) {
    SheetScene scene;
    scene.mouse.click(scene.settings().named("cmdPauseMin").center());
    scene.settings().waitForText(pauseCaption);
    EXPECT_TRUE(waitUntil([&] { return scene.settings().isMinimised(); }));
    EXPECT_FALSE(scene.settings().named("cmdPauseMin").hasStyle(WS_VISIBLE));
    EXPECT_TRUE(scene.settings().named("cmdTemplateMin").hasStyle(WS_VISIBLE));
}

TEST(Modes, AMinimisedControlWindowComesBackWhereItStood) {
    SheetScene scene;
    const ScreenRect before = scene.settings().rect();
    scene.mouse.click(scene.settings().named("cmdTemplateMin").center());
    EXPECT_TRUE(waitUntil([&] { return scene.settings().isMinimised(); }));
    // A window manager may still be about to put it away.
    screen::waitUntilStill(before);
    scene.settings().post(WM_SYSCOMMAND, SC_RESTORE);
    EXPECT_TRUE(waitUntil([&] { return scene.settings().rect().origin() == before.origin(); }));
}

TEST(Modes, PauseLeavesOnlyWhatNeedsNoWorksheet) {
    SheetScene scene;
    keyboard::press(VK_F3);
    scene.settings().waitForText(pauseCaption);
    for (const char* name : {"cmdAddGrid", "cmdAddMeasure", "cmdNew", "cmdLoad", "cmdSave",
                             "cmdSaveAs", "cmdWorksheetWindowNormal"}) {
        EXPECT_FALSE(scene.settings().named(name).isEnabled()) << name;
    }
    EXPECT_TRUE(scene.settings().named("btnMode(0)").isEnabled());
}

TEST(Modes, HelpKeyOfTheControlWindowPauses) {
    SheetScene scene;
    scene.mouse.click(emptyPlace(scene));
    keyboard::press(VK_F1);
    scene.settings().waitForText(pauseCaption);
    scene.worksheet().waitUntilHidden();
}

TEST(Modes, InTemplateModeAButtonBringsAFullScreenWorksheetBackOnlyWithTheBorder) {
    for (const bool border : {false, true}) {
        SheetScene scene([border](SettingsFile& file) {
            file.set("Options", "TemplateWithBorder", border ? "-1" : " 0");
        });
        const DesktopWindow frame = scene.window("frmResizer");
        const ScreenRect framed = scene.worksheet().rect();
        const ScreenRect place = frame.rect();
        frame.post(WM_SYSCOMMAND, SC_MAXIMIZE);
        frame.waitUntilHidden();
        const DesktopWindow button = scene.settings().named("cmdWorksheetWindowNormal");
        EXPECT_TRUE(waitUntil([&] { return button.isEnabled(); }));
        bringInFrontOf(scene.worksheet(), scene.settings());
        scene.mouse.click(modeButton(scene, 1));
        scene.settings().waitForText(templateCaption);
        EXPECT_TRUE(waitUntil([&] { return button.isEnabled() == border; }));
        const ScreenRect full = scene.worksheet().rect();
        scene.mouse.click(button.center());
        if (border) {
            frame.waitUntilVisible();
            EXPECT_TRUE(waitUntil([&] { return !button.isEnabled(); }));
            EXPECT_EQ(frame.rect(), place);
        }
        EXPECT_TRUE(
            waitUntil([&] { return scene.worksheet().rect() == (border ? framed : full); }));
        EXPECT_EQ(frame.isVisible(), border);
        EXPECT_TRUE(scene.worksheet().hasExtendedStyle(WS_EX_TRANSPARENT));
    }
}

TEST(Modes, CloseBoxOfTheFramePauses) {
    SheetScene scene;
    scene.program().window("frmResizer").post(WM_SYSCOMMAND, SC_CLOSE);
    scene.settings().waitForText(pauseCaption);
    EXPECT_FALSE(scene.worksheet().isVisible());
}

TEST(Modes, FirstClickInTheCoveredControlWindowBringsItForward) {
    SheetScene scene;
    scene.mouse.click(scene.onScreen({40, 40}));
    scene.mouse.click(emptyPlace(scene));
    EXPECT_TRUE(waitUntil([&] { return scene.settings().isForeground(); }));
}

}  // namespace
}  // namespace ormala::test
