#include "widgets/ListChoice.h"

#include <gtest/gtest.h>

namespace ormala {
namespace {

class ListChoiceTest : public testing::Test {
  protected:
    ListChoiceTest() { choice_.opened(); }

    ListChoice choice_;
};

TEST_F(ListChoiceTest, AListThatOnlyComesAndGoesChoosesNothing) {
    EXPECT_TRUE(choice_.isOpen());
    choice_.ended(true);
    choice_.closed();
    EXPECT_FALSE(choice_.isOpen());
    EXPECT_EQ(choice_.chosen(), std::nullopt);
}

TEST_F(ListChoiceTest, ARowGoneToIsChosenOnlyWhenItIsTaken) {
    choice_.reached(3);
    choice_.reached(4);
    EXPECT_EQ(choice_.chosen(), std::nullopt);
    choice_.ended(true);
    EXPECT_EQ(choice_.chosen(), 4);
}

TEST_F(ListChoiceTest, LeavingTheListChoosesNothing) {
    choice_.reached(3);
    choice_.ended(false);
    choice_.closed();
    EXPECT_EQ(choice_.chosen(), std::nullopt);
}

TEST_F(ListChoiceTest, ARowThatIsToldOfAfterTheEndCounts) {
    choice_.ended(true);
    choice_.closed();
    choice_.reached(5);
    EXPECT_EQ(choice_.chosen(), 5);
}

TEST_F(ListChoiceTest, ARowThatIsToldOfAfterLeavingDoesNotCount) {
    choice_.ended(false);
    choice_.closed();
    choice_.reached(5);
    EXPECT_EQ(choice_.chosen(), std::nullopt);
}

TEST_F(ListChoiceTest, TypingForgetsTheRowGoneTo) {
    choice_.reached(3);
    choice_.typed();
    choice_.ended(true);
    EXPECT_EQ(choice_.chosen(), std::nullopt);
    choice_.reached(6);
    EXPECT_EQ(choice_.chosen(), 6);
}

TEST_F(ListChoiceTest, ARowIsTheListsUntilItsEndHasSettledOnce) {
    EXPECT_FALSE(choice_.settle());
    choice_.closed();
    EXPECT_TRUE(choice_.reached(2));
    EXPECT_TRUE(choice_.settle());
    EXPECT_FALSE(choice_.settle());
    EXPECT_FALSE(choice_.reached(3));
}

TEST_F(ListChoiceTest, AnotherOpeningEndsTheSettling) {
    choice_.closed();
    choice_.opened();
    EXPECT_FALSE(choice_.settle());
}

TEST_F(ListChoiceTest, EachOpeningBeginsAnew) {
    choice_.reached(3);
    choice_.ended(true);
    choice_.closed();
    choice_.opened();
    EXPECT_TRUE(choice_.isOpen());
    EXPECT_EQ(choice_.chosen(), std::nullopt);
    choice_.reached(1);
    EXPECT_EQ(choice_.chosen(), std::nullopt);
}

}  // namespace
}  // namespace ormala
