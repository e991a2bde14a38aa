#include "modAPI/PixelRect.h"

#include <gtest/gtest.h>

namespace ormala {
namespace {

TEST(PixelRect, RightAndBottomAreOutside) {
    constexpr PixelRect rect{10, 20, 30, 40};
    EXPECT_TRUE(rect.contains({10, 20}));
    EXPECT_TRUE(rect.contains({29, 39}));
    EXPECT_FALSE(rect.contains({30, 39}));
    EXPECT_FALSE(rect.contains({29, 40}));
}

TEST(PixelRect, WithoutExtentIsEmpty) {
    EXPECT_TRUE(PixelRect{}.empty());
    EXPECT_TRUE((PixelRect{5, 5, 5, 9}).empty());
    EXPECT_TRUE((PixelRect{5, 5, 9, 4}).empty());
    EXPECT_FALSE((PixelRect{5, 5, 6, 6}).empty());
}

TEST(PixelRect, NeighboursThatShareNoPixelDoNotMeet) {
    constexpr PixelRect rect{0, 0, 10, 10};
    EXPECT_FALSE(rect.meets({10, 0, 20, 10}));
    EXPECT_TRUE(rect.meets({9, 9, 20, 20}));
    EXPECT_EQ(rect.intersected({9, 8, 20, 20}), (PixelRect{9, 8, 10, 10}));
}

TEST(PixelRect, EmptyCountsForNothingInAUnion) {
    constexpr PixelRect rect{3, 4, 5, 6};
    EXPECT_EQ(rect.united({}), rect);
    EXPECT_EQ(PixelRect{}.united(rect), rect);
    EXPECT_EQ(rect.united({-1, 5, 4, 9}), (PixelRect{-1, 4, 5, 9}));
}

TEST(PixelRect, GrowsOnAllSides) {
    EXPECT_EQ((PixelRect{3, 4, 5, 6}).grown(2), (PixelRect{1, 2, 7, 8}));
}

}  // namespace
}  // namespace ormala
