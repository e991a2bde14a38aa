#include <gtest/gtest.h>

#include "app/win/shell/Program.h"
#include "app/win/shell/settingsIds.h"
#include "e2e/support/AppDataFolder.h"
#include "platform/win/controlName.h"
#include "platform/win/regions.h"
#include "stencil/ctlRatioGrid.h"
#include "support/win/Wait.h"
#include "win/ModalPlayer.h"

namespace ormala {
namespace {

/// The keyboard in the control window of the running program.
class PanelKeys : public testing::Test {
  protected:
    PanelKeys() {
        SetForegroundWindow(settings_.handle());
        SetActiveWindow(settings_.handle());
    }
    ~PanelKeys() override { hold(0); }

    [[nodiscard]] HWND panel(const wchar_t* className) const {
        return FindWindowExW(inner(), nullptr, className, nullptr);
    }
    [[nodiscard]] HWND inner() const { return namedChild(settings_.handle(), "picInner"); }
    [[nodiscard]] HWND stencil() const { return panel(L"ctlSetRatioGrid"); }
    [[nodiscard]] HWND measure() const { return panel(L"ctlSetMeasure"); }
    /// A modifier is down from now on, or none.
    static void hold(int virtualKey) {
        BYTE keys[256]{};
        keys[virtualKey] = virtualKey != 0 ? 0x80 : 0;
        SetKeyboardState(keys);
    }
    bool press(int virtualKey) {
        MSG message{};
        message.hwnd = GetFocus();
        message.message = WM_KEYDOWN;
        message.wParam = static_cast<WPARAM>(virtualKey);
        return program_.preview(message);
    }
    /// Where the Tab key goes from a control.
    std::string afterTab(HWND from, bool backwards = false) {
        SetFocus(from);
        hold(backwards ? VK_SHIFT : 0);
        EXPECT_TRUE(press(VK_TAB));
        hold(0);
        const HWND focus = GetFocus();
        return controlName(panelOf(focus)) + "/" + controlName(focus);
    }
    /// The panel that a control stands in, or else its parent.
    [[nodiscard]] HWND panelOf(HWND control) const {
        HWND panel = control;
        while (panel != nullptr && GetParent(panel) != inner()) {
            panel = GetParent(panel);
        }
        return panel != nullptr ? panel : GetParent(control);
    }
    [[nodiscard]] ctlRatioGrid& tool() {
        return dynamic_cast<ctlRatioGrid&>(*program_.worksheet().sheet().GetFirstControl(0));
    }

