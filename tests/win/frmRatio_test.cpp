#include "stencil/win/frmRatio.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>

#include "language/MlStringModule.h"
#include "win/EnglishTexts.h"
#include "win/ModalPlayer.h"
#include "win/TestSheet.h"
#include "win/TestWindow.h"

namespace ormala {
namespace {

constexpr COLORREF newFace = RGB(255, 255, 192);

std::string translated(int id, std::string_view defaultText) {
    return MlString(id, defaultText);
}

class frmRatioTest : public testing::Test {
  protected:
    [[nodiscard]] HWND part(const char* name) const { return namedChild(dialog_.handle(), name); }
    [[nodiscard]] HWND list() const { return part("lstRatio"); }
    [[nodiscard]] int selected() const {
        return static_cast<int>(SendMessageW(list(), LB_GETCURSEL, 0, 0));
    }
    [[nodiscard]] std::wstring row(int index) const {
        wchar_t text[200]{};
        SendMessageW(list(), LB_GETTEXT, static_cast<WPARAM>(index),
                     reinterpret_cast<LPARAM>(text));
        return text;
    }
    [[nodiscard]] bool isOn(const char* option) const {
        return SendMessageW(part(option), BM_GETCHECK, 0, 0) == BST_CHECKED;
    }
    [[nodiscard]] bool showsNew() const {
        UpdateWindow(dialog_.handle());
        const PixelMap map = readClient(dialog_.handle());
        return std::ranges::find(map.pixels, newFace) != map.pixels.end();
    }
    void clickRow(UINT message, int index) const {
        RECT place{};
        SendMessageW(list(), LB_GETITEMRECT, static_cast<WPARAM>(index),
                     reinterpret_cast<LPARAM>(&place));
        const LPARAM point = MAKELPARAM(place.left + 10, (place.top + place.bottom) / 2);
        PostMessageW(list(), message, MK_LBUTTON, point);
        PostMessageW(list(), WM_LBUTTONUP, 0, point);
    }
    std::optional<double> edit(double current) {
        return dialog_.EditRatio(owner_.handle(), current);
    }

