#include "widgets/win/Label.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "platform/win/controlName.h"
#include "win/AccessibleReader.h"
#include "win/ControlPanel.h"

namespace ormala {
namespace {

constexpr COLORREF yellow = RGB(255, 230, 0);

class LabelTest : public testing::Test {
  protected:
    LabelTest() {
        label_.setDpi(96);
        label_.setTextColor(rgb(255, 230, 0));
        label_.setBackColor(0x606060);
        label_.place({20, 10, 120, 26});
    }

    /// The first and the last column with ink.
    std::pair<int, int> ink() {
        panel_.shown();
        const PixelMap map = readClient(label_.handle());
        int first = map.size.width;
        int last = -1;
        for (int x = 0; x < map.size.width; ++x) {
            for (int y = 0; y < map.size.height; ++y) {
                if (map.at(x, y) != ControlPanel::ground) {
                    first = std::min(first, x);
                    last = x;
                }
            }
        }
        return {first, last};
    }

    AccessibleThread thread_;
    ControlPanel panel_;
    Label label_{panel_.handle(), 9, "lblRatioWH"};
};

TEST_F(LabelTest, IsFoundByClassNameIdAndText) {
    label_.setText("W:H = 1.614");
    EXPECT_EQ(windowClass(label_.handle()), "Label");
    EXPECT_EQ(controlName(label_.handle()), "lblRatioWH");
    EXPECT_EQ(GetDlgItem(panel_.handle(), 9), label_.handle());
    EXPECT_EQ(windowText(label_.handle()), "W:H = 1.614");
}

TEST_F(LabelTest, AmpersandIsPlainText) {
    label_.setText("A&B");
    const auto [first, last] = ink();
    label_.setText("AB");
    EXPECT_GT(last - first, ink().second - ink().first);
}

TEST_F(LabelTest, ShowsItsTextInItsColourOnItsGround) {
    label_.setText("X = 640.0");
    panel_.shown();
    const PixelMap map = readClient(label_.handle());
    EXPECT_EQ(map.at(99, 0), ControlPanel::ground);
    EXPECT_GT(std::count(map.pixels.begin(), map.pixels.end(), yellow), 0);
    label_.setBackColor(0x4A4A4A);
    panel_.shown();
    EXPECT_EQ(readClient(label_.handle()).at(99, 0), RGB(74, 74, 74));
}

TEST_F(LabelTest, AlignsItsText) {
    label_.setText("640");
    EXPECT_LE(ink().first, 2);
    label_.setAlignment(Alignment::right);
    EXPECT_GE(ink().second, 96);
    label_.setAlignment(Alignment::center);
    const auto [first, last] = ink();
    EXPECT_NEAR(first + last, 99, 4);
}

TEST_F(LabelTest, BoldAndAHigherResolutionMakeItWider) {
    label_.setText("Stencil");
    const int plain = ink().second;
    label_.setBold(true);
    const int bold = ink().second;
    EXPECT_GT(bold, plain);
    label_.setDpi(192);
    EXPECT_GT(ink().second, bold * 3 / 2);
}

TEST_F(LabelTest, RepaintsOnlyWhenTheTextReallyChanges) {
    label_.setText("640");
    panel_.shown();
    label_.setText("640");
    label_.setTextColor(rgb(255, 230, 0));
    label_.setBold(false);
    EXPECT_FALSE(GetUpdateRect(label_.handle(), nullptr, FALSE));
    label_.setText("641");
    EXPECT_TRUE(GetUpdateRect(label_.handle(), nullptr, FALSE));
}

TEST_F(LabelTest, MouseGoesToTheParentInItsCoordinates) {
    panel_.mouse.clear();
    for (const UINT message :
         std::initializer_list<UINT>{WM_MOUSEMOVE, WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK,
                                     WM_RBUTTONDOWN, WM_RBUTTONUP}) {
        SendMessageW(label_.handle(), message, 0, MAKELPARAM(3, 4));
        ASSERT_FALSE(panel_.mouse.empty());
        EXPECT_EQ(panel_.mouse.back(), (ControlPanel::MouseNote{message, 23, 14}));
    }
    EXPECT_EQ(panel_.mouse.size(), 6U);
}

TEST_F(LabelTest, TipComesWithTheMouse) {
    label_.SetTooltip("Ratio");
    const int before = tipWindowCount();
    SendMessageW(label_.handle(), WM_MOUSEMOVE, 0, MAKELPARAM(3, 4));
    EXPECT_EQ(tipWindowCount(), before + 1);
}

TEST_F(LabelTest, ATextWithoutRoomEndsInAnEllipsisAndTheTipTellsAllOfIt) {
    label_.SetTooltip("Width");
    label_.setText("W = 1234 ");
    EXPECT_EQ(label_.tipText(), "Width");
    label_.setText("a = 1234567.8 nautical miles of the old kind ");
    EXPECT_EQ(label_.tipText(), "a = 1234567.8 nautical miles of the old kind\nWidth");
    EXPECT_LT(ink().second, 99);
    const PixelMap shown = readClient(label_.handle());
    // The dots of the ellipsis: nothing above the base line at the end of the text.
    const int last = ink().second;
    for (int y = 0; y < 7; ++y) {
        EXPECT_EQ(shown.at(last, y), ControlPanel::ground) << y;
    }
    label_.SetTooltip({});
    EXPECT_EQ(label_.tipText(), "a = 1234567.8 nautical miles of the old kind");
}

TEST_F(LabelTest, TheBlankBehindAValueTakesNoRoom) {
    label_.setText("12345678");
    const int width = ink().second + 1;
    label_.setText("12345678 ");
    label_.place({20, 10, 20 + width + 1, 26});
    EXPECT_EQ(label_.tipText(), "");
    EXPECT_EQ(ink().second + 1, width);
}

TEST_F(LabelTest, ADisabledOneIsDimmedAndBrightAgainLater) {
    label_.setText("HHHH");
    const auto has = [this](COLORREF color) {
        panel_.shown();
        const PixelMap map = readClient(label_.handle());
        return std::ranges::find(map.pixels, color) != map.pixels.end();
    };
    EXPECT_TRUE(has(yellow));
    label_.setEnabled(false);
    EXPECT_FALSE(has(yellow));
    EXPECT_TRUE(has(RGB(150, 150, 150)));
    label_.setEnabled(true);
    EXPECT_TRUE(has(yellow));
}

TEST_F(LabelTest, ScreenReaderReadsItAsText) {
    label_.setText("3:5 & more");
    const AccessibleReader reader(label_.handle());
    ASSERT_TRUE(reader.found());
    EXPECT_EQ(reader.name(), "3:5 & more");
    EXPECT_EQ(reader.role(), ROLE_SYSTEM_STATICTEXT);
}

}  // namespace
}  // namespace ormala
