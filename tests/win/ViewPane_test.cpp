#include "app/win/ViewPane.h"

#include <gtest/gtest.h>

#include <array>

#include "app/win/frmSettings.h"
#include "e2e/support/AppDataFolder.h"
#include "language/LanguageSupport.h"
#include "platform/win/text.h"
#include "support/win/Wait.h"
#include "widgets/win/ZelvikButtonXP.h"

// The view of the program: toggles, menus, options and the magnifier, in the control window.

namespace ormala {
namespace {

class ViewPaneTest : public testing::Test {
  protected:
    [[nodiscard]] HWND control(const wchar_t* name) const {
        struct Search {
            const wchar_t* name;
            HWND found;
        } search{name, nullptr};
        EnumChildWindows(
            settings_.handle(),
            [](HWND child, LPARAM data) -> BOOL {
                auto& wanted = *reinterpret_cast<Search*>(data);
                wchar_t text[64]{};
                const auto atom =
                    static_cast<ATOM>(reinterpret_cast<ULONG_PTR>(GetPropW(child, L"Name")));
                GlobalGetAtomNameW(atom, text, 64);
                wanted.found = std::wcscmp(text, wanted.name) == 0 ? child : wanted.found;
                return TRUE;
            },
            reinterpret_cast<LPARAM>(&search));
        return search.found;
    }
    [[nodiscard]] bool isOn(const wchar_t* name) const {
        return SendMessageW(control(name), BM_GETCHECK, 0, 0) == BST_CHECKED;
    }
    void click(const wchar_t* name) const { SendMessageW(control(name), BM_CLICK, 0, 0); }

