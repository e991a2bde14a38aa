#include "widgets/scrollLayout.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <random>

namespace ormala {
namespace {

constexpr PixelSize standing{16, 200};

TEST(scrollLayout, BarStandsUnlessItIsWiderThanHigh) {
    EXPECT_FALSE(layoutScroll({16, 200}, 96, {}).horizontal);
    EXPECT_FALSE(layoutScroll({50, 50}, 96, {}).horizontal);
    EXPECT_TRUE(layoutScroll({200, 16}, 96, {}).horizontal);
}

TEST(scrollLayout, ArrowsAreSquareAndStandAtTheEnds) {
    const ScrollLayout layout = layoutScroll(standing, 96, {});
    EXPECT_EQ(layout.cmdTL, (PixelRect{0, 0, 16, 16}));
    EXPECT_EQ(layout.cmdBR, (PixelRect{0, 184, 16, 200}));
    const ScrollLayout lying = layoutScroll({200, 16}, 96, {});
    EXPECT_EQ(lying.cmdTL, (PixelRect{0, 0, 16, 16}));
    EXPECT_EQ(lying.cmdBR, (PixelRect{184, 0, 200, 16}));
}

TEST(scrollLayout, ThumbReachesOverTheOutlinesOfTheArrows) {
    EXPECT_EQ(layoutScroll(standing, 96, {0, 100, 0, 10}).cmdMove.top, 15);
    EXPECT_EQ(layoutScroll(standing, 96, {0, 100, 100, 10}).cmdMove.bottom, 185);
    EXPECT_EQ(layoutScroll({32, 400}, 192, {0, 100, 0, 10}).cmdMove.top, 30);
    EXPECT_EQ(layoutScroll({32, 400}, 192, {0, 100, 100, 10}).cmdMove.bottom, 370);
}

TEST(scrollLayout, ThumbIsAsLongAsThePartInSight) {
    // A track of 170 pixels that shows one part of two, and one of five.
    EXPECT_EQ(layoutScroll(standing, 96, {0, -300, 0, 300}).cmdMove.height(), 85);
    EXPECT_EQ(layoutScroll(standing, 96, {0, -1200, 0, 300}).cmdMove.height(), 34);
}

TEST(scrollLayout, ThumbKeepsALengthThatCanBeHit) {
    EXPECT_EQ(layoutScroll(standing, 96, {0, 100000, 0, 1}).cmdMove.height(), 16);
    EXPECT_EQ(layoutScroll({32, 400}, 192, {0, 100000, 0, 1}).cmdMove.height(), 32);
}

TEST(scrollLayout, ThumbFillsTheTrackWhenThereIsNothingToScroll) {
    const ScrollLayout layout = layoutScroll(standing, 96, {0, 0, 0, 100});
    EXPECT_EQ(layout.cmdMove, layout.shapeMiddle);
    EXPECT_EQ(layout.free(), 0);
}

TEST(scrollLayout, ReversedRangeStartsAtTheTopToo) {
    const int highest = layoutScroll(standing, 96, {0, -100, 0, 20}).thumbStart();
    const int middle = layoutScroll(standing, 96, {0, -100, -50, 20}).thumbStart();
    const int lowest = layoutScroll(standing, 96, {0, -100, -100, 20}).thumbStart();
    EXPECT_EQ(highest, 15);
    EXPECT_LT(highest, middle);
    EXPECT_LT(middle, lowest);
}

TEST(scrollLayout, PartsAreFoundUnderThePoint) {
    const ScrollLayout layout = layoutScroll(standing, 96, {0, 100, 50, 20});
    EXPECT_EQ(layout.partAt({8, 3}), ScrollPart::topLeft);
    EXPECT_EQ(layout.partAt({8, 197}), ScrollPart::bottomRight);
    EXPECT_EQ(layout.partAt({8, layout.thumbStart()}), ScrollPart::thumb);
    EXPECT_EQ(layout.partAt({8, layout.thumbStart() - 1}), ScrollPart::track);
    EXPECT_EQ(layout.partAt({8, layout.thumbEnd()}), ScrollPart::track);
    EXPECT_EQ(layout.partAt({16, 100}), ScrollPart::none);
    EXPECT_EQ(layout.partAt({8, -1}), ScrollPart::none);
}

TEST(scrollLayout, BarOfNoSizeDoesNotFail) {
    for (const PixelSize size : {PixelSize{0, 0}, {16, 0}, {0, 200}, {-5, -7}, {1, 1}, {3, 2}}) {
        const ScrollLayout layout = layoutScroll(size, 96, {0, 100, 50, 20});
        EXPECT_TRUE(layout.cmdMove.empty()) << size.width << " by " << size.height;
        EXPECT_EQ(layout.partAt({-1, -1}), ScrollPart::none);
    }
}

TEST(scrollLayout, ShortBarHasArrowsAndNoThumb) {
    const ScrollLayout layout = layoutScroll({16, 30}, 96, {0, 100, 50, 20});
    EXPECT_EQ(layout.cmdTL, (PixelRect{0, 0, 16, 15}));
    EXPECT_EQ(layout.cmdBR, (PixelRect{0, 15, 16, 30}));
    EXPECT_TRUE(layout.cmdMove.empty());
}

TEST(scrollLayout, ThumbStaysInsideTheTrackForAnyRange) {
    std::mt19937 random(20240611);  // NOLINT(cert-msc51-cpp): the same cases in each run
    std::uniform_int_distribution<int> anySize(1, 3000);
    std::uniform_int_distribution<int> anyNumber(INT_MIN, INT_MAX);
    for (int i = 0; i < 20000; ++i) {
        const PixelSize size{anySize(random), anySize(random)};
        const int dpi = 96 + 24 * (i % 9);
        const int shift = i % 31;
        const ScrollRange range{anyNumber(random) >> shift, anyNumber(random) >> shift,
                                anyNumber(random) >> shift, anyNumber(random) >> shift};
        const ScrollLayout layout = layoutScroll(size, dpi, range);
        ASSERT_EQ(layout.shapeMiddle.united(layout.cmdMove), layout.shapeMiddle) << i;
        ASSERT_GE(layout.free(), 0) << i;
        ASSERT_FALSE(layout.cmdTL.meets(layout.cmdBR)) << i;
    }
}

TEST(scrollLayout, PageMovesTheThumbByNoMoreThanItsLength) {
    std::mt19937 random(7);  // NOLINT(cert-msc51-cpp): the same cases in each run
    std::uniform_int_distribution<int> anyLength(60, 1500);
    std::uniform_int_distribution<int> anyMax(1, 20000);
    for (int i = 0; i < 5000; ++i) {
        const PixelSize size{16, anyLength(random)};
        ScrollRange range{0, -anyMax(random), 0, 1 + anyMax(random) / 10};
        const ScrollLayout before = layoutScroll(size, 96, range);
        range.Value = -std::min(range.LargeChange, -range.Max);
        const ScrollLayout after = layoutScroll(size, 96, range);
        ASSERT_LE(after.thumbStart(), before.thumbEnd()) << i;
    }
}

}  // namespace
}  // namespace ormala
