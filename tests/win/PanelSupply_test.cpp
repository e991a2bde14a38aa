#include "toolkit/win/PanelSupply.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "app/win/shell/Program.h"
#include "app/win/shell/settingsIds.h"
#include "e2e/support/AppDataFolder.h"
#include "language/LanguageSupport.h"
#include "language/MlStringModule.h"
#include "measure/measurePanelDesign.h"
#include "platform/win/StandardControl.h"
#include "platform/win/controlName.h"
#include "stencil/ctlRatioGrid.h"
#include "stencil/stencilPanelDesign.h"
#include "support/win/Wait.h"
#include "win/EnglishTexts.h"
#include "win/HeldKeys.h"
#include "win/ModalPlayer.h"

namespace ormala {
namespace {

/// The running program with so many tools that most of their panels are out of view.
class PanelSupplyTest : public testing::Test {
  protected:
    PanelSupplyTest() {
        SetForegroundWindow(settings_.handle());
        SetActiveWindow(settings_.handle());
    }

    void fill(std::size_t count) {
        while (panels().size() < count) {
            // Of both kinds in turn.
            tools().AddNewControl(static_cast<int>(panels().size() % 2));
        }
        // The last one is scrolled into view when its read-outs are shown.
        rest();
    }
    [[nodiscard]] ToolList& tools() { return program_.tools().tools(); }
    [[nodiscard]] HWND inner() const { return namedChild(settings_.handle(), "picInner"); }
    [[nodiscard]] HWND outer() const { return namedChild(settings_.handle(), "picOuter"); }
    /// From top to bottom.
    [[nodiscard]] std::vector<HWND> panels() const {
        std::vector<HWND> found;
        for (HWND panel = GetWindow(inner(), GW_CHILD); panel != nullptr;
             panel = GetWindow(panel, GW_HWNDNEXT)) {
            found.push_back(panel);
        }
        std::ranges::sort(found, {}, &topOf);
        return found;
    }
    static int topOf(HWND window) {
        RECT place{};
        GetWindowRect(window, &place);
        return static_cast<int>(place.top);
    }
    static bool isEquipped(HWND panel) { return GetWindow(panel, GW_CHILD) != nullptr; }
    [[nodiscard]] bool isInView(HWND panel) const {
        RECT place{};
        GetWindowRect(panel, &place);
        RECT view{};
        GetWindowRect(outer(), &view);
        RECT common{};
        return IntersectRect(&common, &place, &view) != FALSE;
    }
    void scrollToTop() { turnWheel(1); }
    void scrollToEnd() { turnWheel(-1); }
    void scrollABit() {
        program_.tools().Scroll(1);
        program_.tools().Scroll(-1);
    }
    void turnWheel(int direction) {
        constexpr int notches = 100;
        for (int i = 0; i < notches; ++i) {
            program_.tools().Scroll(direction);
        }
    }
    /// Until the timer has nothing left to do.
    void rest() const {
        EXPECT_TRUE(test::waitUntil([this] {
            const auto found = panels();
            return std::ranges::count_if(found, isEquipped) > visibleCount();
        }));
        test::pause(test::milliseconds{200});
    }
    [[nodiscard]] std::ptrdiff_t visibleCount() const {
        const auto found = panels();
        return std::ranges::count_if(found, [this](HWND panel) { return isInView(panel); });
    }
    static std::string textIn(HWND panel, std::string_view name) {
        return textOf(namedChild(panel, name));
    }
    static int widthOf(HWND window) {
        RECT client{};
        GetClientRect(window, &client);
        return static_cast<int>(client.right);
    }

