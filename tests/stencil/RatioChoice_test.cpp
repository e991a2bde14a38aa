#include "stencil/RatioChoice.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <limits>

#include "language/MlStringModule.h"
#include "support/ManualLanguage.h"

namespace ormala {
namespace {

std::string translated(int id, std::string_view defaultText) {
    return MlString(id, defaultText);
}

/// As in a font whose characters are all five pixels wide, but for the blank of three.
int widthOf(const std::string& text) {
    const auto blanks = std::ranges::count(text, ' ');
    return static_cast<int>(5 * (static_cast<std::ptrdiff_t>(text.size()) - blanks) + 3 * blanks);
}

class RatioChoiceTest : public testing::Test {
  protected:
    // The captions are translated when the ratios are made.
    const ManualLanguage language_{languageEnglish};
    const TextForm form_{};
    SpecialRatios ratios_{&translated, form_};
    RatioChoice choice_{ratios_, form_};
};

TEST_F(RatioChoiceTest, ThreeQuartersOpensBelowOneWithItsRow) {
    choice_.begin(0.75);
    EXPECT_FALSE(choice_.inverted());
    EXPECT_EQ(choice_.row(), 3);
    EXPECT_EQ(choice_.newRatio(), 0.75);
}

TEST_F(RatioChoiceTest, FourThirdsOpensAboveOneWithTheInverseCaptionAndItsUsage) {
    choice_.begin(1.3333);
    EXPECT_TRUE(choice_.inverted());
    ASSERT_EQ(choice_.row(), 3);
    const std::string row = choice_.rows(&widthOf)[3];
    EXPECT_TRUE(row.starts_with("4:3 "));
    EXPECT_TRUE(row.ends_with("\tdigital photo, TV, monitor"));
    EXPECT_EQ(choice_.newRatio(), 4.0 / 3);
}

TEST_F(RatioChoiceTest, ExactlyOneOpensAboveOneWithTheSquare) {
    choice_.begin(1.0);
    EXPECT_TRUE(choice_.inverted());
    EXPECT_EQ(choice_.row(), 0);
    EXPECT_EQ(choice_.newRatio(), 1.0);
}

TEST_F(RatioChoiceTest, NearARowIsNoRowAndAsksForOne) {
    choice_.begin(0.7);
    EXPECT_FALSE(choice_.inverted());
    EXPECT_EQ(choice_.row(), -1);
    EXPECT_EQ(choice_.newRatio(), std::nullopt);
    EXPECT_EQ(choice_.newText(), "Please select a special ratio.");
    EXPECT_EQ(choice_.currentText(), "Current W:H = 0.7000");
}

TEST_F(RatioChoiceTest, OtherSideKeepsTheRowAndTurnsRatioAndCaptions) {
    choice_.begin(0.75);
    choice_.setInverted(true);
    EXPECT_EQ(choice_.row(), 3);
    EXPECT_EQ(choice_.newRatio(), 4.0 / 3);
    EXPECT_EQ(choice_.newText(), "New W:H = 1.333");
    EXPECT_TRUE(choice_.rows(&widthOf)[6].starts_with("3:2 "));
    choice_.setInverted(false);
    EXPECT_EQ(choice_.newText(), "New W:H = 0.7500");
    EXPECT_TRUE(choice_.rows(&widthOf)[6].starts_with("2:3 "));
}

TEST_F(RatioChoiceTest, BlanksBringTheUsagesInLine) {
    choice_.begin(0.75);
    const auto rows = choice_.rows(&widthOf);
    ASSERT_EQ(rows.size(), 18U);
    // The widest caption is "(root(5)-1):2" with 13 characters, 65 pixels.
    EXPECT_EQ(rows[8], "(root(5)-1):2\tgolden section");
    EXPECT_EQ(rows[0], "1:1" + std::string(16, ' ') + "\tsquare");
    EXPECT_EQ(rows[1], "4:5");
}

TEST_F(RatioChoiceTest, TextsAreInTheLanguageOfTheUser) {
    MlSetLanguage(languageGerman, {});
    ratios_ = SpecialRatios(&translated, form_);
    choice_.begin(0.7);
    EXPECT_EQ(choice_.currentText(), "Aktuelle B:H = 0.7000");
    EXPECT_EQ(choice_.newText(), "Bitte wählen Sie ein besonderes Verhältnis.");
    choice_.setRow(8);
    EXPECT_EQ(choice_.newText(), "Neue B:H = 0.6180");
    EXPECT_EQ(choice_.rows(&widthOf)[8], "(Wurzel(5)-1):2\tGoldener Schnitt");
}

TEST_F(RatioChoiceTest, RowOutsideTheTableChoosesNothing) {
    choice_.begin(0.75);
    choice_.setRow(18);
    EXPECT_EQ(choice_.newRatio(), std::nullopt);
}

TEST_F(RatioChoiceTest, EndlessRatioCanBeReplaced) {
    choice_.begin(std::numeric_limits<double>::infinity());
    EXPECT_TRUE(choice_.inverted());
    EXPECT_EQ(choice_.row(), -1);
    EXPECT_EQ(choice_.currentText(), "Current W:H = infinite");
}

TEST(PreviewOfRatio, StandsAboutItsCentre) {
    EXPECT_EQ(previewOfRatio(2, 60, {200, 100}), (PixelRect{140, 70, 260, 130}));
    EXPECT_EQ(previewOfRatio(0.5, 60, {200, 100}), (PixelRect{185, 70, 215, 130}));
}

TEST(PreviewOfRatio, HasAPixelAtLeastAndAnEndAtMost) {
    EXPECT_EQ(previewOfRatio(0, 60, {200, 100}).width(), 1);
    EXPECT_EQ(previewOfRatio(1e300, 60, {200, 100}).width(), 32000);
    const double endless = std::numeric_limits<double>::infinity();
    EXPECT_EQ(previewOfRatio(endless, 60, {200, 100}).width(), 32000);
}

}  // namespace
}  // namespace ormala
