#include "app/ListScroll.h"

#include <gtest/gtest.h>

namespace ormala {
namespace {

constexpr int inside = 400;

/// A list of 1000 pixels in a window of 400.
class ListScrollTest : public testing::Test {
  protected:
    ListScrollTest() { scroll_.setHeights(1000, inside); }

    ListScroll scroll_;
};

TEST(ListScroll, WithoutAContentTheWheelDoesNothing) {
    ListScroll scroll;
    scroll.setHeights(0, inside);
    EXPECT_FALSE(scroll.enabled());
    EXPECT_TRUE(scroll.Scroll(true).empty());
    EXPECT_TRUE(scroll.Scroll(false).empty());
    EXPECT_EQ(scroll.Value(), 0);
}

TEST(ListScroll, AContentThatFitsExactlyDoesNotScroll) {
    ListScroll scroll;
    scroll.setHeights(inside, inside);
    EXPECT_FALSE(scroll.enabled());
}

TEST(ListScroll, AContentOnePixelTallerScrollsThatPixel) {
    ListScroll scroll;
    scroll.setHeights(inside + 1, inside);
    EXPECT_TRUE(scroll.enabled());
    EXPECT_EQ(scroll.Max(), -1);
    EXPECT_EQ(scroll.Scroll(true), std::vector<int>{-1});
}

TEST_F(ListScrollTest, TheBoundIsTheTopThatShowsTheEndOfTheList) {
    EXPECT_TRUE(scroll_.enabled());
    EXPECT_EQ(scroll_.Max(), -600);
    EXPECT_EQ(scroll_.LargeChange(), inside);
    EXPECT_EQ(scroll_.Value(), 0);
}

TEST_F(ListScrollTest, ANotchGlidesInEightSteps) {
    scroll_.setSmallChange(10);
    EXPECT_EQ(scroll_.Scroll(true), (std::vector<int>{-10, -20, -30, -40, -50, -60, -70, -80}));
    EXPECT_EQ(scroll_.Value(), -80);
    EXPECT_EQ(scroll_.Scroll(false), (std::vector<int>{-70, -60, -50, -40, -30, -20, -10, 0}));
    EXPECT_EQ(scroll_.Value(), 0);
}

TEST_F(ListScrollTest, EachStepIsRoundedToAWholePixel) {
    scroll_.setSmallChange(1);
    EXPECT_EQ(scroll_.Scroll(true), (std::vector<int>{-6, -12, -18, -24, -30, -36, -42, -48}));
}

TEST_F(ListScrollTest, UpAtTheTopDoesNothing) {
    EXPECT_TRUE(scroll_.Scroll(false).empty());
    EXPECT_EQ(scroll_.Value(), 0);
}

TEST_F(ListScrollTest, TheGlideStopsAtTheEndOfTheList) {
    scroll_.setSmallChange(300);
    EXPECT_EQ(scroll_.Scroll(true), (std::vector<int>{-155, -310, -465, -600}));
    EXPECT_TRUE(scroll_.Scroll(true).empty());
}

TEST_F(ListScrollTest, TheGlideStopsAtTheTopOfTheList) {
    scroll_.setSmallChange(300);
    scroll_.Scroll(true);
    EXPECT_EQ(scroll_.Scroll(false), (std::vector<int>{-445, -290, -135, 0}));
}

TEST_F(ListScrollTest, AListThatFitsAgainGoesBackToItsTop) {
    scroll_.Scroll(true);
    ASSERT_LT(scroll_.Value(), 0);
    scroll_.setHeights(300, inside);
    EXPECT_FALSE(scroll_.enabled());
    EXPECT_EQ(scroll_.Value(), 0);
}

TEST_F(ListScrollTest, AShorterListBeyondItsEndComesBackToItWithTheWheel) {
    scroll_.setSmallChange(300);
    scroll_.Scroll(true);
    scroll_.setHeights(500, inside);
    EXPECT_EQ(scroll_.Scroll(true), std::vector<int>{-100});
}

TEST_F(ListScrollTest, TheScrollBarMovesTheListWithinItsBounds) {
    scroll_.setValue(-250);
    EXPECT_EQ(scroll_.Value(), -250);
    scroll_.setValue(-700);
    EXPECT_EQ(scroll_.Value(), -600);
    scroll_.setValue(5);
    EXPECT_EQ(scroll_.Value(), 0);
}

TEST(ListScroll, AListThatFitsStaysAtItsTop) {
    ListScroll scroll;
    scroll.setHeights(100, inside);
    scroll.setValue(-50);
    scroll.EnsurePanelVisible(20, 80);
    EXPECT_EQ(scroll.Value(), 0);
}

TEST_F(ListScrollTest, APanelBelowComesUpUntilItsEndShows) {
    scroll_.EnsurePanelVisible(500, 100);
    EXPECT_EQ(scroll_.Value(), -200);
}

TEST_F(ListScrollTest, APanelAboveComesDownUntilItsHeadShows) {
    scroll_.setValue(-600);
    scroll_.EnsurePanelVisible(100, 100);
    EXPECT_EQ(scroll_.Value(), -100);
}

TEST_F(ListScrollTest, APanelInViewStaysWhereItIs) {
    scroll_.setValue(-300);
    scroll_.EnsurePanelVisible(300, 400 - 1);
    EXPECT_EQ(scroll_.Value(), -300);
    scroll_.EnsurePanelVisible(600, 100);
    EXPECT_EQ(scroll_.Value(), -300);
}

TEST_F(ListScrollTest, APanelTallerThanTheListShowsItsHead) {
    scroll_.EnsurePanelVisible(100, 400);
    EXPECT_EQ(scroll_.Value(), -100);
}

}  // namespace
}  // namespace ormala
