#include <gtest/gtest.h>
#include <windows.h>

#include "e2e/OwnWindow.h"
#include "e2e/stagePlaces.h"
#include "e2e/support/Desktop.h"
#include "e2e/support/StageService.h"
#include "e2e/support/placedWindows.h"

namespace ormala::test {
namespace {

DesktopWindow addChild(HWND parent, const wchar_t* className, const wchar_t* text,
                       const wchar_t* name) {
    const HWND child = CreateWindowExW(0, className, text, WS_CHILD | WS_VISIBLE, 10, 10, 80, 20,
                                       parent, nullptr, GetModuleHandleW(nullptr), nullptr);
    const ATOM atom = GlobalAddAtomW(name);
    SetPropW(child, L"Name", reinterpret_cast<HANDLE>(static_cast<UINT_PTR>(atom)));
    return DesktopWindow(child);
}

TEST(Stage, WindowsOfAProgramAreFoundByClass) {
    const Backdrop backdrop(plain);
    const DWORD id = backdrop.process().id();
    EXPECT_EQ(findTopLevel(id, "OrmalaBackdrop"), backdrop.window());
    EXPECT_FALSE(findTopLevel(id, "frmSettings").exists());
    EXPECT_FALSE(findTopLevel(GetCurrentProcessId(), "OrmalaBackdrop").exists());
    EXPECT_EQ(backdrop.window().className(), "OrmalaBackdrop");
    EXPECT_EQ(backdrop.window().processId(), id);
}

TEST(Stage, ControlsAreFoundByClassAndName) {
    const OwnWindow parent(windowPlace, WS_EX_TOOLWINDOW, 0);
    const DesktopWindow first = addChild(parent.handle(), L"Static", L"one", L"lblOne");
    const DesktopWindow second = addChild(parent.handle(), L"Static", L"two", L"lblTwo");
    const DesktopWindow edit = addChild(first.handle(), L"Edit", L"12,5 \u00b5", L"txnInner");
    EXPECT_EQ(parent.window().descendants().size(), 3U);
    EXPECT_EQ(parent.window().child("Static"), first);
    EXPECT_EQ(parent.window().child("Static", "lblTwo"), second);
    EXPECT_EQ(parent.window().named("txnInner"), edit);
    EXPECT_EQ(edit.name(), "txnInner");
    EXPECT_EQ(edit.text(), "12,5 \u00b5");
    EXPECT_FALSE(parent.window().named("lblThree").exists());
    EXPECT_EQ(parent.window().name(), "");
}

TEST(Stage, StateOfAWindowIsSeenFromOutside) {
    const Backdrop backdrop(plain);
    const DesktopWindow& window = backdrop.window();
    EXPECT_TRUE(window.isVisible() && window.isEnabled() && !window.isTopmost());
    EXPECT_TRUE(window.hasStyle(WS_POPUP) && !window.hasStyle(WS_CAPTION));
    EXPECT_EQ(window.layering(), Layering());
    window.activate();
    EXPECT_TRUE(window.isForeground());
    EXPECT_FALSE(window.isMinimised());
    ShowWindow(window.handle(), SW_MINIMIZE);
    EXPECT_TRUE(waitUntil([&] { return window.isMinimised(); }));
    EXPECT_FALSE(window.hasProperty(L"Ready"));
}

TEST(Stage, AWindowIsPlacedWhenTheDisplayShowsIt) {
    const StageService stage(L"ORMALA_DEVICE");
    if (!stage.isThere()) {
        return;
    }
    OwnWindow window(windowPlace, WS_EX_TOPMOST | WS_EX_TOOLWINDOW, 0);
    window.show();
    waitUntilPlaced({window.window()});
    const std::string name = std::to_string(displayWindow(window.window()));
    stage.request("windowunmap --sync " + name);
    EXPECT_FALSE(arePlaced({window.window()}));
    stage.request("windowmap --sync " + name);
    waitUntilPlaced({window.window()});
}

TEST(Stage, AWindowKeepsItsPlaceWhenTheWindowManagerBeginsAnew) {
    const StageService stage(L"ORMALA_DEVICE");
    if (!stage.isThere()) {
        return;
    }
    OwnWindow window(windowPlace, WS_EX_TOPMOST | WS_EX_TOOLWINDOW, 0);
    window.show();
    waitUntilPlaced({window.window()});
    placeAnew();
    waitUntilPlaced({window.window()});
    EXPECT_EQ(window.window().rect(), windowPlace);
    Mouse().click(windowPlace.center());
    EXPECT_EQ(window.presses(), 1);
}

TEST(Stage, LayeringOfAWindowIsRead) {
    OwnWindow front(windowPlace, WS_EX_LAYERED | WS_EX_TOPMOST | WS_EX_TOOLWINDOW, 0);
    SetLayeredWindowAttributes(front.handle(), 0x00010203, 200, LWA_COLORKEY | LWA_ALPHA);
    EXPECT_EQ(front.window().layering(), (Layering{0x00010203, 200}));
    SetLayeredWindowAttributes(front.handle(), 0x00010203, 200, LWA_ALPHA);
    EXPECT_EQ(front.window().layering(), (Layering{std::nullopt, 200}));
    EXPECT_TRUE(front.window().isTopmost());
}

TEST(Stage, TipUnderTheMouseIsRead) {
    const std::string tip = "A tip with \u00fc, longer than a title";
    const Backdrop backdrop(plain, {tip, ""});
    EXPECT_EQ(shownTip(backdrop.process().id()), "");
    Mouse mouse;
    mouse.moveTo({600, 400});
    mouse.moveTo({610, 410});
    EXPECT_TRUE(waitUntil([&] { return shownTip(backdrop.process().id()) == tip; }))
        << shownTip(backdrop.process().id());
}

TEST(Stage, MessageBoxIsReadAndAnswered) {
    const Backdrop backdrop(plain, {"", "Shall it be so?"});
    const DWORD id = backdrop.process().id();
    const auto box = MessageBoxWindow::waitFor(id, "Backdrop");
    EXPECT_EQ(box.text(), "Shall it be so?");
    EXPECT_TRUE(box.hasButton(IDYES) && box.hasButton(IDNO) && !box.hasButton(IDCANCEL));
    EXPECT_TRUE(MessageBoxWindow::isShown(id, "Backdrop"));
    EXPECT_THROW(box.answer(IDCANCEL), StageFailure);
    box.answer(IDYES);
    EXPECT_FALSE(MessageBoxWindow::isShown(id, "Backdrop"));
    backdrop.waitFor("answer", [](const auto& now) { return now.answer == IDYES; });
}

TEST(Stage, ButtonOfAMessageBoxIsClickedWithTheMouse) {
    const Backdrop backdrop(plain, {"", "Shall it be so?"});
    const auto box = MessageBoxWindow::waitFor(backdrop.process().id(), "Backdrop");
    Mouse mouse;
    mouse.click(box.window().item(IDNO).center());
    box.window().waitUntilClosed();
    backdrop.waitFor("answer", [](const auto& now) { return now.answer == IDNO; });
}

TEST(Stage, WaitingInVainFails) {
    const OwnWindow hidden(windowPlace, WS_EX_TOOLWINDOW, 0);
    constexpr milliseconds shortly{30};
    EXPECT_THROW(hidden.window().waitUntilVisible(shortly), StageFailure);
    EXPECT_THROW(hidden.window().waitForText("else", shortly), StageFailure);
    EXPECT_THROW(hidden.window().waitUntilClosed(shortly), StageFailure);
    EXPECT_THROW(waitForTopLevel(GetCurrentProcessId(), "frmSettings", {}, shortly), StageFailure);
    EXPECT_NO_THROW(hidden.window().waitForText("Own window", shortly));
}

}  // namespace
}  // namespace ormala::test
