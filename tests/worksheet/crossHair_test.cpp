#include "worksheet/crossHair.h"

#include <gtest/gtest.h>

namespace ormala {
namespace {

constexpr PixelRect sheet{100, 50, 900, 650};

TEST(CrossHair, LinesCrossAtTheCursorFromEdgeToEdge) {
    EXPECT_EQ(horizontalLine({300, 200}, sheet), (CrossHairLine{{100, 200, 900, 201}, true}));
    EXPECT_EQ(verticalLine({300, 200}, sheet), (CrossHairLine{{300, 50, 301, 650}, true}));
}

TEST(CrossHair, AboveTheSheetButWithinItsWidthTheVerticalLineStays) {
    EXPECT_FALSE(horizontalLine({300, 49}, sheet).shown);
    EXPECT_TRUE(verticalLine({300, 49}, sheet).shown);
}

TEST(CrossHair, BesideTheSheetTheHorizontalLineStays) {
    EXPECT_TRUE(horizontalLine({99, 200}, sheet).shown);
    EXPECT_FALSE(verticalLine({99, 200}, sheet).shown);
    EXPECT_FALSE(verticalLine({901, 200}, sheet).shown);
}

TEST(CrossHair, EdgesOfTheSheetCountAsInside) {
    for (const int y : {50, 650}) {
        EXPECT_TRUE(horizontalLine({300, y}, sheet).shown) << y;
    }
    for (const int x : {100, 900}) {
        EXPECT_TRUE(verticalLine({x, 200}, sheet).shown) << x;
    }
    EXPECT_FALSE(horizontalLine({300, 651}, sheet).shown);
}

TEST(CrossHair, BothLinesAreGoneBeyondACorner) {
    EXPECT_FALSE(horizontalLine({950, 700}, sheet).shown);
    EXPECT_FALSE(verticalLine({950, 700}, sheet).shown);
}

TEST(CrossHair, WorksOnAScreenToTheLeftOfTheFirst) {
    constexpr PixelRect left{-1280, -200, -280, 600};
    EXPECT_EQ(horizontalLine({-700, -100}, left), (CrossHairLine{{-1280, -100, -280, -99}, true}));
    EXPECT_EQ(verticalLine({-1281, -100}, left), (CrossHairLine{{-1281, -200, -1280, 600}, false}));
}

}  // namespace
}  // namespace ormala
