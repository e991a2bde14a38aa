#include "dialogs/optionChoices.h"

#include <gtest/gtest.h>

namespace ormala {
namespace {

TEST(OptionChoices, FindsTheOptionOfAValue) {
    EXPECT_EQ(optionFor(9, languageChoices), 0);
    EXPECT_EQ(optionFor(1031, languageChoices), 1);
    EXPECT_EQ(optionFor(1, gridStyleChoices), 0);
    EXPECT_EQ(optionFor(2, gridStyleChoices), 1);
    EXPECT_EQ(optionFor(6, drawModeChoices), 0);
    EXPECT_EQ(optionFor(9, drawModeChoices), 1);
    EXPECT_EQ(optionFor(13, drawModeChoices), 2);
    EXPECT_EQ(optionFor(7, hotSpotStyleChoices), 7);
    EXPECT_EQ(optionFor(3, originChoices), 3);
}

TEST(OptionChoices, AValueThatNoOptionHasSelectsNoOption) {
    EXPECT_EQ(optionFor(7, drawModeChoices), noOption);
    EXPECT_EQ(optionFor(0, gridStyleChoices), noOption);
    EXPECT_EQ(optionFor(8, hotSpotStyleChoices), noOption);
    EXPECT_EQ(optionFor(-1, originChoices), noOption);
    EXPECT_EQ(optionFor(1033, languageChoices), noOption);
}

TEST(OptionChoices, ASliderBetweenTwoWholeNumbersStandsForTheNearerOne) {
    EXPECT_EQ(wholeValue(4.4F), 4);
    EXPECT_EQ(wholeValue(4.5F), 5);
    EXPECT_EQ(wholeValue(-2.5F), -3);
}

TEST(OptionPages, OpenAsTheyAreNamed) {
    EXPECT_EQ(pageToOpen(0, 2), 0);
    EXPECT_EQ(pageToOpen(1, 2), 1);
    EXPECT_EQ(pageToOpen(2, 0), 2);
}

TEST(OptionPages, TheLastOneStaysWhereNoPageIsNamed) {
    EXPECT_EQ(pageToOpen(-1, 1), 1);
    EXPECT_EQ(pageToOpen(3, 2), 2);
    EXPECT_EQ(pageToOpen(-2, 0), 0);
}

class CoupledValuesTest : public testing::Test {
  protected:
    void expect(int x, int y) const {
        EXPECT_EQ(x_, x);
        EXPECT_EQ(y_, y);
    }

    int x_ = 50;
    int y_ = 80;
    CoupledValues values_{x_, y_};
};

TEST_F(CoupledValuesTest, BeginCoupledWhereTheyAreEqual) {
    values_.begin();
    EXPECT_FALSE(values_.coupled());
    y_ = 50;
    values_.begin();
    EXPECT_TRUE(values_.coupled());
    expect(50, 50);
}

TEST_F(CoupledValuesTest, MoveAloneWithoutCoupling) {
    values_.setX(7);
    expect(7, 80);
    values_.setY(9);
    expect(7, 9);
}

TEST_F(CoupledValuesTest, FollowEachOtherWhileTheyAreCoupled) {
    values_.couple(true);
    values_.setX(7);
    expect(7, 7);
    values_.setY(9);
    expect(9, 9);
}

TEST_F(CoupledValuesTest, CouplingCopiesTheFirstToTheSecond) {
    values_.couple(true);
    expect(50, 50);
}

TEST_F(CoupledValuesTest, DecouplingMovesNothing) {
    values_.couple(true);
    values_.setX(120);
    values_.couple(false);
    expect(120, 120);
    values_.setX(3);
    expect(3, 120);
}

}  // namespace
}  // namespace ormala
