#include "app/settingsLayout.h"

#include <gtest/gtest.h>

namespace ormala {
namespace {

class SettingsLayoutTest : public testing::TestWithParam<int> {
  protected:
    [[nodiscard]] int scaled(int length) const { return (length * GetParam() + 48) / 96; }

    SettingsLayout layout_{GetParam()};
};

TEST_P(SettingsLayoutTest, TheWindowIsAsWideAsTheListAndItsMargins) {
    EXPECT_EQ(layout_.width, scaled(300));
    EXPECT_NEAR(layout_.width, 2 * layout_.picOuter.left + layout_.picOuter.width(), 1);
}

TEST_P(SettingsLayoutTest, TheShortWindowEndsTwelvePixelsAboveTheList) {
    EXPECT_NEAR(layout_.shortHeight, layout_.picOuter.top - scaled(12), 1);
}

TEST_P(SettingsLayoutTest, TheShortWindowStillShowsTheWholeBar) {
    for (const PixelRect& button : layout_.btnMode) {
        EXPECT_LT(button.bottom, layout_.shortHeight);
    }
}

TEST_P(SettingsLayoutTest, TheFirstWindowShowsTheWholeListAndTheSameMarginBelowAsAtItsLeft) {
    EXPECT_NEAR(layout_.firstHeight, layout_.picOuter.bottom + layout_.picOuter.left, 1);
}

TEST_P(SettingsLayoutTest, TheModesStandSideBySideInTheirOrder) {
    const auto& buttons = layout_.btnMode;
    EXPECT_EQ(buttons.front().left, layout_.picOuter.left);
    EXPECT_EQ(buttons.back().right, layout_.picOuter.right);
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        EXPECT_EQ(buttons[i].top, buttons[0].top);
        EXPECT_EQ(buttons[i].bottom, buttons[0].bottom);
        EXPECT_NEAR(buttons[i].width(), buttons[0].width(), scaled(1) + 1);
        if (i > 0) {
            EXPECT_GT(buttons[i].left, buttons[i - 1].right);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(AtDpi, SettingsLayoutTest, testing::Values(96, 120, 144, 192, 288));

}  // namespace
}  // namespace ormala
