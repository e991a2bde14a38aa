#include <gtest/gtest.h>

#include "e2e/LensScene.h"

// The popup menus of the worksheet and of the magnifier, chosen from by keys as a user does.

namespace ormala::test {
namespace {

/// The entries of the worksheet's menu, from the top; separators do not count.
enum class Entry {
    windowMaximised = 1,
    windowNormal,
    pause,
    templateMode,
    addStencil,
    addMeasure,
    lens,
    grid,
    crossHair,
    referenceLines,
    circleCompass,
    options,
    help,
};

class MenuScene {
  public:
    explicit MenuScene(const SettingsFile& options = {})
        : scene(ToolSet().stencil({100, 100, 300, 300}).file(), options) {}

    /// On the background, away from the tool and from where the magnifier comes up.
    [[nodiscard]] ScreenPoint background() const { return scene.onScreen({600, 40}); }

    [[nodiscard]] DesktopWindow openByMouse() {
        scene.mouse.click(background(), MouseButton::Right);
        return menu();
    }
    [[nodiscard]] DesktopWindow menu() const { return scene.menus().wait(); }
    template <typename Item>
    void walkTo(Item entry) {
        scene.menus().walkDown(static_cast<int>(entry));
    }
    void choose(Entry entry) {
        const DesktopWindow popup = openByMouse();
        walkTo(entry);
        keyboard::press(VK_RETURN);
        popup.waitUntilHidden();
    }
    void choose(LensEntry entry) {
        const DesktopWindow popup = openByMouse();
        walkTo(Entry::lens);
        scene.menus().press(VK_RIGHT);
        walkTo(static_cast<int>(entry) - 1);
        keyboard::press(VK_RETURN);
        popup.waitUntilHidden();
    }
    [[nodiscard]] bool turnsOn(std::string_view toggle) const {
        return waitUntil([&] { return scene.control(toggle).send(BM_GETCHECK) == BST_CHECKED; });
    }
    [[nodiscard]] bool turnsOff(std::string_view toggle) const {
        return waitUntil([&] { return scene.control(toggle).send(BM_GETCHECK) == BST_UNCHECKED; });
    }
    [[nodiscard]] DesktopWindow lens() { return scene.program().window("frmLens"); }

