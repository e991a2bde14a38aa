#include "app/win/tools/ToolsPane.h"

#include <gtest/gtest.h>

#include <chrono>
#include <functional>

#include "app/win/shell/Program.h"
#include "e2e/support/AppDataFolder.h"
#include "language/MlStringModule.h"
#include "platform/win/controlName.h"
#include "platform/win/text.h"
#include "stencil/ctlRatioGrid.h"
#include "support/win/Wait.h"
#include "win/ModalPlayer.h"
#include "win/TestSheet.h"

namespace ormala {
namespace {

std::string toolTextOf(HWND window) {
    wchar_t text[400]{};
    GetWindowTextW(window, text, 400);
    return narrow(text);
}

/// The panels of the running program.
class ToolsPaneTest : public testing::Test {
  protected:
    [[nodiscard]] HWND panel(const wchar_t* className) const {
        const HWND inner = namedChild(settings_.handle(), "picInner");
        return FindWindowExW(inner, nullptr, className, nullptr);
    }
    [[nodiscard]] HWND stencil() const { return panel(L"ctlSetRatioGrid"); }
    [[nodiscard]] HWND measure() const { return panel(L"ctlSetMeasure"); }
    static void click(HWND panel, std::string_view name) {
        SendMessageW(namedChild(panel, name), BM_CLICK, 0, 0);
    }
    [[nodiscard]] bool isAnyStencilShownAsSelected() const {
        constexpr COLORREF selectedGround = 0x4A4A4A;
        for (HWND each = stencil(); each != nullptr; each = GetWindow(each, GW_HWNDNEXT)) {
            UpdateWindow(each);
            if (readClient(each).at(2, 30) == selectedGround) {
                return true;
            }
        }
        return false;
    }
    /// Nothing else happens meanwhile: the mouse, which nobody holds, tells no window so.
    static bool waitWhileTimersTick(const std::function<bool()>& predicate) {
        const auto start = std::chrono::steady_clock::now();
        while (!predicate() && std::chrono::steady_clock::now() - start < test::usualDeadline) {
            MSG tick{};
            if (PeekMessageW(&tick, nullptr, WM_TIMER, WM_TIMER, PM_REMOVE) != FALSE) {
                DispatchMessageW(&tick);
            } else {
                Sleep(1);
            }
        }
        return predicate();
    }
    [[nodiscard]] Sheet& sheet() { return program_.worksheet().sheet(); }

