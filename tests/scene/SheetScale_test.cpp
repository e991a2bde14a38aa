#include "scene/SheetScale.h"

#include <gtest/gtest.h>

namespace ormala {
namespace {

TEST(SheetScale, At96DpiLeavesLengthsAsTheyAreDesigned) {
    const SheetScale scale;
    EXPECT_EQ(scale.length(6), 6);
    EXPECT_EQ(scale.pixels(12), 12);
    for (const int size : {9, 13, 61}) {
        EXPECT_EQ(scale.oddPixels(size), size);
    }
}

TEST(SheetScale, GrowsWithTheResolution) {
    EXPECT_EQ(SheetScale(144).length(5), 7.5);
    EXPECT_EQ(SheetScale(144).pixels(5), 8);
    EXPECT_EQ(SheetScale(192).pixels(12), 24);
    EXPECT_NE(SheetScale(192), SheetScale(144));
    EXPECT_EQ(SheetScale(96), SheetScale());
}

TEST(SheetScale, OddLengthsAreTheNearestOddOnes) {
    EXPECT_EQ(SheetScale(144).oddPixels(9), 13);    // 13.5
    EXPECT_EQ(SheetScale(144).oddPixels(13), 19);   // 19.5
    EXPECT_EQ(SheetScale(144).oddPixels(61), 91);   // 91.5
    EXPECT_EQ(SheetScale(192).oddPixels(9), 19);    // 18
    EXPECT_EQ(SheetScale(192).oddPixels(13), 27);   // 26
    EXPECT_EQ(SheetScale(192).oddPixels(61), 123);  // 122
}

}  // namespace
}  // namespace ormala