    PanelScene scene;
};

TEST(Menus, TogglesOfTheMenuAndTheToolbarAgree) {
    MenuScene menus;
    menus.choose(Entry::grid);
    EXPECT_TRUE(menus.turnsOn("chkGrid"));
    menus.choose(Entry::crossHair);
    EXPECT_TRUE(menus.turnsOn("chkCrossHair"));
    menus.choose(Entry::referenceLines);
    EXPECT_TRUE(menus.turnsOff("chkReferenceLines"));
    menus.choose(Entry::circleCompass);
    EXPECT_TRUE(menus.turnsOff("chkCircleCompass"));
    // Turned on by the menu, off by the button, and on by the menu again.
    menus.scene.press("chkGrid");
    EXPECT_TRUE(menus.turnsOff("chkGrid"));
    menus.choose(Entry::grid);
    EXPECT_TRUE(menus.turnsOn("chkGrid"));
}

TEST(Menus, TheMenuAddsToolsOfBothKinds) {
    MenuScene menus;
    menus.choose(Entry::addStencil);
    EXPECT_TRUE(menus.scene.waitForPanels(2));
    menus.choose(Entry::addMeasure);
    EXPECT_TRUE(menus.scene.waitForPanels(3));
}

TEST(Menus, TheMenuChangesTheMode) {
    MenuScene menus;
    menus.choose(Entry::templateMode);
    menus.scene.settings().waitForText("Ormala - Template");
    menus.scene.press("btnMode(0)");
    menus.scene.settings().waitForText("Ormala - Edit");
    menus.choose(Entry::pause);
    menus.scene.settings().waitForText("Ormala - Pause");
}

TEST(Menus, TheWorksheetFillsTheScreenAndComesBackByTheMenu) {
    MenuScene menus;
    const ScreenRect framed = menus.scene.worksheet().rect();
    // Only the framed one can be maximised, and the other way round.
    const auto sameAfter = [&](Entry entry, const ScreenRect& rect) {
        menus.choose(entry);
        return menus.scene.worksheet().rect() == rect;
    };
    const DesktopWindow popup = menus.openByMouse();
    menus.walkTo(Entry::windowNormal);
    keyboard::press(VK_RETURN);
    // A disabled entry either does nothing or leaves the menu open.
    keyboard::press(VK_ESCAPE);
    popup.waitUntilHidden();
    EXPECT_EQ(menus.scene.worksheet().rect(), framed);
    menus.choose(Entry::windowMaximised);
    EXPECT_TRUE(
        waitUntil([&] { return menus.scene.worksheet().rect().width() > framed.width() + 100; }));
    menus.scene.program().window("frmResizer").waitUntilHidden();
    EXPECT_TRUE(
        waitUntil([&] { return menus.scene.control("cmdWorksheetWindowNormal").isEnabled(); }));
    EXPECT_TRUE(sameAfter(Entry::windowNormal, framed) ||
                waitUntil([&] { return menus.scene.worksheet().rect() == framed; }));
    EXPECT_TRUE(menus.scene.program().window("frmResizer").isVisible());
}

TEST(Menus, OptionsOpenOnThePageOfTheWorksheet) {
    MenuScene menus;
    menus.choose(Entry::options);
    const DesktopWindow dialog = menus.scene.program().waitForWindow("frmOptions");
    EXPECT_TRUE(dialog.named("picTab(1)").isVisible());
    EXPECT_FALSE(dialog.named("picTab(0)").isVisible());
    keyboard::press(VK_ESCAPE);
    dialog.waitUntilHidden();
}

TEST(Menus, HelpPauses) {
    MenuScene menus;
    menus.choose(Entry::help);
    menus.scene.settings().waitForText("Ormala - Pause");
}

TEST(Menus, TheMenuKeyOfTheWorksheetOpensItsMenu) {
    MenuScene menus;
    menus.scene.mouse.click(menus.background());
    keyboard::press(VK_APPS);
    const DesktopWindow popup = menus.menu();
    menus.walkTo(Entry::grid);
    keyboard::press(VK_RETURN);
    popup.waitUntilHidden();
    EXPECT_TRUE(menus.turnsOn("chkGrid"));
}

TEST(Menus, ShiftAndF10OnTheWorksheetOpenItsMenu) {
    MenuScene menus;
    menus.scene.mouse.click(menus.background());
    keyboard::press(VK_F10, Modifiers::Shift);
    const DesktopWindow popup = menus.menu();
    menus.walkTo(Entry::grid);
    keyboard::press(VK_RETURN);
    popup.waitUntilHidden();
    EXPECT_TRUE(menus.turnsOn("chkGrid"));
}

TEST(Menus, EscapeLeavesEverythingAsItWas) {
    MenuScene menus;
    const DesktopWindow popup = menus.openByMouse();
    menus.walkTo(Entry::grid);
    keyboard::press(VK_ESCAPE);
    popup.waitUntilHidden();
    EXPECT_TRUE(menus.turnsOff("chkGrid"));
    EXPECT_EQ(menus.scene.panels().size(), 1U);
}

TEST(Menus, TheSubmenuOfTheMagnifierDoesItsWork) {
    MenuScene menus;
    menus.choose(LensEntry::visible);
    EXPECT_TRUE(menus.turnsOn("chkLens"));
    menus.lens().waitUntilVisible();
    EXPECT_EQ(menus.lens().text(), "Magnifier 4 X");
    menus.choose(LensEntry::topLeftScales);
    EXPECT_TRUE(waitUntil([&] { return !menus.lens().named("picRulTop").isVisible(); }));
    EXPECT_TRUE(waitUntil([&] { return !menus.lens().named("picRulLeft").isVisible(); }));
    EXPECT_TRUE(menus.lens().named("picRulBottom").isVisible());
    menus.choose(LensEntry::bottomRightScales);
    EXPECT_TRUE(waitUntil([&] { return !menus.lens().named("picRulBottom").isVisible(); }));
    menus.choose(LensEntry::cursor);
    menus.choose(LensEntry::hotSpot);
    menus.choose(LensEntry::grid);
    menus.choose(LensEntry::stick);
    EXPECT_TRUE(waitUntil([&] { return menus.lens().text().empty(); }));
    menus.scene.program().close();
    const SettingsFile kept = SettingsFile::read(menus.scene.data().optionsFile());
    EXPECT_EQ(kept.number("Options", "LensVisible"), -1);
    EXPECT_EQ(kept.number("Options", "LensSticked"), -1);
    for (const char* key :
         {"LensCursorOn", "LensHotSpotOn", "LensGridOn", "LensRulTOn", "LensRulBOn"}) {
        EXPECT_EQ(kept.number("Options", key), 0) << key;
    }
}

TEST(Menus, TheMagnificationIsChosenInTheSubmenuOfTheSubmenu) {
    SettingsFile options;
    options.set("Options", "LensVisible", "-1");
    MenuScene menus(options);
    const DesktopWindow popup = menus.openByMouse();
    menus.walkTo(Entry::lens);
    menus.scene.menus().press(VK_RIGHT);
    menus.walkTo(static_cast<int>(LensEntry::magnification) - 1);
    menus.scene.menus().press(VK_RIGHT);
    menus.walkTo(6);
    keyboard::press(VK_RETURN);
    popup.waitUntilHidden();
    menus.lens().waitForText("Magnifier 7 X");
}

TEST(Menus, OptionsOfTheMagnifierOpenOnItsPage) {
    MenuScene menus;
    menus.choose(LensEntry::options);
    const DesktopWindow dialog = menus.scene.program().waitForWindow("frmOptions");
    EXPECT_TRUE(dialog.named("picTab(2)").isVisible());
    keyboard::press(VK_ESCAPE);
    dialog.waitUntilHidden();
}

TEST(Menus, FunctionKeyTwelveOpensThePageOfItsWindow) {
    MenuScene menus;
    const auto pageOfKey = [&] {
        keyboard::press(VK_F12);
        const DesktopWindow dialog = menus.scene.program().waitForWindow("frmOptions");
        int page = -1;
        for (int i = 0; i < 3; ++i) {
            page = dialog.named("picTab(" + std::to_string(i) + ")").isVisible() ? i : page;
        }
        keyboard::press(VK_ESCAPE);
        dialog.waitUntilHidden();
        return page;
    };
    menus.scene.mouse.click(menus.background());
    EXPECT_EQ(pageOfKey(), 1);
    menus.scene.settings().activate();
    EXPECT_EQ(pageOfKey(), 0);
    PanelScene::choose(menus.scene.control("chkLens"));
    menus.lens().waitUntilVisible();
    menus.lens().activate();
    EXPECT_EQ(pageOfKey(), 2);
}

}  // namespace
}  // namespace ormala::test
