#include "stencil/win/frmPatternSelect.h"

#include <commctrl.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "language/MlStringModule.h"
#include "platform/win/controlName.h"
#include "platform/win/regions.h"
#include "platform/win/text.h"
#include "stencil/PatternRotations.h"
#include "stencil/PatternSelectLayout.h"
#include "widgets/dpi.h"
#include "win/ModalPlayer.h"

namespace ormala {
namespace {

PatternList sectionAndSpiral() {
    PatternList patterns;
    patterns[0] = {5, 0};
    patterns[2] = {7, *rotationOfRow(2)};
    return patterns;
}

class PatternSelectTest : public testing::Test {
  protected:
    PatternSelectTest() { MlSetLanguage(languageEnglish, {}); }
    ~PatternSelectTest() override { MlSetLanguage(languageEnglish, {}); }

    [[nodiscard]] HWND control(const std::string& name) const {
        return namedChild(form_.handle(), name);
    }
    [[nodiscard]] std::string textOfControl(const std::string& name) const {
        return textOf(control(name));
    }
    [[nodiscard]] bool isOn(const std::string& name) const {
        return SendMessageW(control(name), BM_GETCHECK, 0, 0) == BST_CHECKED;
    }
    [[nodiscard]] bool isShown(const std::string& name) const {
        return IsWindowVisible(control(name)) != FALSE;
    }
    [[nodiscard]] int rotationRow() const {
        return static_cast<int>(SendMessageW(control("cboRotation"), CB_GETCURSEL, 0, 0));
    }
    void click(const std::string& name) const { SendMessageW(control(name), BM_CLICK, 0, 0); }
    /// As the user picks a row of the list.
    void pickRotation(int row) const {
        const HWND list = control("cboRotation");
        SendMessageW(list, CB_SETCURSEL, static_cast<WPARAM>(row), 0);
        SendMessageW(GetParent(list), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(list), CBN_SELCHANGE),
                     reinterpret_cast<LPARAM>(list));
    }

    /// Shows the dialog, does this in it and answers whether the patterns were chosen.
    bool choose(const std::function<void()>& inDialog, const std::string& button) {
        player_.untilActive("frmPatternSelect").then(inDialog).then([this, button] {
            click(button);
        });
        return form_.SelectPattern(patterns_, tab_, nullptr);
    }

