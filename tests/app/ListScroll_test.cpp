#include "app/ListScroll.h"

#include <gtest/gtest.h>

namespace ormala {
namespace {

constexpr int inside = 400;

/// A list of 1000 pixels in a window of 400, with its top there.
ScrollRange listAt(int value) {
    ScrollRange range = rangeOfList(1000, inside);
    range.Value = value;
    return range;
}

TEST(ListScroll, AContentThatFitsHasNoRange) {
    for (const int content : {0, 100, inside}) {
        const ScrollRange range = rangeOfList(content, inside);
        EXPECT_EQ(range.Max, range.Min) << content;
        EXPECT_TRUE(glideOfNotches(-1, range, 10).empty());
        EXPECT_TRUE(glideOfNotches(1, range, 10).empty());
    }
}

TEST(ListScroll, AContentOnePixelTallerScrollsThatPixel) {
    const ScrollRange range = rangeOfList(inside + 1, inside);
    EXPECT_EQ(range.Max, -1);
    EXPECT_EQ(glideOfNotches(-1, range, 10), std::vector<int>{-1});
}

TEST(ListScroll, TheBoundIsTheTopThatShowsTheEndOfTheList) {
    const ScrollRange range = rangeOfList(1000, inside);
    EXPECT_EQ(range.Min, 0);
    EXPECT_EQ(range.Max, -600);
    EXPECT_EQ(range.LargeChange, inside);
}

TEST(ListScroll, ANotchGlidesInEightSteps) {
    EXPECT_EQ(glideOfNotches(-1, listAt(0), 10),
              (std::vector<int>{-10, -20, -30, -40, -50, -60, -70, -80}));
    EXPECT_EQ(glideOfNotches(1, listAt(-80), 10),
              (std::vector<int>{-70, -60, -50, -40, -30, -20, -10, 0}));
}

TEST(ListScroll, SeveralNotchesGoTheirWholeWayInEightSteps) {
    EXPECT_EQ(glideOfNotches(-3, listAt(0), 10),
              (std::vector<int>{-30, -60, -90, -120, -150, -180, -210, -240}));
    EXPECT_EQ(glideOfNotches(2, listAt(-600), 10).back(), -440);
    EXPECT_EQ(glideOfNotches(-273, listAt(0), 10).back(), -600);
    EXPECT_TRUE(glideOfNotches(0, listAt(-80), 10).empty());
}

TEST(ListScroll, EachStepIsRoundedToAWholePixel) {
    EXPECT_EQ(glideOfNotches(-1, listAt(0), 1),
              (std::vector<int>{-6, -12, -18, -24, -30, -36, -42, -48}));
}

UncoveredPart uncoveredBetween(int formerTop, int top) {
    return uncoveredPart(formerTop, top, {200, inside}, 1000);
}

TEST(ListScroll, UncoversBelowWhatMovesUp) {
    EXPECT_EQ(uncoveredBetween(-30, -40), (UncoveredPart{{0, 430, 200, 440}, {0, 430, 200, 1000}}));
}

TEST(ListScroll, UncoversAboveWhatMovesDown) {
    EXPECT_EQ(uncoveredBetween(-40, -30), (UncoveredPart{{0, 30, 200, 40}, {0, 0, 200, 40}}));
}

TEST(ListScroll, UncoversAllThatShowsAfterAJump) {
    EXPECT_EQ(uncoveredBetween(0, -500), (UncoveredPart{{0, 500, 200, 900}, {0, 500, 200, 1000}}));
    EXPECT_EQ(uncoveredBetween(-500, 0), (UncoveredPart{{0, 0, 200, 400}, {0, 0, 200, 400}}));
}

TEST(ListScroll, UncoversNothingWhereTheTopStays) {
    EXPECT_TRUE(uncoveredBetween(-30, -30).shown.empty());
}

TEST(ListScroll, TheGlideStopsAtTheEndOfTheList) {
    EXPECT_EQ(glideOfNotches(-1, listAt(0), 300), (std::vector<int>{-155, -310, -465, -600}));
    EXPECT_TRUE(glideOfNotches(-1, listAt(-600), 300).empty());
}

TEST(ListScroll, TheGlideStopsAtTheTopOfTheList) {
    EXPECT_EQ(glideOfNotches(1, listAt(-600), 300), (std::vector<int>{-445, -290, -135, 0}));
    EXPECT_TRUE(glideOfNotches(1, listAt(0), 300).empty());
}

/// What a glide from 1 to 8 shows if the wheel is turned further after so many steps.
std::vector<int> shownBeforeFurtherTurn(std::size_t steps) {
    const std::vector<int> values{1, 2, 3, 4, 5, 6, 7, 8};
    std::vector<int> shown;
    glide(
        values, [&] { return shown.size() >= steps; }, [&](int value) { shown.push_back(value); });
    return shown;
}

TEST(Glide, ShowsEachStepWhileTheWheelRests) {
    EXPECT_EQ(shownBeforeFurtherTurn(8), (std::vector<int>{1, 2, 3, 4, 5, 6, 7, 8}));
}

TEST(Glide, GoesToItsEndAtOnceWhenTheWheelIsTurnedFurther) {
    EXPECT_EQ(shownBeforeFurtherTurn(3), (std::vector<int>{1, 2, 3, 8}));
    EXPECT_EQ(shownBeforeFurtherTurn(0), (std::vector<int>{8}));
}

TEST(Glide, WithoutAStepNothingIsShown) {
    glide(
        {}, [] { return true; }, [](int) { ADD_FAILURE(); });
}

TEST(ListScroll, APanelBelowComesUpUntilItsEndShows) {
    EXPECT_EQ(valueShowing(500, 100, listAt(0)), -200);
}

TEST(ListScroll, APanelAboveComesDownUntilItsHeadShows) {
    EXPECT_EQ(valueShowing(100, 100, listAt(-600)), -100);
}

TEST(ListScroll, APanelInViewStaysWhereItIs) {
    EXPECT_EQ(valueShowing(300, 400 - 1, listAt(-300)), -300);
    EXPECT_EQ(valueShowing(600, 100, listAt(-300)), -300);
}

TEST(ListScroll, APanelTallerThanTheListShowsItsHead) {
    EXPECT_EQ(valueShowing(100, 400, listAt(0)), -100);
}

}  // namespace
}  // namespace ormala
