#include <gtest/gtest.h>
#include <windows.h>

#include "e2e/OwnWindow.h"
#include "e2e/stagePlaces.h"
#include "e2e/support/Desktop.h"

namespace ormala::test {
namespace {

TEST(Stage, ClickIsCountedAtItsExactPlace) {
    const Backdrop backdrop(plain);
    Mouse mouse;
    const ScreenRect all = backdrop.rect();
    int clicks = 0;
    for (const ScreenPoint point :
         {all.origin(), ScreenPoint{1, 0}, ScreenPoint{641, 377}, ScreenPoint{1023, 511},
          ScreenPoint{all.right - 1, all.bottom - 1}}) {
        mouse.click(point);
        ++clicks;
        const BackdropReport report =
            backdrop.waitFor("click", [&](const auto& now) { return now.leftUp == clicks; });
        EXPECT_EQ(report.leftDown, clicks);
        EXPECT_EQ(report.lastDown(), point);
        EXPECT_EQ(report.lastUp(), point);
    }
    EXPECT_EQ(backdrop.report().rightDown + backdrop.report().middleDown, 0);
}

TEST(Stage, EachButtonIsCountedWithItsModifiers) {
    const Backdrop backdrop(plain);
    Mouse mouse;
    mouse.click({400, 400}, MouseButton::Right, Modifiers::Ctrl | Modifiers::Shift);
    const BackdropReport right =
        backdrop.waitFor("right click", [](const auto& now) { return now.rightUp == 1; });
    EXPECT_EQ(right.downModifiers, 3);
    mouse.click({420, 400}, MouseButton::Middle);
    const BackdropReport middle =
        backdrop.waitFor("middle click", [](const auto& now) { return now.middleUp == 1; });
    EXPECT_EQ(middle.downModifiers, 0);
    EXPECT_EQ(middle.clicks(), 2);
    EXPECT_EQ(middle.leftDown, 0);
}

TEST(Stage, DoubleClickArrivesAsOne) {
    const Backdrop backdrop(plain);
    Mouse mouse;
    mouse.doubleClick({500, 500});
    const BackdropReport report =
        backdrop.waitFor("second click", [](const auto& now) { return now.leftUp == 2; });
    EXPECT_EQ(report.doubleClicks, 1);
}

TEST(Stage, FiftyDragsEndAtTheirExactPoint) {
    const Backdrop backdrop(plain);
    Mouse mouse;
    for (int i = 0; i < 50; ++i) {
        const ScreenPoint from{200 + 7 * i, 900 - 13 * i};
        const ScreenPoint to{1500 - 11 * i, 150 + 5 * i};
        backdrop.reset();
        mouse.drag(from, to, 6);
        const BackdropReport report =
            backdrop.waitFor("release", [](const auto& now) { return now.leftUp == 1; });
        ASSERT_EQ(report.lastDown(), from) << "drag " << i;
        ASSERT_EQ(report.lastUp(), to) << "drag " << i;
        ASSERT_EQ(report.lastPlace(), to) << "drag " << i;
        ASSERT_GE(report.dragMoves, 6) << "drag " << i;
    }
}

TEST(Stage, MouseReleasesAtItsEndWhatItHolds) {
    const Backdrop backdrop(plain);
    {
        Mouse mouse;
        mouse.moveTo({640, 480});
        mouse.press();
        EXPECT_EQ(backdrop.report().leftUp, 0);
    }
    backdrop.waitFor("release", [](const auto& now) { return now.leftUp == 1; });
}

TEST(Stage, WheelNotchesAreCountedInTheirDirection) {
    const Backdrop backdrop(plain);
    backdrop.window().activate();
    Mouse mouse;
    mouse.moveTo({640, 480});
    mouse.wheel(3);
    backdrop.waitFor("three notches", [](const auto& now) { return now.wheel == 3; });
    mouse.wheel(-5, Modifiers::Ctrl);
    const BackdropReport report =
        backdrop.waitFor("five notches back", [](const auto& now) { return now.wheel == -2; });
    EXPECT_EQ(report.wheelModifiers, 2);
}

TEST(Stage, KeysReachTheForegroundWindow) {
    const Backdrop backdrop(plain);
    backdrop.window().activate();
    for (const int key : {VK_LEFT, VK_F2, VK_DELETE, VK_ESCAPE, int{'Z'}}) {
        backdrop.reset();
        keyboard::press(static_cast<WORD>(key));
        const BackdropReport report =
            backdrop.waitFor("key", [](const auto& now) { return now.keyUp == 1; });
        EXPECT_EQ(report.lastKey, key);
        EXPECT_EQ(report.keyDown, 1);
        EXPECT_EQ(report.keyModifiers, 0);
    }
}

TEST(Stage, ModifiersAreHeldAroundTheKeys) {
    const Backdrop backdrop(plain);
    backdrop.window().activate();
    for (const auto& [modifiers, count] : {std::pair{Modifiers::Shift, 1},
                                           {Modifiers::Ctrl, 1},
                                           {Modifiers::Alt, 1},
                                           {Modifiers::Shift | Modifiers::Ctrl, 2},
                                           {Modifiers::Ctrl | Modifiers::Alt, 2}}) {
        backdrop.reset();
        keyboard::press(VK_RIGHT, modifiers, 4);
        const int all = 4 + count;
        const BackdropReport report =
            backdrop.waitFor("all keys", [all](const auto& now) { return now.keyUp == all; });
        EXPECT_EQ(report.keyDown, all);
        EXPECT_EQ(report.lastKey, VK_RIGHT);
        EXPECT_EQ(report.keyModifiers, static_cast<int>(modifiers));
        EXPECT_GE(GetAsyncKeyState(VK_SHIFT), 0);
        EXPECT_GE(GetAsyncKeyState(VK_CONTROL), 0);
        EXPECT_GE(GetAsyncKeyState(VK_MENU), 0);
    }
}

TEST(Stage, TypedTextArrivesAsCharacters) {
    const Backdrop backdrop(plain);
    backdrop.window().activate();
    keyboard::type("\u00b5");
    backdrop.waitFor("micro sign", [](const auto& now) { return now.lastCharacter == 0xB5; });
    keyboard::type("a\u03a9");
    backdrop.waitFor("omega", [](const auto& now) { return now.lastCharacter == 0x3A9; });
}

TEST(Stage, ClickFallsThroughATransparentWindow) {
    const Backdrop backdrop(plain);
    OwnWindow front(windowPlace,
                    WS_EX_LAYERED | WS_EX_TRANSPARENT | WS_EX_TOPMOST | WS_EX_TOOLWINDOW,
                    0x0020E0A0);
    SetLayeredWindowAttributes(front.handle(), 0, 128, LWA_ALPHA);
    front.show();
    Mouse mouse;
    mouse.click(windowPlace.center());
    const BackdropReport report =
        backdrop.waitFor("click", [](const auto& now) { return now.leftUp == 1; });
    EXPECT_EQ(report.lastUp(), windowPlace.center());
    EXPECT_EQ(front.presses(), 0);
}

TEST(Stage, ClickIsTakenByAWindowThatIsNotTransparent) {
    const Backdrop backdrop(plain);
    OwnWindow front(windowPlace, WS_EX_LAYERED | WS_EX_TOPMOST | WS_EX_TOOLWINDOW, 0x0020E0A0);
    SetLayeredWindowAttributes(front.handle(), 0, 128, LWA_ALPHA);
    front.show();
    Mouse mouse;
    mouse.click(windowPlace.center());
    EXPECT_TRUE(waitUntil([&] { return front.presses() == 1; }));
    EXPECT_EQ(backdrop.report().leftDown, 0);
}

}  // namespace
}  // namespace ormala::test
