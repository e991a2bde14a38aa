#include "stencil/StencilState.h"

#include <gtest/gtest.h>

#include "modAPI/constants.h"

namespace ormala {
namespace {

TEST(PixelWidth, CountsBothEndPixels) {
    EXPECT_EQ(PixelWidth({10, 20, 10, 20}), 1);
    EXPECT_EQ(PixelHeight({10, 20, 10, 20}), 1);
    EXPECT_EQ(PixelWidth({0, 0, 99, 49}), 100);
    EXPECT_EQ(PixelHeight({0, 0, 99, 49}), 50);
}

TEST(PixelRatio, IsWidthByHeightInPixels) {
    EXPECT_EQ(PixelRatio({0, 0, 99, 199}, false), 0.5);
    EXPECT_EQ(PixelRatio({0, 0, 99, 199}, true), 0.5);
    EXPECT_EQ(PixelRatio({0, 0, 199, 99}, false), 2);
    EXPECT_EQ(PixelRatio({0, 0, 199, 99}, true), 0.5);
}

TEST(PixelRatioReciprocal, IsHeightByWidthAndInfiniteWithoutWidth) {
    EXPECT_EQ(PixelRatioReciprocal({0, 0, 99, 199}), 2);
    EXPECT_EQ(PixelRatioReciprocal({5, 0, 4, 199}), infinite);
}

TEST(ComputeCorners, FollowTheRotationCounterClockwise) {
    StencilState state;
    state.RectBound = {100, 100, 300, 200};
    const StencilCorners straight = ComputeCorners(state);
    EXPECT_EQ(straight[0], (Point{100, 100}));
    EXPECT_EQ(straight[1], (Point{300, 100}));
    EXPECT_EQ(straight[2], (Point{100, 200}));
    EXPECT_EQ(straight[3], (Point{300, 200}));
    state.RotationAngle = halfPi;
    const StencilCorners turned = ComputeCorners(state);
    // The top right corner has gone to the top left.
    EXPECT_NEAR(turned[1].x, 150, 1e-9);
    EXPECT_NEAR(turned[1].y, 50, 1e-9);
    EXPECT_NEAR(turned[0].x, 150, 1e-9);
    EXPECT_NEAR(turned[0].y, 250, 1e-9);
}

TEST(DefaultRectBound, IsTheSmallPartOfTheHeightAndAsWideAsTheRatioAsks) {
    const Rect rect = defaultRectBound(800, G);
    EXPECT_EQ(rect.left, 0);
    EXPECT_EQ(rect.top, 0);
    EXPECT_NEAR(PixelHeight(rect), 305.5728, 1e-4);
    EXPECT_NEAR(PixelWidth(rect), 494.4272, 1e-4);
}

TEST(StencilState, DiffersByAnyPartOfIt) {
    const StencilState state;
    StencilState other = state;
    EXPECT_EQ(other, state);
    other.RotationAngle = 1e-15;
    EXPECT_NE(other, state);
    other = state;
    other.RectBound.bottom = 1;
    EXPECT_NE(other, state);
    other = state;
    other.PatternList[4].PreRotation = 1;
    EXPECT_NE(other, state);
}

TEST(StencilState, ASideCountsItsEndsAfterTheyAreRounded) {
    EXPECT_EQ(CountedPixels(10, 109), 100);
    EXPECT_EQ(CountedPixels(0.5, 9.6), 10);
    EXPECT_EQ(CountedPixels(0.4, 9.4), 10);
    EXPECT_EQ(CountedPixels(3, 3), 1);
}

}  // namespace
}  // namespace ormala