    test::AppDataFolder folder_;
    Program program_{false};
    frmSettings& settings_ = program_.settings();
};

TEST_F(PanelKeys, TabFromTheGroundOfAPanelGoesIntoIt) {
    const std::string own = controlName(stencil());
    EXPECT_EQ(afterTab(stencil()), own + "/cmdPause");
    EXPECT_EQ(afterTab(measure()), controlName(measure()) + "/cmdPause");
    EXPECT_EQ(afterTab(measure(), true), own + "/cmdSendMouseInput");
}

TEST_F(PanelKeys, TabPassesThePictureOfThePatterns) {
    const HWND picture = namedChild(stencil(), "imgPattern");
    EXPECT_EQ(GetWindowLongPtrW(picture, GWL_STYLE) & WS_TABSTOP, 0);
    const std::string own = controlName(stencil());
    EXPECT_EQ(afterTab(namedChild(stencil(), "cmdMove(11)")), own + "/cmdAngle(0)");
    EXPECT_EQ(afterTab(namedChild(stencil(), "cmdAngle(0)"), true), own + "/cmdMove(11)");
}

TEST_F(PanelKeys, TabGoesOnFromAButtonThatHasGrown) {
    const HWND grown = namedChild(stencil(), "cmdMove(4)");
    // In front of all others, as growing leaves it.
    SetWindowPos(grown, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    const std::string own = controlName(stencil());
    EXPECT_EQ(afterTab(grown), own + "/cmdMove(5)");
    EXPECT_EQ(afterTab(grown, true), own + "/cmdMove(15)");
    EXPECT_EQ(afterTab(namedChild(stencil(), "cmdMove(15)")), own + "/cmdMove(4)");
}

TEST_F(PanelKeys, TabGoesThroughTheToolbarPastAButtonThatHasGrown) {
    const HWND grown = namedChild(settings_.handle(), "cmdSave");
    SetWindowPos(grown, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    EXPECT_EQ(afterTab(grown), "/cmdSaveAs");
    EXPECT_EQ(afterTab(namedChild(settings_.handle(), "cmdLoad")), "/cmdSave");
}

TEST_F(PanelKeys, TheFocusedButtonOfAHalfHiddenPanelIsScrolledIntoView) {
    ToolList& tools = program_.tools().tools();
    for (int i = 0; i < 6; ++i) {
        tools.AddNewControl(0);
    }
    const HWND outer = namedChild(settings_.handle(), "picOuter");
    const auto isInView = [outer](HWND control) {
        RECT place{};
        GetWindowRect(control, &place);
        RECT shown{};
        GetWindowRect(outer, &shown);
        return place.top >= shown.top && place.bottom <= shown.bottom;
    };
    const HWND last = GetWindow(GetWindow(inner(), GW_CHILD), GW_HWNDLAST);
    for (const HWND panel : {stencil(), last}) {
        SetFocus(panel);
        const HWND button = namedChild(panel, "cmdPause");
        // What is still on its way to the window may take the focus elsewhere.
        ASSERT_TRUE(test::waitUntil([button] {
            SetFocus(button);
            test::pause(test::milliseconds{1});
            return GetFocus() == button;
        }));
        for (int notch = 0; notch < 20; ++notch) {
            program_.tools().Scroll(panel != last ? -1 : 1);
        }
        ASSERT_FALSE(isInView(GetFocus()));
        ASSERT_TRUE(press(VK_TAB));
        EXPECT_EQ(controlName(GetFocus()), "cmdDelete");
        EXPECT_TRUE(isInView(GetFocus()));
    }
}

TEST_F(PanelKeys, CtrlZAndCtrlYWorkOnTheSelectedToolAndKeepWhatTheKeysMoved) {
    program_.worksheet().sheet().SelectControl(tool());
    const double left = tool().RectBound().left;
    // As an arrow key moves it on the worksheet: in no record yet.
    tool().keyDown(VK_RIGHT, 0);
    ASSERT_NEAR(tool().RectBound().left, left + 1, 0.01);
    SetFocus(namedChild(settings_.handle(), "cmdHelp"));
    EXPECT_FALSE(press('Z'));
    hold(VK_CONTROL);
    EXPECT_TRUE(press('Z'));
    EXPECT_NEAR(tool().RectBound().left, left, 0.01);
    EXPECT_TRUE(press('Y'));
    EXPECT_NEAR(tool().RectBound().left, left + 1, 0.01);
}

TEST_F(PanelKeys, OnlyTheReleaseOfWhatStartedItEndsAHeldButton) {
    const HWND button = namedChild(stencil(), "cmdMove(1)");
    const double start = tool().RectBound().left;
    const auto stepsOn = [&] {
        const double now = tool().RectBound().left;
        // The longest wait of a held button.
        for (int tick = 0; tick < 11; ++tick) {
            SendMessageW(settings_.handle(), WM_TIMER, tmrFast, 0);
        }
        return tool().RectBound().left > now;
    };
    SendMessageW(button, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    EXPECT_NEAR(tool().RectBound().left, start + 1, 0.01);
    EXPECT_TRUE(stepsOn());
    for (const int key : {VK_CONTROL, VK_SPACE, VK_ESCAPE, int{'A'}}) {
        SendMessageW(button, WM_KEYDOWN, static_cast<WPARAM>(key), 1);
        SendMessageW(button, WM_KEYUP, static_cast<WPARAM>(key), 1);
        EXPECT_TRUE(stepsOn()) << key;
    }
    SendMessageW(button, WM_RBUTTONDOWN, MK_LBUTTON | MK_RBUTTON, MAKELPARAM(5, 5));
    EXPECT_TRUE(stepsOn());
    SendMessageW(button, WM_RBUTTONUP, MK_LBUTTON, MAKELPARAM(5, 5));
    EXPECT_EQ(GetCapture(), button);
    EXPECT_TRUE(stepsOn());
    SendMessageW(button, WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
    EXPECT_EQ(GetCapture(), nullptr);
    const double end = tool().RectBound().left;
    for (int tick = 0; tick < 20; ++tick) {
        SendMessageW(settings_.handle(), WM_TIMER, tmrFast, 0);
    }
    EXPECT_EQ(tool().RectBound().left, end);
    SendMessageW(namedChild(stencil(), "cmdUndo"), BM_CLICK, 0, 0);
    EXPECT_NEAR(tool().RectBound().left, start, 0.01);
}

TEST_F(PanelKeys, ALostCaptureEndsAHeldButton) {
    const HWND button = namedChild(stencil(), "cmdMove(1)");
    SendMessageW(button, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    ReleaseCapture();
    const double end = tool().RectBound().left;
    for (int tick = 0; tick < 20; ++tick) {
        SendMessageW(settings_.handle(), WM_TIMER, tmrFast, 0);
    }
    EXPECT_EQ(tool().RectBound().left, end);
}

TEST_F(PanelKeys, NoButtonGrowsWhileTheWindowTakesNoInput) {
    const HWND button = namedChild(stencil(), "cmdDelete");
    RECT rest{};
    GetWindowRect(button, &rest);
    const auto width = [button] {
        RECT place{};
        GetWindowRect(button, &place);
        return place.right - place.left;
    };
    SetCursorPos((rest.left + rest.right) / 2, (rest.top + rest.bottom) / 2);
    EXPECT_TRUE(test::waitUntil([&] { return width() > rest.right - rest.left; }));
    EnableWindow(settings_.handle(), FALSE);
    EXPECT_TRUE(test::waitUntil([&] { return width() == rest.right - rest.left; }));
    constexpr UINT_PTR tmrButtonBigOfPanel = 1;
    for (int tick = 0; tick < 3; ++tick) {
        SendMessageW(stencil(), WM_TIMER, tmrButtonBigOfPanel, 0);
        EXPECT_EQ(width(), rest.right - rest.left);
    }
    EnableWindow(settings_.handle(), TRUE);
}

TEST_F(PanelKeys, AClickOnTheSwatchLeavesTheKeysToThoseWhoHadThem) {
    const HWND swatch = namedChild(settings_.handle(), "colorWorksheet");
    const auto click = [swatch] {
        SendMessageW(swatch, WM_MOUSEACTIVATE,
                     reinterpret_cast<WPARAM>(GetAncestor(swatch, GA_ROOT)),
                     MAKELPARAM(HTCLIENT, WM_LBUTTONDOWN));
        SetActiveWindow(GetAncestor(swatch, GA_ROOT));
        SendMessageW(swatch, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(7, 7));
        SendMessageW(swatch, WM_LBUTTONUP, 0, MAKELPARAM(7, 7));
    };
    const HWND help = namedChild(settings_.handle(), "cmdHelp");
    SetFocus(help);
    click();
    EXPECT_EQ(GetFocus(), help);
    const HWND sheet = program_.worksheet().handle();
    SetFocus(sheet);
    ASSERT_EQ(GetFocus(), sheet);
    click();
    EXPECT_EQ(GetFocus(), sheet);
    SetFocus(swatch);
    EXPECT_EQ(GetFocus(), swatch) << "the keyboard reaches it as ever";
}

}  // namespace
}  // namespace ormala
