#include "modAPI/rectangles.h"

#include <gtest/gtest.h>

#include "reference/ReferenceTable.h"

namespace ormala {
namespace {

TEST(PointInRect, RightAndBottomEdgesAreOutside) {
    const Rect rect = {10, 20, 30, 40};
    EXPECT_TRUE(PointInRect(rect, 10, 20));
    EXPECT_TRUE(PointInRect(rect, 29.999, 39.999));
    EXPECT_FALSE(PointInRect(rect, 30, 25));
    EXPECT_FALSE(PointInRect(rect, 15, 40));
    EXPECT_FALSE(PointInRect(rect, 9.999, 25));
    EXPECT_FALSE(PointInRect(rect, 15, 19.999));
}

TEST(RectCenter, IsHalfWay) {
    EXPECT_EQ(RectCenter({10, 20, 31, 40}), (Point{20.5, 30}));
}

TEST(RectWidth, IsNeverNegative) {
    EXPECT_EQ(RectWidth({30, 0, 10, 0}), 20);
    EXPECT_EQ(RectHeight({0, 50, 0, 10}), 40);
}

TEST(RectAspect, RectWithoutHeightIsInfinite) {
    EXPECT_EQ(RectAspect({0, 5, 100, 5}, false), 1e308);
    EXPECT_EQ(RectAspect({0, 5, 100, 5}, true), 0);
}

TEST(RectAspect, NormalisedIsAtMostOne) {
    EXPECT_EQ(RectAspect({0, 0, 100, 50}, false), 2);
    EXPECT_EQ(RectAspect({0, 0, 100, 50}, true), 0.5);
    EXPECT_EQ(RectAspect({0, 0, 50, 100}, true), 0.5);
    EXPECT_EQ(RectAspect({50, 0, 0, 100}, false), 0.5);
}

TEST(RectAspect, ComparesWithTheReference) {
    const ReferenceTable table("aspects.csv");
    ASSERT_EQ(table.rows().size(), 1500U);
    for (const auto& row : table.rows()) {
        const auto v = ReferenceTable::numbers(row);
        const Rect rect = {v[0], v[1], v[2], v[3]};
        EXPECT_TRUE(agrees(RectAspect(rect, false), v[4])) << row[4];
        EXPECT_TRUE(agrees(RectAspect(rect, true), v[5])) << row[5];
    }
}

TEST(CenterRectOn, KeepsTheSignedExtents) {
    Rect rect = {30, 10, 10, 50};
    CenterRectOn(rect, {100, 200});
    EXPECT_EQ(rect, (Rect{110, 180, 90, 220}));
}

TEST(SameRect, ComparesExactly) {
    EXPECT_TRUE(SameRect({1, 2, 3, 4}, {1, 2, 3, 4}));
    EXPECT_FALSE(SameRect({1, 2, 3, 4}, {1, 2, 3, 4.0000000001}));
}

TEST(SameLine, ComparesExactly) {
    EXPECT_TRUE(SameLine({1, 2, 3, 4}, {1, 2, 3, 4}));
    EXPECT_FALSE(SameLine({1, 2, 3, 4}, {3, 4, 1, 2}));
}

}  // namespace
}  // namespace ormala