    PatternList patterns_ = sectionAndSpiral();
    int tab_ = 0;
    frmPatternSelect form_;
    ModalPlayer player_;
};

TEST_F(PatternSelectTest, OpensAtTheTabWithItsSetting) {
    tab_ = 2;
    choose(
        [this] {
            EXPECT_TRUE(isOn("btnTab(2)"));
            EXPECT_FALSE(isOn("btnTab(0)"));
            EXPECT_TRUE(isOn("optPattern(7)"));
            EXPECT_FALSE(isOn("optPattern(5)"));
            EXPECT_EQ(rotationRow(), 2);
            EXPECT_EQ(GetFocus(), control("optPattern(7)"));
        },
        "cmdCancel");
}

TEST_F(PatternSelectTest, OKGivesTheChoiceAndTheLastTab) {
    EXPECT_TRUE(choose(
        [this] {
            click("optPattern(18)");
            click("btnTab(4)");
            click("optPattern(15)");
            pickRotation(3);
        },
        "cmdOK"));
    PatternList expected = sectionAndSpiral();
    expected[0].Pattern = 18;
    expected[4] = {15, *rotationOfRow(3)};
    EXPECT_EQ(patterns_, expected);
    EXPECT_EQ(tab_, 4);
    EXPECT_FALSE(form_.isVisible());
}

TEST_F(PatternSelectTest, CancelAfterChangesLeavesAll) {
    EXPECT_FALSE(choose(
        [this] {
            click("optPattern(18)");
            click("btnTab(4)");
            click("optPattern(15)");
        },
        "cmdCancel"));
    EXPECT_EQ(patterns_, sectionAndSpiral());
    EXPECT_EQ(tab_, 0);
}

TEST_F(PatternSelectTest, EnterIsOKAndEscapeIsCancel) {
    player_.untilActive("frmPatternSelect").then([this] { click("optPattern(1)"); }).key(VK_RETURN);
    EXPECT_TRUE(form_.SelectPattern(patterns_, tab_, nullptr));
    EXPECT_EQ(patterns_[0].Pattern, 1);
    player_.untilActive("frmPatternSelect").then([this] { click("optPattern(2)"); }).key(VK_ESCAPE);
    EXPECT_FALSE(form_.SelectPattern(patterns_, tab_, nullptr));
    EXPECT_EQ(patterns_[0].Pattern, 1);
}

TEST_F(PatternSelectTest, TheFirstTabCannotBeSetToNoPattern) {
    choose(
        [this] {
            EXPECT_FALSE(isShown("optNoPattern"));
            EXPECT_FALSE(isShown("lblNoPattern"));
            click("btnTab(2)");
            EXPECT_TRUE(isShown("optNoPattern"));
            EXPECT_FALSE(isOn("optNoPattern"));
            click("optNoPattern");
            EXPECT_TRUE(isOn("optNoPattern"));
            EXPECT_FALSE(IsWindowEnabled(control("cboRotation")));
            click("btnTab(0)");
            EXPECT_FALSE(isShown("optNoPattern"));
            EXPECT_TRUE(IsWindowEnabled(control("cboRotation")));
        },
        "cmdOK");
    EXPECT_EQ(patterns_[0].Pattern, 5);
    EXPECT_EQ(patterns_[2].Pattern, -1);
}

TEST_F(PatternSelectTest, AnAngleThatIsNoRowStaysUntilTheUserPicksOne) {
    patterns_[0].PreRotation = 0.123;
    EXPECT_TRUE(choose(
        [this] {
            EXPECT_EQ(rotationRow(), CB_ERR);
            click("optPattern(3)");
            EXPECT_EQ(rotationRow(), CB_ERR);
        },
        "cmdOK"));
    EXPECT_EQ(patterns_[0], (PatternSetting{3, 0.123}));
    choose([this] { pickRotation(0); }, "cmdOK");
    EXPECT_EQ(patterns_[0], (PatternSetting{3, 0}));
}

TEST_F(PatternSelectTest, TheNextUseBeginsWithItsOwnPatterns) {
    choose([this] { click("optPattern(18)"); }, "cmdCancel");
    choose([this] { EXPECT_TRUE(isOn("optPattern(5)")); }, "cmdCancel");
}

TEST_F(PatternSelectTest, SpeaksBothLanguages) {
    EXPECT_EQ(textOf(form_.handle()), "Select Patterns");
    EXPECT_EQ(textOfControl("btnTab(4)"), "Pattern 5");
    EXPECT_EQ(textOfControl("lblPattern(6)"), "Section multiple");
    EXPECT_EQ(textOfControl("lblPatternGroup(1)"), "Whole number ratios");
    EXPECT_EQ(textOfControl("lblNoPattern"), "No pattern");
    EXPECT_EQ(textOfControl("lblRotation"), "Rotation");
    EXPECT_EQ(textOfControl("lblPreview"), "Combined pattern preview");
    GetLanguageSupport().ChangeLanguage(languageGerman);
    EXPECT_EQ(textOfControl("lblPattern(6)"), "Teilung mehrfach");
    EXPECT_EQ(textOfControl("lblPatternGroup(0)"), "Goldener Schnitt");
    EXPECT_EQ(textOf(form_.handle()), MlString(122, {}));
    EXPECT_EQ(SendMessageW(control("cboRotation"), CB_GETCOUNT, 0, 0), 13);
    GetLanguageSupport().ChangeLanguage(languageEnglish);
    EXPECT_EQ(textOfControl("lblPattern(6)"), "Section multiple");
}

TEST_F(PatternSelectTest, EachControlHasAnIdOfItsOwnInItsWindow) {
    for (const HWND parent : {form_.handle(), control("PatternSelect")}) {
        std::vector<int> ids;
        for (HWND child = GetWindow(parent, GW_CHILD); child != nullptr;
             child = GetWindow(child, GW_HWNDNEXT)) {
            ids.push_back(GetDlgCtrlID(child));
            EXPECT_FALSE(controlName(child).empty());
        }
        std::ranges::sort(ids);
        EXPECT_EQ(std::ranges::adjacent_find(ids), ids.end());
        EXPECT_GT(ids.size(), 8U);
    }
}

TEST_F(PatternSelectTest, TheOpenListShowsAllRotations) {
    const HWND list = control("cboRotation");
    RECT open{};
    SendMessageW(list, CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(&open));
    const auto row = static_cast<int>(SendMessageW(list, CB_GETITEMHEIGHT, 0, 0));
    EXPECT_GE(open.bottom - open.top, 13 * row);
}

TEST_F(PatternSelectTest, TheListTakesKeys) {
    EXPECT_TRUE(choose(
        [this] {
            SetFocus(control("cboRotation"));
            SendMessageW(control("cboRotation"), WM_KEYDOWN, VK_DOWN, 0);
        },
        "cmdOK"));
    EXPECT_EQ(patterns_[0], (PatternSetting{5, *rotationOfRow(1)}));
}

TEST_F(PatternSelectTest, EscapeInTheOpenListKeepsTheRotation) {
    const auto isDropped = [this] {
        return SendMessageW(control("cboRotation"), CB_GETDROPPEDSTATE, 0, 0) != FALSE;
    };
    player_.untilActive("frmPatternSelect")
        .then([this] { SetFocus(control("cboRotation")); })
        .key(VK_F4)
        .until("the list", isDropped)
        .key(VK_DOWN)
        .key(VK_DOWN)
        .key(VK_ESCAPE)
        .until("the end of the list", [isDropped] { return !isDropped(); })
        .until("the former row", [this] { return rotationRow() == 0; })
        .then([this] { click("cmdOK"); });
    EXPECT_TRUE(form_.SelectPattern(patterns_, tab_, nullptr));
    EXPECT_EQ(patterns_[0], (PatternSetting{5, 0}));
}

TEST_F(PatternSelectTest, EnterInTheOpenListTakesTheRow) {
    const auto isDropped = [this] {
        return SendMessageW(control("cboRotation"), CB_GETDROPPEDSTATE, 0, 0) != FALSE;
    };
    player_.untilActive("frmPatternSelect")
        .then([this] { SetFocus(control("cboRotation")); })
        .key(VK_F4)
        .until("the list", isDropped)
        .key(VK_DOWN)
        .key(VK_DOWN)
        .key(VK_RETURN)
        .until("the end of the list", [isDropped] { return !isDropped(); })
        .then([this] { EXPECT_EQ(rotationRow(), 2); })
        .then([this] { click("cmdOK"); });
    EXPECT_TRUE(form_.SelectPattern(patterns_, tab_, nullptr));
    EXPECT_EQ(patterns_[0], (PatternSetting{5, *rotationOfRow(2)}));
}

TEST_F(PatternSelectTest, TabGoesFromControlToControlAsTheyAreSeen) {
    std::vector<std::string> reached;
    player_.untilActive("frmPatternSelect").then([this] { SetFocus(control("btnTab(0)")); });
    const int stops = 5 + PatternTable::count() + 3;
    for (int stop = 0; stop < stops; ++stop) {
        player_.then([&reached] { reached.push_back(controlName(GetFocus())); }).key(VK_TAB);
    }
    player_.then([this] { EXPECT_EQ(GetFocus(), control("btnTab(0)")); }).key(VK_ESCAPE);
    (void)form_.SelectPattern(patterns_, tab_, nullptr);
    std::vector<std::string> seen;
    seen.reserve(static_cast<std::size_t>(stops));
    for (int tab = 0; tab < 5; ++tab) {
        seen.push_back("btnTab(" + std::to_string(tab) + ")");
    }
    for (const int pattern : patternsAsSeen()) {
        seen.push_back("optPattern(" + std::to_string(pattern) + ")");
    }
    // The first tab has no "No pattern".
    seen.insert(seen.end(), {"cboRotation", "cmdOK", "cmdCancel"});
    EXPECT_EQ(reached, seen);
}

TEST_F(PatternSelectTest, ArrowKeysGoFromPatternToPattern) {
    tab_ = 1;
    std::vector<std::string> reached;
    player_.untilActive("frmPatternSelect").then([this] {
        SetFocus(control("optPattern(" + std::to_string(patternsAsSeen().front()) + ")"));
    });
    for (int stop = 0; stop <= PatternTable::count(); ++stop) {
        player_.then([&reached] { reached.push_back(controlName(GetFocus())); }).key(VK_RIGHT);
    }
    player_.then([&reached] { reached.push_back(controlName(GetFocus())); }).key(VK_ESCAPE);
    (void)form_.SelectPattern(patterns_, tab_, nullptr);
    std::vector<std::string> seen;
    for (const int pattern : patternsAsSeen()) {
        seen.push_back("optPattern(" + std::to_string(pattern) + ")");
    }
    seen.insert(seen.end(), {"optNoPattern", seen.front()});
    EXPECT_EQ(reached, seen);
}

TEST_F(PatternSelectTest, EveryNameHasRoomInBothLanguages) {
    for (const int language : {languageEnglish, languageGerman}) {
        GetLanguageSupport().ChangeLanguage(language);
        for (int i = 0; i < PatternTable::count(); ++i) {
            const HWND label = control("lblPattern(" + std::to_string(i) + ")");
            RECT room{};
            GetClientRect(label, &room);
            RECT needed{0, 0, room.right, 0};
            const WindowContext context(label);
            const Selected font(context.get(),
                                reinterpret_cast<HFONT>(SendMessageW(label, WM_GETFONT, 0, 0)));
            DrawTextW(context.get(), wide(textOf(label)).c_str(), -1, &needed,
                      DT_CALCRECT | DT_WORDBREAK | DT_NOPREFIX);
            EXPECT_LE(needed.right, room.right) << textOf(label);
            EXPECT_LE(needed.bottom, room.bottom) << textOf(label);
        }
    }
}

TEST_F(PatternSelectTest, AnotherResolutionScalesAll) {
    const auto boxOf = [this](const std::string& name) {
        RECT box{};
        GetWindowRect(control(name), &box);
        return fromRect(box);
    };
    choose(
        [&] {
            RECT suggested{0, 0, 1700, 1000};
            SendMessageW(form_.handle(), WM_DPICHANGED, MAKEWPARAM(192, 192),
                         reinterpret_cast<LPARAM>(&suggested));
            EXPECT_EQ(boxOf("optPattern(0)").width(), 112);
            EXPECT_EQ(boxOf("picPreview").width(), 2 * 208);
            EXPECT_EQ(boxOf("cmdOK").height(), 48);
            suggested = {0, 0, 850, 500};
            SendMessageW(form_.handle(), WM_DPICHANGED, MAKEWPARAM(96, 96),
                         reinterpret_cast<LPARAM>(&suggested));
            EXPECT_EQ(boxOf("optPattern(0)").width(), 56);
        },
        "cmdCancel");
}

/// The pixels of a control that have this colour.
int pixelsOfColor(HWND window, COLORREF color) {
    const WindowContext context(window);
    RECT box{};
    GetClientRect(window, &box);
    int count = 0;
    for (int y = 0; y < box.bottom; ++y) {
        for (int x = 0; x < box.right; ++x) {
            count += GetPixel(context.get(), x, y) == color ? 1 : 0;
        }
    }
    return count;
}

TEST_F(PatternSelectTest, ThePreviewShowsAllPatternsTogether) {
    patterns_ = {};
    patterns_[0].Pattern = 0;
    const auto dpi = static_cast<int>(GetDpiForWindow(form_.handle()));
    const int side = scaledLength(208, dpi) - 2 * scaledLength(8, dpi);
    const int line = std::max(1, dpi / 96);
    const int frame = 4 * side * line - 4 * line * line;
    const int halves = 2 * (side - 2 * line) * line - line * line;
    const auto shows = [this](int pixels) {
        return [this, pixels] {
            return pixelsOfColor(control("picPreview"), RGB(255, 230, 0)) == pixels;
        };
    };
    player_.untilActive("frmPatternSelect")
        .until("the frame", shows(frame))
        .then([this] {
            click("btnTab(1)");
            click("optPattern(1)");
        })
        .until("the halves in the frame", shows(frame + halves))
        .then([this] { click("cmdCancel"); });
    EXPECT_FALSE(form_.SelectPattern(patterns_, tab_, nullptr));
    EXPECT_TRUE(player_.done());
}

}  // namespace
}  // namespace ormala
