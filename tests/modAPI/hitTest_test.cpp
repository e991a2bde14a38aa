#include "modAPI/hitTest.h"

#include <gtest/gtest.h>

namespace ormala {
namespace {

TEST(RectOfShape, AddsInSinglePrecision) {
    const ShapeBox shape = {16777216.0F, 0.1F, 1.0F, 0.2F, false};
    const Rect rect = RectOfShape(shape);
    EXPECT_EQ(rect.right, 16777216.0);
    EXPECT_EQ(rect.bottom, static_cast<double>(0.1F + 0.2F));
    EXPECT_EQ(rect.top, static_cast<double>(0.1F));
}

TEST(HitShape, RectangleIsHalfOpen) {
    const ShapeBox shape = {10, 20, 9, 9, false};
    EXPECT_TRUE(HitShape(shape, 10, 20));
    EXPECT_TRUE(HitShape(shape, 18, 28));
    EXPECT_FALSE(HitShape(shape, 19, 24));
}

TEST(HitShape, OvalIsHitStrictlyWithinItsRadiusAboutAWholePixel) {
    const ShapeBox shape = {10, 20, 9, 9, true};
    EXPECT_TRUE(HitShape(shape, 14, 24));
    EXPECT_TRUE(HitShape(shape, 18.4, 24));
    EXPECT_FALSE(HitShape(shape, 18.5, 24));
    EXPECT_TRUE(HitShape(shape, 9.6, 24));
    EXPECT_FALSE(HitShape(shape, 10.5, 20.5));
}

TEST(HitShape, CentreOfAnOvalRoundsDownBelowZeroToo) {
    const ShapeBox shape = {-10, -10, 9, 9, true};
    EXPECT_TRUE(HitShape(shape, -10.4, -6));
    EXPECT_FALSE(HitShape(shape, -1.5, -6));
}

TEST(HitShapeTolerant, GrowsARectangleOnAllSides) {
    const ShapeBox shape = {10, 20, 9, 9, false};
    EXPECT_TRUE(HitShapeTolerant(shape, 4, 14, 6));
    EXPECT_TRUE(HitShapeTolerant(shape, 24.9, 34.9, 6));
    EXPECT_FALSE(HitShapeTolerant(shape, 25, 24, 6));
    EXPECT_FALSE(HitShapeTolerant(shape, 3.9, 24, 6));
}

TEST(HitShapeTolerant, GrowsTheRadiusOfAnOval) {
    const ShapeBox shape = {10, 20, 9, 9, true};
    EXPECT_TRUE(HitShapeTolerant(shape, 24.4, 24, 6));
    EXPECT_FALSE(HitShapeTolerant(shape, 24.5, 24, 6));
    EXPECT_TRUE(HitShapeTolerant(shape, 18.4, 24, 0));
}

}  // namespace
}  // namespace ormala
