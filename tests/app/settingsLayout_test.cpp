#include "app/settingsLayout.h"

#include <gtest/gtest.h>

#include <array>

namespace ormala {
namespace {

class SettingsLayoutTest : public testing::TestWithParam<int> {
  protected:
    [[nodiscard]] static int scaled(int length) { return (length * GetParam() + 48) / 96; }

    SettingsLayout layout_{GetParam()};
};

TEST_P(SettingsLayoutTest, TheWindowIsAsWideAsTheListAndItsMargins) {
    EXPECT_EQ(layout_.width, scaled(318));
    EXPECT_NEAR(layout_.width, 2 * layout_.picOuter.left + layout_.picOuter.width(), 1);
}

TEST_P(SettingsLayoutTest, TheShortWindowEndsTwelvePixelsAboveTheList) {
    EXPECT_NEAR(layout_.shortHeight, layout_.picOuter.top - scaled(12), 1);
}

TEST_P(SettingsLayoutTest, TheShortWindowStillShowsAllButtonsAndThePath) {
    for (const PixelRect& button : layout_.buttons) {
        EXPECT_LT(button.bottom, layout_.shortHeight);
    }
    EXPECT_LE(layout_.lblPath.bottom, layout_.shortHeight);
}

TEST_P(SettingsLayoutTest, ButtonsStandSideBySideWithinTheMargins) {
    for (std::size_t i = 0; i < layout_.buttons.size(); ++i) {
        const PixelRect& box = layout_.buttons[i];
        EXPECT_FALSE(box.empty());
        EXPECT_GE(box.left, layout_.picOuter.left);
        EXPECT_LE(box.right, layout_.picOuter.right);
        for (std::size_t j = 0; j < i; ++j) {
            EXPECT_FALSE(box.meets(layout_.buttons[j])) << i << " and " << j;
        }
    }
}

TEST_P(SettingsLayoutTest, TheLookOfTheWorksheetStandsBetweenTheButtonsAndThePath) {
    const PixelRect palette{layout_.colorWorksheet.x, layout_.colorWorksheet.y,
                            layout_.colorWorksheet.x + 13 * layout_.colorField,
                            layout_.colorWorksheet.y + 8 * layout_.colorField};
    const std::array parts{layout_.lblTransparency, layout_.sldTransEditMode,
                           layout_.sldTransTemplateMode, palette};
    for (std::size_t i = 0; i < parts.size(); ++i) {
        EXPECT_GE(parts.at(i).top, layout_.gradToolbar.bottom);
        EXPECT_LE(parts.at(i).bottom, layout_.lblPath.top);
        EXPECT_GE(parts.at(i).left, layout_.picOuter.left);
        EXPECT_LE(parts.at(i).right, layout_.picOuter.right);
        for (std::size_t j = 0; j < i; ++j) {
            EXPECT_FALSE(parts.at(i).meets(parts.at(j))) << i << " and " << j;
        }
    }
    EXPECT_EQ(palette.right, layout_.picOuter.right);
    EXPECT_EQ(layout_.sldTransEditMode.left, layout_.sldTransTemplateMode.left);
    EXPECT_EQ(layout_.sldTransEditMode.right, layout_.sldTransTemplateMode.right);
}

TEST_P(SettingsLayoutTest, TheGroundOfTheToolbarLiesBehindAllButtons) {
    for (const PixelRect& button : layout_.buttons) {
        EXPECT_TRUE(layout_.gradToolbar.contains(PixelPoint{button.left, button.top}));
        EXPECT_TRUE(layout_.gradToolbar.contains(PixelPoint{button.right - 1, button.bottom - 1}));
    }
    EXPECT_EQ(layout_.gradToolbar.width(), layout_.width);
}

TEST_P(SettingsLayoutTest, TheToolbarReadsModesToolsDocumentsViewOptionsAndHelp) {
    const auto after = [&](Command first, Command second) {
        const PixelRect& a = layout_.boxOf(first);
        const PixelRect& b = layout_.boxOf(second);
        return b.top >= a.bottom || (b.top == a.top && b.left >= a.right);
    };
    for (std::size_t i = 0; i + 1 < buttonCount; ++i) {
        EXPECT_TRUE(after(static_cast<Command>(i), static_cast<Command>(i + 1))) << i;
    }
}

TEST_P(SettingsLayoutTest, TheInfoLineLiesTwoLinesBelowThePathLine) {
    EXPECT_NEAR(layout_.lblInfo.top, layout_.lblPath.top + 2 * layout_.lblPath.height(), 2);
    EXPECT_EQ(layout_.lblInfo.left, layout_.lblPath.left);
}

TEST_P(SettingsLayoutTest, TheFirstWindowShowsTheWholeListAndTheSameMarginBelowAsAtItsLeft) {
    EXPECT_NEAR(layout_.firstHeight, layout_.picOuter.bottom + layout_.picOuter.left, 1);
}

TEST_P(SettingsLayoutTest, TheModesStandFirstInTheirOrder) {
    const PixelRect& edit = layout_.boxOf(Command::editMode);
    const PixelRect& templateMode = layout_.boxOf(Command::templateMode);
    const PixelRect& pause = layout_.boxOf(Command::pauseMode);
    EXPECT_EQ(edit.left, layout_.picOuter.left);
    EXPECT_EQ(edit.right, templateMode.left);
    EXPECT_EQ(templateMode.right, pause.left);
    EXPECT_EQ(edit.top, pause.top);
}

INSTANTIATE_TEST_SUITE_P(AtDpi, SettingsLayoutTest, testing::Values(96, 120, 144, 192, 288));

}  // namespace
}  // namespace ormala