    test::AppDataFolder folder_;
    Program program_{false};
    frmSettings& settings_ = program_.settings();
};

TEST_F(ToolsPaneTest, AFirstStartShowsAPanelOfEachKind) {
    EXPECT_TRUE(IsWindowVisible(stencil()));
    EXPECT_TRUE(IsWindowVisible(measure()));
    EXPECT_EQ(toolTextOf(namedChild(stencil(), "lblTitle")), "Stencil Tool");
    EXPECT_EQ(toolTextOf(namedChild(measure(), "lblTitle")), "Measurement Tool 1");
    EXPECT_EQ(toolTextOf(namedChild(measure(), "lblAngleVert")), "Vertical angle ");
}

TEST_F(ToolsPaneTest, PauseHidesTheToolAndLeavesOnlyItsOwnButton) {
    click(measure(), "cmdPause");
    const OverlayItem* tool = sheet().GetFirstControl(1);
    EXPECT_FALSE(sheet().isVisible(*tool));
    for (const char* name : {"cmdDelete", "cmdColorA", "cmdLineStyle", "optMode(0)", "cmdUndo"}) {
        EXPECT_FALSE(IsWindowEnabled(namedChild(measure(), name))) << name;
    }
    EXPECT_TRUE(IsWindowEnabled(namedChild(measure(), "cmdPause")));
    click(measure(), "cmdPause");
    EXPECT_TRUE(sheet().isVisible(*tool));
    EXPECT_TRUE(IsWindowEnabled(namedChild(measure(), "cmdDelete")));
    EXPECT_FALSE(IsWindowEnabled(namedChild(measure(), "cmdUndo")));
}

TEST_F(ToolsPaneTest, TheFocusOfARemovedPanelGoesOnToItsNeighbourWhoseToolStaysUnselected) {
    ASSERT_TRUE(test::waitUntil([&] { return GetActiveWindow() == settings_.handle(); }));
    SetFocus(namedChild(stencil(), "cmdDelete"));
    click(stencil(), "cmdDelete");
    ASSERT_TRUE(test::waitUntil([&] { return IsWindowVisible(stencil()) == FALSE; }));
    EXPECT_EQ(GetFocus(), measure());
    EXPECT_EQ(sheet().selected(), nullptr);
    SetFocus(nullptr);
    SetFocus(settings_.handle());
    EXPECT_EQ(GetFocus(), measure());
    EXPECT_EQ(sheet().selected(), nullptr);
    click(measure(), "cmdDelete");
    ASSERT_TRUE(test::waitUntil([&] { return IsWindowVisible(measure()) == FALSE; }));
    EXPECT_EQ(GetFocus(), namedChild(settings_.handle(), "picOuter"));
}

TEST_F(ToolsPaneTest, APressJustAfterANewToolIsNotLostToItsPanel) {
    ASSERT_TRUE(test::waitUntil([&] { return GetActiveWindow() == settings_.handle(); }));
    click(settings_.handle(), "cmdAddGrid");
    const HWND next = namedChild(settings_.handle(), "cmdAddMeasure");
    SendMessageW(next, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    ASSERT_FALSE(isAnyStencilShownAsSelected());
    ASSERT_TRUE(waitWhileTimersTick([this] { return isAnyStencilShownAsSelected(); }));
    EXPECT_EQ(GetFocus(), next);
    SendMessageW(next, WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
    EXPECT_EQ(sheet().visibleInArrayOrder().size(), 4U);
}

TEST_F(ToolsPaneTest, ThePressesOfADoubleClickOnRemoveEndThere) {
    const HWND next = namedChild(measure(), "cmdDelete");
    click(stencil(), "cmdDelete");
    MSG press{next, WM_LBUTTONDOWN, MK_LBUTTON, 0, GetTickCount(), {}};
    GetCursorPos(&press.pt);
    EXPECT_TRUE(program_.preview(press));
    MSG onToolbar = press;
    onToolbar.hwnd = namedChild(settings_.handle(), "cmdAddGrid");
    EXPECT_FALSE(program_.preview(onToolbar));
    MSG away = press;
    away.message = WM_MOUSEMOVE;
    away.pt.x += GetSystemMetrics(SM_CXDOUBLECLK) + 1;
    EXPECT_FALSE(program_.preview(away));
    EXPECT_FALSE(program_.preview(press));
}

TEST_F(ToolsPaneTest, ARemovalByKeyKeepsNoPressBack) {
    const HWND button = namedChild(stencil(), "cmdDelete");
    SendMessageW(button, WM_KEYDOWN, VK_SPACE, 1);
    SendMessageW(button, WM_KEYUP, VK_SPACE, 1);
    MSG press{
        namedChild(measure(), "cmdDelete"), WM_LBUTTONDOWN, MK_LBUTTON, 0, GetTickCount(), {}};
    GetCursorPos(&press.pt);
    EXPECT_FALSE(program_.preview(press));
}

TEST_F(ToolsPaneTest, UndoOfADisconnectShowsTheLinesConnectedAgain) {
    const auto connected = [&] {
        return SendMessageW(namedChild(measure(), "optMode(0)"), BM_GETCHECK, 0, 0) == BST_CHECKED;
    };
    EXPECT_TRUE(connected());
    click(measure(), "optMode(1)");
    EXPECT_TRUE(test::waitUntil([&] { return !connected(); }));
    click(measure(), "cmdUndo");
    EXPECT_TRUE(test::waitUntil(connected));
}

TEST_F(ToolsPaneTest, TextsFollowTheLanguageAndComeBack) {
    GetLanguageSupport().ChangeLanguage(languageGerman);
    EXPECT_EQ(toolTextOf(namedChild(stencil(), "lblTitle")), "Schablonenwerkzeug");
    EXPECT_EQ(toolTextOf(namedChild(measure(), "lblTitle")), "Messwerkzeug 1");
    EXPECT_EQ(toolTextOf(namedChild(stencil(), "cmdUndo")), "Rückgängig");
    EXPECT_TRUE(toolTextOf(namedChild(stencil(), "lblPositionTop")).starts_with("oben = "));
    GetLanguageSupport().ChangeLanguage(languageEnglish);
    EXPECT_EQ(toolTextOf(namedChild(stencil(), "lblTitle")), "Stencil Tool");
    EXPECT_EQ(toolTextOf(namedChild(stencil(), "cmdUndo")), "Undo");
}

TEST_F(ToolsPaneTest, PanelsFollowTheResolutionOfTheirMonitor) {
    RECT before{};
    GetClientRect(stencil(), &before);
    RECT place = settings_.rectangle();
    place.right += place.right - place.left;
    place.bottom += place.bottom - place.top;
    SendMessageW(settings_.handle(), WM_DPICHANGED, MAKEWPARAM(192, 192),
                 reinterpret_cast<LPARAM>(&place));
    RECT now{};
    GetClientRect(stencil(), &now);
    const int former = static_cast<int>(GetDpiForSystem());
    EXPECT_NEAR(now.right, MulDiv(before.right, 192, former), 2);
    EXPECT_NEAR(now.bottom, MulDiv(before.bottom, 192, former), 2);
    RECT next{};
    GetWindowRect(measure(), &next);
    RECT first{};
    GetWindowRect(stencil(), &first);
    EXPECT_EQ(next.top, first.bottom);
}

/// The control names of a panel's controls that wait for painting.
std::vector<std::string> waitingForPainting(HWND panel) {
    std::vector<std::string> names;
    if (GetUpdateRect(panel, nullptr, FALSE) != FALSE) {
        names.emplace_back("panel");
    }
    EnumChildWindows(
        panel,
        [](HWND control, LPARAM parameter) -> BOOL {
            if (GetUpdateRect(control, nullptr, FALSE) != FALSE) {
                reinterpret_cast<std::vector<std::string>*>(parameter)->push_back(
                    toolTextOf(control));
            }
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&names));
    return names;
}

TEST_F(ToolsPaneTest, ARefreshRepaintsOnlyTheReadOutThatHasChanged) {
    ToolList& tools = program_.tools().tools();
    SettingControl& core = *tools.LastVisiblePanel(ToolKind::stencil);
    auto& tool = dynamic_cast<ctlRatioGrid&>(core.RefControlControl());
    tool.setRotationAngle(0);
    core.ShowAllProps(true);
    const auto paint = [&] {
        RedrawWindow(stencil(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    };
    paint();
    core.ShowAllProps(true);
    EXPECT_EQ(waitingForPainting(stencil()), std::vector<std::string>{});
    // Too little for the degrees.
    tool.setRotationAngle(0.0006);
    core.ShowAllProps(true);
    EXPECT_EQ(waitingForPainting(stencil()), std::vector<std::string>{"0.001 rad "});
}

TEST_F(ToolsPaneTest, ARefreshOfAMeasuringToolThatStandsStillRepaintsNothing) {
    ToolList& tools = program_.tools().tools();
    SettingControl& core = *tools.LastVisiblePanel(ToolKind::measurement);
    core.ShowAllProps(true);
    RedrawWindow(measure(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    core.ShowAllProps(true);
    EXPECT_EQ(waitingForPainting(measure()), std::vector<std::string>{});
}

TEST_F(ToolsPaneTest, DeleteRemovesTheFirstPairFromSight) {
    click(stencil(), "cmdDelete");
    EXPECT_TRUE(test::waitUntil([&] { return IsWindowVisible(stencil()) == FALSE; }));
    EXPECT_FALSE(sheet().isVisible(*sheet().GetFirstControl(0)));
    RECT place{};
    GetWindowRect(measure(), &place);
    RECT inner{};
    GetWindowRect(namedChild(settings_.handle(), "picInner"), &inner);
    EXPECT_EQ(place.top, inner.top);
}

/// Counts the windows in another one that the system has asked to paint themselves.
class AskedToPaint {
  public:
    explicit AskedToPaint(HWND around)
        : hook_(SetWindowsHookExW(WH_CALLWNDPROC, &AskedToPaint::heard, nullptr,
                                  GetCurrentThreadId())) {
        around_ = around;
        count_ = 0;
    }
    [[nodiscard]] static int count() { return count_; }

  private:
    static LRESULT CALLBACK heard(int code, WPARAM wParam, LPARAM lParam) {
        const auto* message = reinterpret_cast<const CWPSTRUCT*>(lParam);
        if (message->message == WM_PAINT && IsChild(around_, message->hwnd) != FALSE) {
            ++count_;
        }
        return CallNextHookEx(nullptr, code, wParam, lParam);
    }

    inline static HWND around_ = nullptr;
    inline static int count_ = 0;
    HookHandle hook_;
};

/// A list of panels longer than what shows of it.
class ScrolledToolsTest : public ToolsPaneTest {
  protected:
    ScrolledToolsTest() {
        for (int i = 0; i < 5; ++i) {
            program_.execute(Command::addStencil);
            program_.execute(Command::addMeasure);
        }
        paint();
    }
    [[nodiscard]] HWND list() const { return namedChild(settings_.handle(), "picOuter"); }
    void paint() const {
        RedrawWindow(settings_.handle(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    }
    void paintEachWindow() const {
        RedrawWindow(list(), nullptr, nullptr,
                     RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    }
    void scroll(int notches) { program_.tools().Scroll(notches); }
    void expectTheSamePaintedByEachWindow() const {
        // The scroll bar is not painted before the system asks for it.
        paint();
        const PixelMap shown = readClient(list());
        paintEachWindow();
        EXPECT_EQ(shown, readClient(list()));
    }
};

TEST_F(ScrolledToolsTest, WhatTheWheelUncoversIsWhatEachWindowWouldPaint) {
    const PixelMap first = readClient(list());
    for (const int notches : {-1, -1, 1, -3, -2, 4, -20, 1, 2, 20}) {
        SCOPED_TRACE(notches);
        scroll(notches);
        expectTheSamePaintedByEachWindow();
    }
    scroll(-1);
    EXPECT_NE(first, readClient(list()));
}

TEST_F(ScrolledToolsTest, NoWindowIsAskedToPaintWhatTheWheelUncovers) {
    paintEachWindow();
    const AskedToPaint asked(namedChild(list(), "picInner"));
    for (const int notches : {-1, 1, -4, 2}) {
        scroll(notches);
        paint();
        EXPECT_EQ(AskedToPaint::count(), 0) << notches;
    }
    paintEachWindow();
    EXPECT_GT(AskedToPaint::count(), 0);
}

TEST_F(ScrolledToolsTest, TheLookOfADisabledPanelAndOfASelectedOneComesIntoViewToo) {
    click(stencil(), "cmdPause");
    sheet().SelectControl(*sheet().GetFirstControl(1));
    for (const int notches : {-2, 2}) {
        scroll(notches);
        expectTheSamePaintedByEachWindow();
    }
}

TEST_F(ScrolledToolsTest, WhatWasCoveredByAnotherWindowIsPaintedBesideWhatTheWheelUncovers) {
    {
        const RECT covered{0, 40, 100, 90};
        const UnclippedContext context(list());
        FillRect(context.get(), &covered, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
        RedrawWindow(list(), &covered, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
    }
    scroll(-1);
    paint();
    expectTheSamePaintedByEachWindow();
}

TEST_F(ToolsPaneTest, WithoutPanelsTheListIsEmptyAndTheWheelDoesNothing) {
    program_.tools().tools().RemoveAllTools();
    RECT inner{};
    GetClientRect(namedChild(settings_.handle(), "picInner"), &inner);
    EXPECT_EQ(inner.bottom, 0);
    EXPECT_FALSE(IsWindowEnabled(namedChild(settings_.handle(), "scrInner")));
    program_.tools().Scroll(-1);
    GetClientRect(namedChild(settings_.handle(), "picInner"), &inner);
    EXPECT_EQ(inner.bottom, 0);
}

}  // namespace
}  // namespace ormala
