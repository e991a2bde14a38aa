#include "stencil/PatternPage.h"

#include <gtest/gtest.h>

#include "modAPI/constants.h"
#include "stencil/PatternRotations.h"

namespace ormala {
namespace {

class PatternPageTest : public testing::Test {
  protected:
    PatternSetting setting_{5, 0};
    PatternPage page_{setting_};
    int changes_ = 0;
    Subscription change_ = page_.change.subscribe([this] { ++changes_; });
};

TEST_F(PatternPageTest, ShowsItsSetting) {
    EXPECT_EQ(page_.look(), (PatternPageLook{5, 0, true, true}));
    setting_.PreRotation = *rotationOfRow(7);
    EXPECT_EQ(page_.look().rotationRow, 7);
}

TEST_F(PatternPageTest, AClickOnAPatternChangesTheSettingAndTellsTheOwner) {
    page_.choosePattern(18);
    EXPECT_EQ(setting_.Pattern, 18);
    EXPECT_EQ(changes_, 1);
    EXPECT_EQ(page_.look().pattern, 18);
}

TEST_F(PatternPageTest, NoPatternDisablesTheRotation) {
    page_.chooseNoPattern();
    EXPECT_EQ(setting_.Pattern, -1);
    EXPECT_EQ(changes_, 1);
    EXPECT_FALSE(page_.look().rotationEnabled);
    page_.chooseRotation(1);
    EXPECT_EQ(setting_.PreRotation, 0);
    EXPECT_EQ(changes_, 1);
}

TEST_F(PatternPageTest, NoPatternCannotBeChosenWhereItIsNotAllowed) {
    page_.setAllowNoSelection(false);
    EXPECT_FALSE(page_.look().noPatternVisible);
    page_.chooseNoPattern();
    EXPECT_EQ(setting_.Pattern, 5);
    EXPECT_EQ(changes_, 0);
}

TEST_F(PatternPageTest, ARowOfTheListTurnsThePattern) {
    page_.chooseRotation(3);
    EXPECT_EQ(setting_.PreRotation, *rotationOfRow(3));
    EXPECT_EQ(changes_, 1);
    EXPECT_EQ(page_.look().rotationRow, 3);
}

TEST_F(PatternPageTest, AnAngleThatIsNoRowStaysUntilTheUserPicksOne) {
    setting_.PreRotation = 0.123;
    EXPECT_EQ(page_.look().rotationRow, std::nullopt);
    page_.choosePattern(2);
    EXPECT_EQ(setting_.PreRotation, 0.123);
    page_.chooseRotation(0);
    EXPECT_EQ(setting_.PreRotation, 0);
}

TEST_F(PatternPageTest, WhatThereIsNotChangesNothing) {
    page_.choosePattern(19);
    page_.choosePattern(-1);
    page_.chooseRotation(13);
    page_.chooseRotation(-1);
    EXPECT_EQ(setting_, (PatternSetting{5, 0}));
    EXPECT_EQ(changes_, 0);
}

TEST_F(PatternPageTest, AnotherSettingLeavesTheFirstAlone) {
    PatternSetting other{-1, 1};
    page_.setSetting(other);
    page_.choosePattern(4);
    EXPECT_EQ(other.Pattern, 4);
    EXPECT_EQ(setting_.Pattern, 5);
}

}  // namespace
}  // namespace ormala