    test::AppDataFolder folder_;
    frmSettings settings_{false};
    ViewPane& view_ = settings_.view();
};

struct ToggleCase {
    const wchar_t* button;
    MenuEntry entry;
    void (ViewPane::*set)(bool);
    bool atFirst;
};

constexpr std::array toggleCases{
    ToggleCase{L"chkGrid", MenuEntry::mnuGridVisible, &ViewPane::SetGrid, false},
    ToggleCase{L"chkLens", MenuEntry::mnuLensVisible, &ViewPane::SetLens, false},
    ToggleCase{L"chkCircleCompass", MenuEntry::mnuCircleCompassEnabled, &ViewPane::SetCircleCompass,
               true},
    ToggleCase{L"chkReferenceLines", MenuEntry::mnuReferenceLinesEnabled,
               &ViewPane::SetReferenceLines, true},
    ToggleCase{L"chkCrossHair", MenuEntry::mnuCrossHairVisible, &ViewPane::SetCrossHair, false},
};

TEST_F(ViewPaneTest, ButtonsAndMenuNeverDisagree) {
    for (const ToggleCase& toggle : toggleCases) {
        const auto bothShow = [&](bool on) {
            return isOn(toggle.button) == on && view_.menu().isChecked(toggle.entry) == on;
        };
        EXPECT_TRUE(bothShow(toggle.atFirst)) << narrow(toggle.button);
        (view_.*toggle.set)(!toggle.atFirst);
        EXPECT_TRUE(bothShow(!toggle.atFirst)) << narrow(toggle.button);
        click(toggle.button);
        EXPECT_TRUE(bothShow(toggle.atFirst)) << narrow(toggle.button);
    }
}

int crossHairsShown(HWND worksheet) {
    int shown = 0;
    HWND line = nullptr;
    while ((line = FindWindowExW(nullptr, line, L"frmCrossHair", nullptr)) != nullptr) {
        const bool own = GetWindow(line, GW_OWNER) == worksheet;
        shown += own && IsWindowVisible(line) != FALSE ? 1 : 0;
    }
    return shown;
}

TEST_F(ViewPaneTest, TogglesReachTheirOwners) {
    const HWND worksheet = settings_.worksheet().handle();
    int paints = 0;
    const Subscription painted = settings_.worksheet().painted.subscribe([&] { ++paints; });
    view_.SetGrid(true);
    EXPECT_TRUE(view_.optionValues().grid.enabled);
    EXPECT_EQ(paints, 1);
    const RECT place = settings_.worksheet().rectangle();
    EXPECT_TRUE(test::waitUntil([&] {
        SetCursorPos((place.left + place.right) / 2, (place.top + place.bottom) / 2);
        view_.SetCrossHair(true);
        return crossHairsShown(worksheet) == 2;
    }));
    view_.SetCrossHair(false);
    EXPECT_EQ(crossHairsShown(worksheet), 0);
    view_.SetLens(true);
    EXPECT_TRUE(view_.lens().lens().isVisible());
    EXPECT_EQ(GetWindow(view_.lens().lens().handle(), GW_OWNER), worksheet);
    view_.SetLens(false);
    EXPECT_FALSE(view_.lens().lens().isVisible());
}

TEST_F(ViewPaneTest, ClosingTheMagnifierTurnsItsToggleOff) {
    view_.SetLens(true);
    ASSERT_TRUE(isOn(L"chkLens"));
    SendMessageW(view_.lens().lens().handle(), WM_CLOSE, 0, 0);
    EXPECT_FALSE(view_.lens().lens().isVisible());
    EXPECT_FALSE(isOn(L"chkLens"));
    EXPECT_FALSE(view_.menu().isChecked(MenuEntry::mnuLensVisible));
}

TEST_F(ViewPaneTest, TheMenuOfTheMagnifierShowsItsState) {
    frmLens& lens = view_.lens().lens();
    const frmMenu& menu = view_.menu();
    lens.setFactor(7);
    for (int factor = 1; factor <= 10; ++factor) {
        EXPECT_EQ(menu.isChecked(entryOfLensFactor(factor)), factor == 7) << factor;
    }
    EXPECT_TRUE(menu.isEnabled(MenuEntry::mnuLensGrid));
    lens.setFactor(1);
    EXPECT_FALSE(menu.isEnabled(MenuEntry::mnuLensGrid));
    EXPECT_FALSE(menu.isChecked(MenuEntry::mnuLensStick));
    lens.setSticked(true);
    EXPECT_TRUE(menu.isChecked(MenuEntry::mnuLensStick));
    lens.mnuLensCursor_Click();
    EXPECT_FALSE(menu.isChecked(MenuEntry::mnuLensCursor));
    lens.mnuLensHotSpot_Click();
    EXPECT_FALSE(menu.isChecked(MenuEntry::mnuLensHotSpot));
    lens.mnuLensTopLeftScales_Click();
    EXPECT_FALSE(menu.isChecked(MenuEntry::mnuLensTopLeftScales));
    EXPECT_TRUE(menu.isChecked(MenuEntry::mnuLensBottomRightScales));
}

TEST_F(ViewPaneTest, TheMenuOffersEachStateOfTheWorksheetOnlyFromTheOther) {
    const auto askForMenu = [&] {
        view_.ShowContextMenu({0, 0});
        // Nobody is there to leave the menu, so it is not opened.
        MSG asked{};
        EXPECT_NE(PeekMessageW(&asked, settings_.handle(), WM_APP, WM_APP + 9, PM_REMOVE), FALSE);
    };
    askForMenu();
    EXPECT_TRUE(view_.menu().isEnabled(MenuEntry::mnuWindowMaximized));
    EXPECT_FALSE(view_.menu().isEnabled(MenuEntry::mnuWindowNormal));
    settings_.resizer().maximise();
    askForMenu();
    EXPECT_FALSE(view_.menu().isEnabled(MenuEntry::mnuWindowMaximized));
    EXPECT_TRUE(view_.menu().isEnabled(MenuEntry::mnuWindowNormal));
}

TEST_F(ViewPaneTest, OptionsThatAreAsTheyWereChangeNoLanguageAndOnlyAnotherGridIsDrawn) {
    OptionsPort& port = view_;
    int changes = 0;
    const Subscription listening =
        GetLanguageSupport().LanguageChange.subscribe([&changes] { ++changes; });
    int paints = 0;
    const Subscription painting = settings_.worksheet().painted.subscribe([&paints] { ++paints; });
    UpdateWindow(settings_.worksheet().handle());
    paints = 0;
    OptionValues values = port.optionValues();
    port.applyOptions(values);
    EXPECT_EQ(changes, 0);
    EXPECT_EQ(paints, 0);
    EXPECT_EQ(port.optionValues(), values);
    values.grid.enabled = true;
    port.applyOptions(values);
    EXPECT_EQ(paints, 1);
    EXPECT_EQ(port.optionValues(), values);
}

TEST_F(ViewPaneTest, TheLanguageChangesAlsoBeforeTheDialogWasEverOpen) {
    OptionValues values = view_.optionValues();
    const int former = values.language;
    values.language = languageGerman;
    view_.applyOptions(values);
    EXPECT_EQ(CurrentLanguage(), languageGerman);
    values.language = former;
    view_.applyOptions(values);
    EXPECT_EQ(CurrentLanguage(), former);
}

std::string captionAt(HMENU menu, UINT position) {
    wchar_t text[100]{};
    GetMenuStringW(menu, position, text, 100, MF_BYPOSITION);
    return narrow(text);
}

void expectCaptions(HMENU menu, std::span<const MenuLineDesign> lines) {
    ASSERT_EQ(GetMenuItemCount(menu), static_cast<int>(lines.size()));
    for (UINT i = 0; i < lines.size(); ++i) {
        if (lines[i].line != MenuLine::separator) {
            EXPECT_EQ(captionAt(menu, i), MlString(lines[i].row, lines[i].caption));
        }
    }
}

TEST_F(ViewPaneTest, TheMenusFollowTheLanguage) {
    for (const int language : {languageGerman, languageEnglish}) {
        GetLanguageSupport().ChangeLanguage(language);
        expectCaptions(view_.menu().mnuPopup(), popupMenuDesign());
        expectCaptions(view_.menu().mnuLens(), lensMenuDesign());
    }
}

TEST_F(ViewPaneTest, TheInvisibleBoxChangesTheSizeOfType) {
    const auto heightOfType = [&](const wchar_t* name) {
        const auto font = reinterpret_cast<HFONT>(SendMessageW(control(name), WM_GETFONT, 0, 0));
        LOGFONTW face{};
        GetObjectW(font, sizeof face, &face);
        return static_cast<int>(-face.lfHeight);
    };
    const int dpi = static_cast<int>(GetDpiForWindow(settings_.handle()));
    const HWND box = control(L"Check1");
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(IsWindowVisible(box), FALSE);
    // One of the window itself, and one of each kind of panel.
    for (const wchar_t* name : {L"btnMode(0)", L"lblPath", L"lblCenterX", L"lblLengthA"}) {
        EXPECT_EQ(heightOfType(name), MulDiv(8, dpi, 72)) << narrow(name);
    }
    SendMessageW(box, BM_CLICK, 0, 0);
    for (const wchar_t* name : {L"btnMode(0)", L"lblPath", L"lblCenterX", L"lblLengthA"}) {
        EXPECT_EQ(heightOfType(name), MulDiv(9, dpi, 72)) << narrow(name);
    }
    SendMessageW(box, BM_CLICK, 0, 0);
    EXPECT_EQ(heightOfType(L"lblCenterX"), MulDiv(8, dpi, 72));
}

}  // namespace
}  // namespace ormala
