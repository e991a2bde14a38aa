#include "app/win/view/ViewPane.h"

#include <gtest/gtest.h>

#include <array>

#include "app/win/shell/Program.h"
#include "e2e/support/AppDataFolder.h"
#include "language/LanguageSupport.h"
#include "platform/win/text.h"
#include "support/win/PaintCount.h"
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
    Program program_{false};
    frmSettings& settings_ = program_.settings();
    ViewPane& view_ = program_.view();
};

struct ToggleCase {
    const wchar_t* button;
    Command command;
    bool atFirst;
};

constexpr std::array toggleCases{
    ToggleCase{L"chkGrid", Command::grid, false},
    ToggleCase{L"chkLens", Command::lens, false},
    ToggleCase{L"chkCircleCompass", Command::circleCompass, true},
    ToggleCase{L"chkReferenceLines", Command::referenceLines, true},
    ToggleCase{L"chkCrossHair", Command::crossHair, false},
};

TEST_F(ViewPaneTest, ButtonsAndMenuNeverDisagree) {
    for (const ToggleCase& toggle : toggleCases) {
        const auto bothShow = [&](bool on) {
            return isOn(toggle.button) == on && view_.menu().isChecked(toggle.command) == on;
        };
        EXPECT_TRUE(bothShow(toggle.atFirst)) << narrow(toggle.button);
        program_.execute(toggle.command);
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
    const HWND worksheet = program_.worksheet().handle();
    const test::PaintCount paints(worksheet);
    program_.execute(Command::grid);
    EXPECT_TRUE(view_.optionValues().grid.enabled);
    EXPECT_EQ(paints.count(), 1);
    const RECT place = program_.worksheet().rectangle();
    const auto showCrossHair = [&](bool shown) {
        program_.state().set([shown](Options& options) { options.aids.crossHair = shown; });
    };
    EXPECT_TRUE(test::waitUntil([&] {
        SetCursorPos((place.left + place.right) / 2, (place.top + place.bottom) / 2);
        showCrossHair(true);
        return crossHairsShown(worksheet) == 2;
    }));
    showCrossHair(false);
    EXPECT_EQ(crossHairsShown(worksheet), 0);
    program_.execute(Command::lens);
    EXPECT_TRUE(view_.lens().lens().isVisible());
    EXPECT_EQ(GetWindow(view_.lens().lens().handle(), GW_OWNER), worksheet);
    program_.execute(Command::lens);
    EXPECT_FALSE(view_.lens().lens().isVisible());
}

TEST_F(ViewPaneTest, ClosingTheMagnifierTurnsItsToggleOff) {
    program_.execute(Command::lens);
    ASSERT_TRUE(isOn(L"chkLens"));
    SendMessageW(view_.lens().lens().handle(), WM_CLOSE, 0, 0);
    EXPECT_FALSE(view_.lens().lens().isVisible());
    EXPECT_FALSE(isOn(L"chkLens"));
    EXPECT_FALSE(view_.menu().isChecked(Command::lens));
}

TEST_F(ViewPaneTest, TheMenuOfTheMagnifierShowsItsState) {
    const frmLens& lens = view_.lens().lens();
    const frmMenu& menu = view_.menu();
    program_.execute(commandOfLensFactor(7));
    EXPECT_EQ(lens.Factor(), 7);
    for (int factor = 1; factor <= 10; ++factor) {
        EXPECT_EQ(menu.isChecked(commandOfLensFactor(factor)), factor == 7) << factor;
    }
    EXPECT_TRUE(menu.isEnabled(Command::lensGrid));
    program_.execute(commandOfLensFactor(1));
    EXPECT_FALSE(menu.isEnabled(Command::lensGrid));
    for (const Command command :
         {Command::lensStick, Command::lensCursor, Command::lensHotSpot, Command::lensGrid,
          Command::lensTopLeftScales, Command::lensBottomRightScales}) {
        const bool was = menu.isChecked(command);
        program_.execute(command);
        EXPECT_NE(menu.isChecked(command), was);
        EXPECT_EQ(lens.options(), program_.state().options().lens);
    }
}

TEST_F(ViewPaneTest, TheMenuOffersEachStateOfTheWorksheetOnlyFromTheOther) {
    const auto askForMenu = [&] {
        view_.ShowContextMenu({0, 0});
        // Nobody is there to leave the menu, so it is not opened.
        MSG asked{};
        EXPECT_NE(PeekMessageW(&asked, settings_.handle(), WM_APP, WM_APP + 9, PM_REMOVE), FALSE);
    };
    askForMenu();
    EXPECT_TRUE(view_.menu().isEnabled(Command::worksheetMaximised));
    EXPECT_FALSE(view_.menu().isEnabled(Command::worksheetNormal));
    program_.resizer().maximise();
    askForMenu();
    EXPECT_FALSE(view_.menu().isEnabled(Command::worksheetMaximised));
    EXPECT_TRUE(view_.menu().isEnabled(Command::worksheetNormal));
}

TEST_F(ViewPaneTest, OptionsThatAreAsTheyWereChangeNoLanguageAndOnlyAnotherGridIsDrawn) {
    OptionsPort& port = view_;
    int changes = 0;
    const Subscription listening =
        GetLanguageSupport().LanguageChange.subscribe([&changes] { ++changes; });
    const HWND worksheet = program_.worksheet().handle();
    UpdateWindow(worksheet);
    const test::PaintCount paints(worksheet);
    OptionValues values = port.optionValues();
    port.applyOptions(values);
    EXPECT_EQ(changes, 0);
    EXPECT_EQ(paints.count(), 0);
    EXPECT_EQ(port.optionValues(), values);
    values.grid.enabled = true;
    port.applyOptions(values);
    EXPECT_EQ(paints.count(), 1);
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
