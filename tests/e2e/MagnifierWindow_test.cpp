#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "e2e/LensScales.h"
#include "e2e/LensScene.h"
#include "e2e/withKeys.h"

// The magnifier as a window: its place, its menu and keys, and what it keeps.

namespace ormala::test {
namespace {

bool toggleIs(const LensScene& scene, WPARAM state) {
    return waitUntil([&] {
        return scene.scene.control("chkLens").send(BM_GETCHECK) == static_cast<LRESULT>(state);
    });
}

/// All of it.
bool isInside(const ScreenRect& area, const ScreenRect& rect) {
    return rect.left >= area.left && rect.top >= area.top && rect.right <= area.right &&
           rect.bottom <= area.bottom && rect.width() > 0 && rect.height() > 0;
}

/// A length of the design in the pixels of the window's screen.
int scaled(const LensScene& scene, int length) {
    return MulDiv(length, static_cast<int>(GetDpiForWindow(scene.lens.window().handle())), 96);
}

TEST(Magnifier, OpensItsMenuByARightClickAnywhereInItsWindow) {
    LensScene scene(bareLens());
    const ScreenRect client = scene.lens.window().clientRect();
    const ScreenPoint places[] = {scene.lens.part("picLens").center(),
                                  scene.lens.part("picRulTop").center(),
                                  scene.lens.part("picRulLeft").center(),
                                  {client.left + 2, client.top + 2}};
    bool shown = true;
    for (const ScreenPoint place : places) {
        scene.scene.mouse.click(place, MouseButton::Right);
        scene.chooseFromMenu(LensEntry::bottomRightScales);
        shown = !shown;
        EXPECT_TRUE(waitUntil([&] {
            return scene.lens.part("picRulBottom").isVisible() == shown &&
                   scene.lens.part("picRulRight").isVisible() == shown;
        })) << place;
    }
}

TEST(Magnifier, MenuKeyOpensTheMenuAtTheOriginOfItsWindow) {
    LensScene scene(bareLens());
    const DesktopWindow window = scene.lens.window();
    window.activate();
    keyboard::press(VK_APPS);
    const DesktopWindow menu = waitForTopLevel(scene.scene.program().process().id(), "#32768");
    EXPECT_EQ(menu.rect().origin(), window.clientRect().origin());
    scene.chooseFromMenu(LensEntry::bottomRightScales);
    EXPECT_TRUE(waitUntil([&] { return !scene.lens.part("picRulRight").isVisible(); }));
}

TEST(Magnifier, ItsMenuHidesIt) {
    LensScene scene(bareLens());
    scene.choose(LensEntry::visible);
    scene.lens.window().waitUntilHidden();
    EXPECT_TRUE(toggleIs(scene, BST_UNCHECKED));
}

TEST(Magnifier, ModeKeysWorkWhileItHasTheFocusAndGoOnWorking) {
    LensScene scene(bareLens());
    const DesktopWindow settings = scene.scene.settings();
    const DesktopWindow window = scene.lens.window();
    window.activate();
    for (const auto& [key, caption] : {std::pair<WORD, const char*>{VK_F3, "Ormala - Pause"},
                                       {VK_F4, "Ormala - Template"},
                                       {VK_F2, "Ormala - Edit"},
                                       {VK_F4, "Ormala - Template"},
                                       {VK_F3, "Ormala - Pause"},
                                       {VK_F2, "Ormala - Edit"}}) {
        keyboard::press(key);
        settings.waitForText(caption);
        EXPECT_TRUE(settings.settle());
        EXPECT_TRUE(window.isVisible()) << caption;
    }
    EXPECT_FALSE(settings.isMinimised());
    keyboard::press(VK_F4, Modifiers::Shift);
    settings.waitForText("Ormala - Template");
    EXPECT_TRUE(waitUntil([&] { return settings.isMinimised(); }));
}

TEST(Magnifier, OptionsAreItsOwnAndGiveTheFocusBack) {
    LensScene scene(bareLens());
    const DesktopWindow window = scene.lens.window();
    window.activate();
    for (const WORD leaving : {WORD{VK_ESCAPE}, WORD{VK_RETURN}}) {
        keyboard::press(VK_F12);
        const DesktopWindow dialog = scene.scene.program().waitForWindow("frmOptions");
        EXPECT_TRUE(dialog.named("picTab(2)").isVisible());
        keyboard::press(leaving);
        dialog.waitUntilHidden();
        EXPECT_TRUE(waitUntil([&] { return window.isForeground(); }));
    }
}

TEST(Magnifier, StandsBesideTheMouseAndTurnsAroundInTheCorner) {
    LensScene scene(withKeys(bareLens(), {{"LensSticked", "-1"}, {"Mode", " 2"}}));
    const DesktopWindow window = scene.lens.window();
    const ScreenRect all = screen::primaryMonitor();
    const ScreenRect size = window.rect();
    const auto standsAt = [&](ScreenPoint cursor, ScreenPoint corner) {
        scene.scene.mouse.moveTo(cursor);
        const bool there = waitUntil([&] { return window.rect().origin() == corner; });
        EXPECT_TRUE(there) << "at " << cursor << " it is " << window.rect();
        EXPECT_TRUE(isInside(all, window.rect()));
    };
    const int right = scaled(scene, 24);
    const int below = scaled(scene, 32);
    standsAt({200, 150}, {200 + right, 150 + below});
    standsAt({201, 151}, {201 + right, 151 + below});
    // Along the lower edge, along the right one, and above the pointer where they meet.
    standsAt({200, all.bottom - 50}, {200 + right, all.bottom - size.height()});
    standsAt({all.right - 50, 150}, {all.right - size.width(), 150 + below});
    standsAt({all.right - 50, all.bottom - 50},
             {all.right - size.width(), all.bottom - 50 - size.height() - right});
    standsAt({all.right - 1, all.bottom - 1},
             {all.right - size.width(), all.bottom - 1 - size.height() - right});
    EXPECT_TRUE(scene.lens.showsScreen({all.right - 1, all.bottom - 1}, 4));
    EXPECT_EQ(window.text(), "");
}

TEST(Magnifier, StaysOpaqueBesideTheMouseInEditMode) {
    LensScene scene(withKeys(bareLens(), {{"LensSticked", "-1"}}));
    const DesktopWindow window = scene.lens.window();
    EXPECT_EQ(window.layering().alpha.value_or(255), 255);
    scene.scene.settings().post(WM_SYSCOMMAND, 1011);
    scene.scene.settings().waitForText("Ormala - Template");
    EXPECT_FALSE(window.hasExtendedStyle(WS_EX_LAYERED));
    EXPECT_TRUE(window.isTopmost());
    EXPECT_TRUE(scene.lens.showsScreen(LensScene::spot, 4));
}

TEST(Magnifier, StaysAboveTheControlWindowBesideTheMouse) {
    LensScene scene(withKeys(bareLens(), {{"LensSticked", "-1"}, {"LensRulBOrigin", " 1"}}));
    const DesktopWindow settings = scene.scene.settings();
    // On its path line, where no button grows and the magnifier beside the mouse lies over it.
    const ScreenPoint ground =
        settings.clientRect().origin() + ScreenPoint{scaled(scene, 60), scaled(scene, 140)};
    const auto expectUncovered = [&] {
        // It slides along the edge of the screen.
        const int last = screen::primaryMonitor().right - scene.lens.window().rect().width();
        const ScreenPoint corner{std::min(ground.x + scaled(scene, 24), last),
                                 ground.y + scaled(scene, 32)};
        ASSERT_TRUE(waitUntil([&] { return scene.lens.window().rect().origin() == corner; }));
        EXPECT_TRUE(LensScales(scene.lens, 4, false).columnsAre("picRulBottom", 0));
    };
    for (int i = 0; i < 2; ++i) {
        scene.scene.mouse.click(ground);
        ASSERT_TRUE(waitUntil([&] { return settings.isForeground(); }));
        expectUncovered();
        // A worksheet that comes forward takes the control window with it.
        scene.scene.mouse.click(scene.scene.onScreen({20, 20}));
        scene.scene.mouse.moveTo(ground);
        expectUncovered();
    }
}

TEST(Magnifier, WorksInPauseModeToo) {
    LensScene scene(bareLens());
    scene.scene.press("btnMode(2)");
    scene.scene.settings().waitForText("Ormala - Pause");
    scene.scene.worksheet().waitUntilHidden();
    EXPECT_TRUE(scene.lens.window().isVisible());
    for (const ScreenPoint cursor : {LensScene::spot, LensScene::spot + ScreenPoint{31, -17}}) {
        scene.scene.mouse.moveTo(cursor);
        EXPECT_TRUE(scene.lens.showsScreen(cursor, 4));
    }
}

TEST(Magnifier, ClosingItTurnsTheToggleOff) {
    LensScene scene(bareLens());
    const DesktopWindow window = scene.lens.window();
    const ScreenRect place = window.rect();
    window.post(WM_SYSCOMMAND, SC_CLOSE);
    window.waitUntilHidden();
    EXPECT_TRUE(toggleIs(scene, BST_UNCHECKED));
    scene.scene.press("chkLens");
    window.waitUntilVisible();
    EXPECT_TRUE(toggleIs(scene, BST_CHECKED));
    EXPECT_EQ(window.rect(), place);
    window.activate();
    keyboard::press(VK_F4, Modifiers::Alt);
    window.waitUntilHidden();
    EXPECT_TRUE(toggleIs(scene, BST_UNCHECKED));
    EXPECT_EQ(scene.scene.settings().text(), "Ormala - Edit");
    EXPECT_EQ(scene.scene.program().close(), 0U);
    EXPECT_EQ(SettingsFile::read(scene.scene.data().optionsFile()).number("Options", "LensVisible"),
              0);
}

TEST(Magnifier, FillsItsWindowAtEachSizeAndComesBackThere) {
    LensScene scene(withKeys(bareLens(), {{"Mode", " 2"}}));
    const ScreenPoint corner{scaled(scene, 180), scaled(scene, 90)};
    ScreenRect place;
    for (const ScreenPoint size :
         {ScreenPoint{401, 307}, ScreenPoint{64, 64}, ScreenPoint{322, 250}}) {
        place = {corner.x, corner.y, corner.x + scaled(scene, size.x),
                 corner.y + scaled(scene, size.y)};
        SetWindowPos(scene.lens.window().handle(), nullptr, place.left, place.top, place.width(),
                     place.height(), SWP_NOZORDER | SWP_NOACTIVATE);
        ASSERT_TRUE(waitUntil([&] { return scene.lens.window().rect() == place; }))
            << scene.lens.window().rect();
        EXPECT_TRUE(scene.lens.showsScreen(LensScene::spot, 4)) << size;
    }
    scene.restart();
    EXPECT_EQ(scene.lens.window().rect(), place);
    scene.scene.mouse.moveTo(LensScene::spot + ScreenPoint{1, 1});
    EXPECT_TRUE(scene.lens.showsScreen(LensScene::spot + ScreenPoint{1, 1}, 4));
}

/// Starts with a magnifier that was left at a place that no screen has.
void expectOnScreen(const Keys& place) {
    SettingsFile options = withKeys(bareLens(), {{"Mode", " 2"}});
    for (const auto& [key, value] : place) {
        options.set("FormLens", key, value);
    }
    LensScene scene(options);
    const ScreenRect rect = scene.lens.window().rect();
    EXPECT_TRUE(isInside(screen::primaryMonitor(), rect)) << rect;
    EXPECT_GE(rect.width(), 64);
    EXPECT_GE(rect.height(), 64);
    EXPECT_FALSE(scene.lens.window().isMinimised());
    EXPECT_EQ(scene.scene.program().close(), 0U);
}

TEST(Magnifier, ComesOntoTheScreenFromFarAway) {
    expectOnScreen(
        {{"Left", " 90000"}, {"Top", "-90000"}, {"Right", " 90400"}, {"Bottom", "-89700"}});
}

TEST(Magnifier, FitsTheScreenFromAHugePlace) {
    expectOnScreen({{"Left", "-2000000000"},
                    {"Top", "-2000000000"},
                    {"Right", " 2000000000"},
                    {"Bottom", " 2000000000"}});
}

TEST(Magnifier, HasItsLeastSizeFromAPlaceThatIsInsideOut) {
    expectOnScreen({{"Left", " 500"}, {"Top", " 400"}, {"Right", " 300"}, {"Bottom", " 200"}});
}

TEST(Magnifier, StatesOfTheWindowThatItCannotHaveDoNoHarm) {
    expectOnScreen({{"WindowState", " 3"}});
    expectOnScreen({{"WindowState", " 2"}});
}

TEST(Magnifier, NumbersBeyondTheirRangeDoNoHarm) {
    LensScene scene(withKeys(bareLens(), {{"Mode", " 2"},
                                          {"LensFactor", " 99"},
                                          {"LensHotSpotOn", "-1"},
                                          {"LensHotSpotStyle", " 77"},
                                          {"LensHotSpotDrawMode", "-3"},
                                          {"LensGridDrawMode", " 400"},
                                          {"LensRulTOrigin", " 9"},
                                          {"LensRulBOrigin", "-1"}}));
    scene.lens.window().waitForText("Magnifier 10 X");
    EXPECT_TRUE(scene.lens.showsScreen(LensScene::spot, 10))
        << "a style that is none draws nothing";
    // The grid's draw mode is none either: what is under its lines stays.
    scene.choose(LensEntry::grid);
    EXPECT_TRUE(waitUntil([&] {
        scene.scene.mouse.moveTo(LensScene::spot);
        const LensView view = scene.lens.view(LensScene::spot, 10, true);
        const Picture all =
            enlarged(scene.scene.backdrop().picture(view.source), 10, view.image.origin());
        // The image takes another size with the grid.
        return all.rect().width() >= view.image.width() &&
               all.rect().height() >= view.image.height() &&
               difference(all.part(view.image), screen::capture(view.image)).empty();
    }));
    EXPECT_EQ(scene.scene.program().close(), 0U);
}

TEST(Magnifier, FactorBelowOneIsOne) {
    LensScene scene(withKeys(bareLens(), {{"Mode", " 2"}, {"LensFactor", "-4"}}));
    scene.lens.window().waitForText("Magnifier 1 X");
    EXPECT_TRUE(scene.lens.showsScreen(LensScene::spot, 1));
}

}  // namespace
}  // namespace ormala::test
