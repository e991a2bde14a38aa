#include <gtest/gtest.h>

#include <algorithm>

#include "e2e/ToolPanel.h"
#include "e2e/TwoStencils.h"

namespace ormala::test {
namespace {

constexpr const char* tooMany = "The maximum number of tools (33) has been reached.";

TEST(ToolList, ToolsAreAddedUntilTheyAreRefused) {
    PanelScene scene(SettingsFile{});
    const DesktopWindow add = scene.control("cmdAddGrid");
    // The first pair of the other kind counts, though it is not in use.
    for (std::size_t count = 1; count <= 33; ++count) {
        PanelScene::choose(add);
        ASSERT_TRUE(scene.waitForPanels(count)) << count;
    }
    scene.press("cmdAddMeasure");
    const auto message = scene.program().waitForMessageBox("Ormala - Edit");
    EXPECT_EQ(message.text(), tooMany);
    message.answer(IDOK);
    EXPECT_EQ(scene.panels().size(), 33U);
}

TEST(ToolList, TheFirstToolFindsRoomForItsPanel) {
    PanelScene scene(SettingsFile{});
    scene.press("cmdAddGrid");
    ASSERT_TRUE(scene.waitForPanels(1));
    EXPECT_TRUE(waitUntil([&] {
        return scene.control("picOuter").rect().height() >= scene.panel(0).rect().height();
    }));
    EXPECT_TRUE(looksSelected(scene.panel(0)));
}

bool titleSays(const PanelScene& scene, const std::string& mode) {
    return waitUntil([&] { return scene.settings().text() == "Ormala - " + mode; });
}

/// Keys that are dead while the keyboard is nowhere.
void expectKeysAlive(const PanelScene& scene) {
    keyboard::press(VK_F4);
    EXPECT_TRUE(titleSays(scene, "Template"));
    keyboard::press(VK_F2);
    EXPECT_TRUE(titleSays(scene, "Edit"));
}

bool anyLooksSelected(const PanelScene& scene) {
    constexpr Color selectedGround = 0x4A4A4A;
    return std::ranges::any_of(scene.panels(), [](const DesktopWindow& panel) {
        const ScreenRect rect = panel.rect();
        return screen::pixel({rect.left + 2, rect.top + 30}) == selectedGround;
    });
}

/// Goes away and comes back, to a place where the system sees no second double click.
void removeAway(PanelScene& scene, int aside) {
    scene.mouse.moveTo(PanelScene::control(scene.panel(0), "lblTitle").center());
    scene.mouse.click(PanelScene::control(scene.panel(0), "cmdDelete").center() +
                      ScreenPoint{aside, 0});
}

TEST(ToolList, ADoubleClickOnRemoveRemovesOneToolAndSelectsNone) {
    PanelScene scene(ToolSet()
                         .stencil({100, 100, 300, 300})
                         .stencil({400, 100, 600, 300})
                         .stencil({400, 400, 600, 500})
                         .file());
    scene.mouse.doubleClick(PanelScene::control(scene.panel(0), "cmdDelete").center());
    ASSERT_TRUE(scene.waitForPanels(2));
    expectKeysAlive(scene);
    EXPECT_EQ(scene.panels().size(), 2U);
    EXPECT_FALSE(anyLooksSelected(scene));
    removeAway(scene, 4);
    ASSERT_TRUE(scene.waitForPanels(1));
    removeAway(scene, -4);
    ASSERT_TRUE(scene.waitForPanels(0));
    expectKeysAlive(scene);
}

TEST(ToolList, KeysStayAliveAfterARemovalByKeyOnThePanel) {
    PanelScene scene(ToolSet().stencil({100, 100, 300, 300}).stencil({400, 100, 600, 300}).file());
    clickTitle(scene, 0);
    const DesktopWindow remove = PanelScene::control(scene.panel(0), "cmdDelete");
    focusByTab(remove);
    keyboard::press(VK_SPACE);
    ASSERT_TRUE(scene.waitForPanels(1));
    expectKeysAlive(scene);
}

TEST(ToolList, KeysStayAliveAfterARemovalByKeyOnTheWorksheet) {
    PanelScene scene(twoStencils());
    scene.mouse.click(scene.onScreen({500, 200}));
    ASSERT_TRUE(looksSelected(scene.panel(1)));
    keyboard::press(VK_DELETE);
    ASSERT_TRUE(scene.waitForPanels(1));
    keyboard::press(VK_F4);
    EXPECT_TRUE(titleSays(scene, "Template"));
}

TEST(ToolList, SmallButtonsOfANewPanelGrowUnderTheMouse) {
    PanelScene scene(twoStencils());
    scene.press("cmdAddGrid");
    ASSERT_TRUE(scene.waitForPanels(3));
    const int listEnd = scene.control("picOuter").rect().bottom;
    ASSERT_TRUE(waitUntil([&] { return scene.panel(2).rect().bottom <= listEnd; }));
    const DesktopWindow step = PanelScene::control(scene.panel(2), "cmdMove(0)");
    const int atRest = step.rect().width();
    scene.mouse.moveTo(step.center());
    EXPECT_TRUE(waitUntil([&] { return step.rect().width() > atRest; }));
}

TEST(ToolList, ARemovedNumberIsGivenToTheNextMeasuringTool) {
    PanelScene scene(SettingsFile{});
    for (std::size_t count = 1; count <= 3; ++count) {
        scene.press("cmdAddMeasure");
        ASSERT_TRUE(scene.waitForPanels(count));
    }
    EXPECT_TRUE(PanelScene::says(scene.panel(1), "lblTitle", "Measurement Tool 2"));
    PanelScene::choose(PanelScene::control(scene.panel(1), "cmdDelete"));
    ASSERT_TRUE(scene.waitForPanels(2));
    scene.press("cmdAddMeasure");
    ASSERT_TRUE(scene.waitForPanels(3));
    EXPECT_TRUE(PanelScene::says(scene.panel(2), "lblTitle", "Measurement Tool 2"));
}

TEST(ToolList, APressOnAToolSelectsItsPanel) {
    PanelScene scene(twoStencils());
    EXPECT_TRUE(looksSelected(scene.panel(0)));
    scene.mouse.click(scene.onScreen({500, 200}));
    EXPECT_TRUE(looksSelected(scene.panel(1)));
    EXPECT_FALSE(scene.program().settings().isForeground());
}

TEST(ToolList, TheKeysStillMoveAToolThatWasSelectedByThePress) {
    PanelScene scene(twoStencils());
    scene.mouse.click(scene.onScreen({500, 200}));
    ASSERT_TRUE(looksSelected(scene.panel(1)));
    EXPECT_TRUE(PanelScene::says(scene.panel(1), "lblCenterX", "X = 499.5 "));
    keyboard::press(VK_RIGHT);
    EXPECT_TRUE(PanelScene::says(scene.panel(1), "lblCenterX", "X = 500.5 "));
}

TEST(ToolList, AClickOnAPanelSelectsItsTool) {
    PanelScene scene(twoStencils());
    clickTitle(scene, 1);
    EXPECT_TRUE(looksSelected(scene.panel(1)));
    clickTitle(scene, 0);
    EXPECT_TRUE(looksSelected(scene.panel(0)));
}

TEST(ToolList, ComingBackFromAnotherProgramThroughAPanelKeepsTheSelection) {
    PanelScene scene(twoStencils());
    clickTitle(scene, 0);
    ASSERT_TRUE(looksSelected(scene.panel(0)));
    scene.backdrop().window().activate();
    clickTitle(scene, 1);
    EXPECT_TRUE(waitUntil([&] { return scene.settings().isForeground(); }));
    EXPECT_TRUE(looksSelected(scene.panel(0)));
    // The next click is the user's choice.
    clickTitle(scene, 1);
    EXPECT_TRUE(looksSelected(scene.panel(1)));
}

TEST(ToolList, DeleteKeyAndMenuOfTheToolRemoveThePair) {
    PanelScene scene(twoStencils());
    scene.mouse.click(scene.onScreen({500, 200}));
    keyboard::press(VK_DELETE);
    EXPECT_TRUE(scene.waitForPanels(1));
    scene.mouse.click(scene.onScreen({200, 200}), MouseButton::Right);
    const DesktopWindow menu = waitForTopLevel(scene.program().process().id(), "#32768");
    keyboard::press(VK_DOWN);
    keyboard::press(VK_RETURN);
    menu.waitUntilHidden();
    EXPECT_TRUE(scene.waitForPanels(0));
}

SettingsFile manyStencils(int count) {
    ToolSet tools;
    for (int i = 0; i < count; ++i) {
        tools.stencil({40 + 10 * i, 40 + 10 * i, 140 + 10 * i, 140 + 10 * i});
    }
    return tools.file();
}

int contentTop(const PanelScene& scene) {
    return scene.control("picInner").rect().top - scene.control("picOuter").rect().top;
}

TEST(ToolList, WheelAndThumbAndArrowsScrollIt) {
    PanelScene scene(manyStencils(12));
    ASSERT_TRUE(scene.waitForPanels(12));
    ASSERT_TRUE(waitUntil([&] { return contentTop(scene) == 0; }));
    scene.mouse.moveTo(scene.panel(1).center());
    scene.mouse.wheel(-1);
    EXPECT_TRUE(waitUntil([&] { return contentTop(scene) < -50; }));
    scene.mouse.wheel(3);
    EXPECT_TRUE(waitUntil([&] { return contentTop(scene) == 0; }));

    const DesktopWindow bar = scene.control("scrInner");
    scene.press(PanelScene::control(bar, "cmdBR"));
    EXPECT_TRUE(waitUntil([&] { return contentTop(scene) < 0; }));
    scene.press(PanelScene::control(bar, "cmdTL"));
    EXPECT_TRUE(waitUntil([&] { return contentTop(scene) == 0; }));

    const ScreenPoint thumb = PanelScene::control(bar, "cmdMove").center();
    scene.mouse.drag(thumb, {thumb.x, bar.rect().bottom});
    const int end =
        scene.control("picOuter").rect().height() - scene.control("picInner").rect().height();
    EXPECT_TRUE(waitUntil([&] { return contentTop(scene) == end; }));
}

TEST(ToolList, PartsOfANotchScrollItOnceTheyMakeOneAndATiltNever) {
    PanelScene scene(manyStencils(12));
    ASSERT_TRUE(scene.waitForPanels(12));
    scene.mouse.moveTo(scene.panel(1).center());
    scene.mouse.wheel(-1);
    ASSERT_TRUE(waitUntil([&] { return contentTop(scene) < -50; }));
    pause(milliseconds{300});
    const int oneNotch = contentTop(scene);
    // Three parts are none, the fourth one makes a notch; a turn back starts anew.
    scene.mouse.tiltWheel(2);
    scene.mouse.wheelByParts(-30, 3);
    scene.mouse.wheelByParts(30, 3);
    scene.mouse.wheelByParts(-30, 4);
    EXPECT_TRUE(waitUntil([&] { return contentTop(scene) == 2 * oneNotch; }));
    scene.mouse.wheel(3);
    EXPECT_TRUE(waitUntil([&] { return contentTop(scene) == 0; }));
}

TEST(ToolList, WheelOverTheWorksheetScrollsItToo) {
    PanelScene scene(manyStencils(12));
    scene.mouse.moveTo(scene.onScreen({600, 500}));
    scene.mouse.wheel(-1);
    EXPECT_TRUE(waitUntil([&] { return contentTop(scene) < -50; }));
}

TEST(ToolList, SelectionBringsThePanelIntoView) {
    PanelScene scene(manyStencils(12));
    // The centre of the last stencil.
    scene.mouse.click(scene.onScreen({200, 200}));
    const ScreenRect list = scene.control("picOuter").rect();
    EXPECT_TRUE(waitUntil([&] {
        const ScreenRect last = scene.panel(11).rect();
        return last.top >= list.top && last.bottom <= list.bottom;
    }));
    EXPECT_TRUE(looksSelected(scene.panel(11)));
}

TEST(ToolList, ToolsComeBackAtTheNextStartInTheirOrder) {
    PanelScene scene(SettingsFile{});
    scene.press("cmdAddMeasure");
    ASSERT_TRUE(scene.waitForPanels(1));
    scene.press("cmdAddGrid");
    ASSERT_TRUE(scene.waitForPanels(2));
    scene.press("cmdAddMeasure");
    ASSERT_TRUE(scene.waitForPanels(3));
    const DesktopWindow label = PanelScene::control(scene.panel(2), "lblLengthA");
    // A new tool comes up with both of its lines as points.
    EXPECT_TRUE(waitUntil([&] { return !label.text().starts_with("a = 1"); }));
    const std::string length = label.text();
    scene.restart();
    ASSERT_TRUE(scene.waitForPanels(3));
    EXPECT_EQ(scene.panel(0).className(), "ctlSetMeasure");
    EXPECT_EQ(scene.panel(1).className(), "ctlSetRatioGrid");
    EXPECT_TRUE(PanelScene::says(scene.panel(2), "lblTitle", "Measurement Tool 2"));
    EXPECT_TRUE(PanelScene::says(scene.panel(2), "lblLengthA", length));
    PanelScene::scrollIntoView(scene.panel(0));
    EXPECT_TRUE(looksSelected(scene.panel(0)));
}

}  // namespace
}  // namespace ormala::test