    EnglishTexts english_;
    TestWindow owner_;
    const TextForm form_{};
    SpecialRatios ratios_{&translated, form_};
    frmRatio dialog_{ratios_, form_};
    ModalPlayer player_;
};

TEST_F(frmRatioTest, OpensWithTheRowOfThePresentRatioAndGivesItByEnter) {
    player_.untilActive("frmRatio")
        .then([this] {
            EXPECT_EQ(textOf(dialog_.handle()), "Select Special Ratio");
            EXPECT_EQ(GetFocus(), list());
            EXPECT_EQ(selected(), 3);
            EXPECT_TRUE(isOn("optInvert(0)"));
            EXPECT_FALSE(isOn("optInvert(1)"));
            EXPECT_EQ(textOf(part("lblPreviewOld")), "Current W:H = 0.7500");
            EXPECT_EQ(textOf(part("lblPreviewNew")), "New W:H = 0.7500");
            EXPECT_TRUE(showsNew());
        })
        .key(VK_RETURN);
    EXPECT_EQ(edit(0.75), 0.75);
}

TEST_F(frmRatioTest, OpensAboveOneWithTheInverseCaptions) {
    player_.untilActive("frmRatio")
        .then([this] {
            EXPECT_TRUE(isOn("optInvert(1)"));
            EXPECT_EQ(selected(), 3);
            EXPECT_EQ(row(3).substr(0, 4), L"4:3 ");
        })
        .key(VK_RETURN);
    EXPECT_EQ(edit(1.3333), 4.0 / 3);
}

TEST_F(frmRatioTest, OtherRatioAsksForARowAndCannotBeConfirmed) {
    player_.untilActive("frmRatio")
        .then([this] {
            EXPECT_EQ(selected(), -1);
            EXPECT_FALSE(IsWindowEnabled(part("cmdOK")));
            EXPECT_EQ(textOf(part("lblPreviewNew")), "Please select a special ratio.");
            EXPECT_FALSE(showsNew());
        })
        .key(VK_RETURN)
        .then([this] { EXPECT_TRUE(dialog_.isVisible()); })
        .key(VK_ESCAPE);
    EXPECT_EQ(edit(0.7), std::nullopt);
}

TEST_F(frmRatioTest, ArrowKeysChooseARow) {
    player_.untilActive("frmRatio")
        .key(VK_DOWN)
        .until("the next row", [this] { return selected() == 4; })
        .then([this] { EXPECT_EQ(textOf(part("lblPreviewNew")), "New W:H = 0.7200"); })
        .key(VK_RETURN);
    EXPECT_EQ(edit(0.75), 9 / 12.5);
}

TEST_F(frmRatioTest, ClickChoosesARowAndTheOKButtonTakesIt) {
    player_.untilActive("frmRatio")
        .then([this] { clickRow(WM_LBUTTONDOWN, 12); })
        .until("the row", [this] { return selected() == 12; })
        .then([this] {
            EXPECT_TRUE(IsWindowEnabled(part("cmdOK")));
            PostMessageW(part("cmdOK"), BM_CLICK, 0, 0);
        });
    EXPECT_EQ(edit(0.7), 0.5);
}

TEST_F(frmRatioTest, DoubleClickIsOK) {
    player_.untilActive("frmRatio")
        .then([this] { clickRow(WM_LBUTTONDOWN, 15); })
        .until("the row", [this] { return selected() == 15; })
        .then([this] { clickRow(WM_LBUTTONDBLCLK, 15); });
    EXPECT_EQ(edit(0.7), 1.0 / 3);
}

TEST_F(frmRatioTest, OtherSideKeepsTheRowAndUpdatesCaptionsAndPreview) {
    player_.untilActive("frmRatio")
        .then([this] { SendMessageW(part("optInvert(1)"), BM_CLICK, 0, 0); })
        .then([this] {
            EXPECT_TRUE(isOn("optInvert(1)"));
            EXPECT_FALSE(isOn("optInvert(0)"));
            EXPECT_EQ(selected(), 3);
            EXPECT_EQ(row(6).substr(0, 4), L"3:2 ");
            EXPECT_EQ(textOf(part("lblPreviewNew")), "New W:H = 1.333");
        })
        .key(VK_RETURN);
    EXPECT_EQ(edit(0.75), 4.0 / 3);
}

TEST_F(frmRatioTest, TabAndArrowsReachTheOtherSide) {
    player_.untilActive("frmRatio")
        .key(VK_TAB)
        .until("the options", [this] { return GetFocus() == part("optInvert(0)"); })
        .key(VK_RIGHT)
        .until("the other option", [this] { return isOn("optInvert(1)"); })
        .key(VK_TAB)
        .until("the button", [this] { return GetFocus() == part("cmdOK"); })
        .key(VK_SPACE);
    EXPECT_EQ(edit(0.75), 4.0 / 3);
}

TEST_F(frmRatioTest, CancelGivesNothing) {
    player_.untilActive("frmRatio").then([this] {
        PostMessageW(part("cmdCancel"), BM_CLICK, 0, 0);
    });
    EXPECT_EQ(edit(0.75), std::nullopt);
}

TEST_F(frmRatioTest, SpeaksGermanAfterAChangeOfLanguage) {
    MlSetLanguage(languageGerman, {});
    ratios_ = SpecialRatios(&translated, form_);
    GetLanguageSupport().ChangeLanguage(languageGerman);
    player_.untilActive("frmRatio")
        .then([this] {
            EXPECT_EQ(textOf(dialog_.handle()), "Besonderes Verhältnis auswählen");
            EXPECT_EQ(textOf(part("optInvert(0)")), "Breite <= Höhe");
            EXPECT_EQ(textOf(part("optInvert(1)")), "Breite >= Höhe");
            EXPECT_EQ(textOf(part("cmdCancel")), "Abbrechen");
            EXPECT_EQ(textOf(part("lblPreviewOld")), "Aktuelle B:H = 0.7500");
            EXPECT_NE(row(5).find(L"DIN-Papier"), std::wstring::npos);
        })
        .key(VK_ESCAPE);
    edit(0.75);
}

}  // namespace
}  // namespace ormala