    EnglishTexts english_;
    test::AppDataFolder folder_;
    Program program_{false};
    frmSettings& settings_ = program_.settings();
};

int windowsOfThread() {
    const auto count = [](HWND, LPARAM sum) -> BOOL {
        ++*reinterpret_cast<int*>(sum);
        return TRUE;
    };
    struct Sum {
        int windows = 0;
        WNDENUMPROC count = nullptr;
    } sum{0, count};
    EnumThreadWindows(
        GetCurrentThreadId(),
        [](HWND window, LPARAM parameter) -> BOOL {
            auto& all = *reinterpret_cast<Sum*>(parameter);
            ++all.windows;
            EnumChildWindows(window, all.count, reinterpret_cast<LPARAM>(&all.windows));
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&sum));
    return sum.windows;
}

TEST_F(PanelSupplyTest, ThirtyThreeToolsNeedAtMostSixHundredWindows) {
    constexpr int most = 600;
    SetWindowPos(settings_.handle(), nullptr, 0, 0, settings_.rectangle().right, 1000,
                 SWP_NOZORDER | SWP_NOACTIVATE);
    fill(33);
    EXPECT_LE(windowsOfThread(), most);
    rest();
    EXPECT_LE(windowsOfThread(), most);
    scrollToTop();
    rest();
    EXPECT_LE(windowsOfThread(), most);
    scrollToEnd();
    EXPECT_LE(windowsOfThread(), most);
}

TEST_F(PanelSupplyTest, WhatTheListShowsHasItsControlsAndWhatIsFarHasNone) {
    fill(12);
    // The panel that has the keyboard is no measure of the others.
    SetFocus(namedChild(settings_.handle(), "cmdHelp"));
    for (const int direction : {1, -1}) {
        turnWheel(direction);
        for (const HWND panel : panels()) {
            EXPECT_TRUE(isEquipped(panel) || !isInView(panel));
        }
        rest();
        const auto found = panels();
        EXPECT_LE(std::ranges::count_if(found, isEquipped), visibleCount() + 3);
        EXPECT_FALSE(isEquipped(direction > 0 ? found.back() : found.front()));
        EXPECT_TRUE(isEquipped(direction > 0 ? found.front() : found.back()));
    }
}

TEST_F(PanelSupplyTest, PanelsThatAreLoadedHaveControlsOnlyWhereTheyAreSeen) {
    fill(12);
    ASSERT_TRUE(program_.tools().automatic().save());
    program_.tools().automatic().load({});
    const auto found = panels();
    ASSERT_EQ(found.size(), 12U);
    EXPECT_EQ(std::ranges::count_if(found, isEquipped), visibleCount());
}

TEST_F(PanelSupplyTest, AllThatHappensMeanwhileShowsWhenThePanelComesBack) {
    fill(12);
    const HWND first = panels().front();
    const HWND last = panels().back();
    SettingControl& panel = tools().GetPanelsInVisualOrder().front().listed.panel();
    auto& tool = dynamic_cast<ctlRatioGrid&>(panel.RefControlControl());
    scrollToTop();
    const int width = widthOf(namedChild(first, "lblTitle"));
    scrollToEnd();
    rest();
    ASSERT_FALSE(isEquipped(first));
    tool.setRectBound({100, 200, 499, 599});
    panel.setPause(true);
    panel.ShowAllProps(true);
    GetLanguageSupport().ChangeLanguage(languageGerman);
    const HWND box = namedChild(settings_.handle(), "Check1");
    SendMessageW(box, BM_SETCHECK, BST_CHECKED, 0);
    SendMessageW(settings_.handle(), WM_COMMAND, MAKEWPARAM(idFontSize, BN_CLICKED), 0);
    const int former = static_cast<int>(GetDpiForSystem());
    RECT place = settings_.rectangle();
    place.right += place.right - place.left;
    SendMessageW(settings_.handle(), WM_DPICHANGED, MAKEWPARAM(192, 192),
                 reinterpret_cast<LPARAM>(&place));
    const auto font = SendMessageW(namedChild(last, "lblLengthA"), WM_GETFONT, 0, 0);
    scrollToTop();
    ASSERT_TRUE(isEquipped(first));
    EXPECT_EQ(textIn(first, "lblTitle"), "Schablonenwerkzeug");
    EXPECT_EQ(textIn(first, "lblPositionTop"), "oben = 200 ");
    EXPECT_EQ(textIn(first, "cmdRedo"), "Wiederherstellen");
    EXPECT_FALSE(IsWindowEnabled(namedChild(first, "cmdDelete")));
    EXPECT_TRUE(IsWindowEnabled(namedChild(first, "cmdPause")));
    EXPECT_NEAR(widthOf(namedChild(first, "lblTitle")), MulDiv(width, 192, former), 2);
    EXPECT_EQ(SendMessageW(namedChild(first, "lblPositionTop"), WM_GETFONT, 0, 0), font);
}

TEST_F(PanelSupplyTest, ThePanelWithTheKeyboardKeepsItsControls) {
    fill(12);
    scrollToTop();
    const HWND button = namedChild(panels().front(), "cmdPause");
    ASSERT_TRUE(test::waitUntil([button] {
        SetFocus(button);
        test::pause(test::milliseconds{1});
        return GetFocus() == button;
    }));
    scrollToEnd();
    rest();
    EXPECT_EQ(GetFocus(), button);
    EXPECT_TRUE(IsChild(panels().front(), button));
    SetFocus(namedChild(settings_.handle(), "cmdHelp"));
    scrollABit();
    EXPECT_FALSE(isEquipped(panels().front()));
}

TEST_F(PanelSupplyTest, TheHeldButtonOfAPanelThatIsScrolledAwayGoesOn) {
    fill(12);
    scrollToTop();
    const HWND button = namedChild(panels().front(), "cmdMove(1)");
    SendMessageW(button, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    SetFocus(namedChild(settings_.handle(), "cmdHelp"));
    scrollToEnd();
    EXPECT_EQ(GetCapture(), button);
    EXPECT_TRUE(IsChild(panels().front(), button));
    SendMessageW(button, WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
    scrollABit();
    EXPECT_FALSE(isEquipped(panels().front()));
}

TEST_F(PanelSupplyTest, NothingIsTakenAwayWhileADialogIsOpen) {
    fill(12);
    scrollToTop();
    const HWND button = namedChild(panels().front(), "cmdColor");
    SetFocus(namedChild(settings_.handle(), "cmdHelp"));
    EnableWindow(settings_.handle(), FALSE);
    scrollToEnd();
    EXPECT_TRUE(IsChild(panels().front(), button));
    EnableWindow(settings_.handle(), TRUE);
    scrollABit();
    EXPECT_FALSE(isEquipped(panels().front()));
}

/// The stops of all panels in the order of the list.
std::vector<std::string> stopsOf(const std::vector<HWND>& panels) {
    std::vector<std::string> stops;
    for (const HWND panel : panels) {
        const bool measures = controlName(panel).starts_with("SetMeasure");
        const PanelDesign& design = measures ? measurePanelDesign() : stencilPanelDesign();
        for (const PanelControl& row : design.controls) {
            if (row.part >= PanelPart::button && row.part != PanelPart::image &&
                row.id != CommonControl::cmdUndo && row.id != CommonControl::cmdRedo) {
                stops.push_back(controlName(panel) + "/" + row.fullName());
            }
        }
    }
    return stops;
}

TEST_F(PanelSupplyTest, TabGoesThroughAllPanelsBothWays) {
    fill(7);
    scrollToTop();
    const auto walk = [this](const char* start, const char* end, bool backwards) {
        std::vector<std::string> met;
        const HWND last = namedChild(settings_.handle(), end);
        SetFocus(namedChild(settings_.handle(), start));
        const HeldKeys held({backwards ? VK_SHIFT : 0});
        constexpr int most = 1000;
        for (int i = 0; i < most && GetFocus() != last; ++i) {
            MSG message{};
            message.hwnd = GetFocus();
            message.message = WM_KEYDOWN;
            message.wParam = VK_TAB;
            program_.preview(message);
            HWND panel = GetFocus();
            while (panel != nullptr && GetParent(panel) != inner()) {
                panel = GetParent(panel);
            }
            if (panel != nullptr) {
                met.push_back(controlName(panel) + "/" + controlName(GetFocus()));
            }
        }
        return met;
    };
    auto expected = stopsOf(panels());
    EXPECT_EQ(walk("cmdHelp", "cmdAddGrid", false), expected);
    std::ranges::reverse(expected);
    EXPECT_EQ(walk("cmdAddGrid", "cmdHelp", true), expected);
}

}  // namespace
}  // namespace ormala
