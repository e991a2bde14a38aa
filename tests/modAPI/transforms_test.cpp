#include "modAPI/transforms.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "modAPI/constants.h"
#include "reference/ReferenceTable.h"

namespace ormala {
namespace {

TEST(RotatePoint, PositiveAngleTurnsCounterClockwiseOnTheScreen) {
    const Point turned = RotatePoint(10, 20, 15, 20, halfPi);
    EXPECT_NEAR(turned.x, 10, 1e-12);
    EXPECT_NEAR(turned.y, 15, 1e-12);
}

TEST(RotatePoint, ComparesWithTheReference) {
    const ReferenceTable table("rotations.csv");
    ASSERT_EQ(table.rows().size(), 2000U);
    for (const auto& row : table.rows()) {
        const auto v = ReferenceTable::numbers(row);
        const double size =
            std::max({std::abs(v[0]), std::abs(v[1]), std::abs(v[2]), std::abs(v[3])});
        const Point turned = RotatePoint({v[0], v[1]}, {v[2], v[3]}, v[4]);
        EXPECT_TRUE(agrees(turned.x, v[5], size)) << turned.x << " for " << v[5];
        EXPECT_TRUE(agrees(turned.y, v[6], size)) << turned.y << " for " << v[6];
        EXPECT_EQ(RotatePoint(v[0], v[1], v[2], v[3], v[4]), turned);
    }
}

TEST(RotateLineAboutMiddle, KeepsTheMiddle) {
    Line line = {0, 0, 10, 0};
    RotateLineAboutMiddle(line, halfPi);
    EXPECT_NEAR(line.x1, 5, 1e-12);
    EXPECT_NEAR(line.y1, 5, 1e-12);
    EXPECT_NEAR(line.x2, 5, 1e-12);
    EXPECT_NEAR(line.y2, -5, 1e-12);
}

TEST(TranslateLine, ShiftsBothEnds) {
    Line line = {1, 2, 3, 4};
    TranslateLine(line, 10, -20);
    EXPECT_EQ(line, (Line{11, -18, 13, -16}));
}

TEST(RoundPoint, RoundsBothCoordinates) {
    Point point = {-2.5, 1.26};
    RoundPoint(point, 1);
    EXPECT_EQ(point, MakePoint(-2.5, 1.3));
    RoundPoint(point);
    EXPECT_EQ(point, MakePoint(-3, 1));
}

TEST(Interpolate, GoesFromTheFirstToTheSecond) {
    EXPECT_EQ(Interpolate({0, 10}, {4, 20}, 0), (Point{0, 10}));
    EXPECT_EQ(Interpolate({0, 10}, {4, 20}, 1), (Point{4, 20}));
    EXPECT_EQ(Interpolate({0, 10}, {4, 20}, 2), (Point{8, 30}));
}

TEST(PointOnLine, HalfIsTheMiddle) {
    EXPECT_EQ(PointOnLine({0, 10, 4, 20}, 0.5), (Point{2, 15}));
}

TEST(SnapToDirection, TakesTheNearestOfSixteenDirectionsAtTheTrueDistance) {
    for (int i = 0; i < 720; ++i) {
        const double angle = (i + 0.25) * twoPi / 720;
        const Point target = {100 + 40 * std::cos(angle), 50 - 40 * std::sin(angle)};
        const Point snapped = SnapToDirection({100, 50}, target);
        const double nearest = std::round(angle / (twoPi / 16)) * (twoPi / 16);
        EXPECT_NEAR(snapped.x, 100 + 40 * std::cos(nearest), 1e-9) << i;
        EXPECT_NEAR(snapped.y, 50 - 40 * std::sin(nearest), 1e-9) << i;
    }
}

TEST(SnapToDirection, JustBelowTheFullTurnGoesExactlyToTheRight) {
    EXPECT_EQ(SnapToDirection({100, 50}, {140, 50.5}).y, 50);
}

TEST(SnapToDirection, PointOnItselfStays) {
    EXPECT_EQ(SnapToDirection({100, 50}, {100, 50}), (Point{100, 50}));
}

TEST(SnapToGrid, MovesToTheNearestCrossing) {
    double x = 75;
    double y = 74.9;
    SnapToGrid(x, y, Grid{});
    EXPECT_EQ(x, 100);
    EXPECT_EQ(y, 50);
}

TEST(SnapToGrid, CountsFromTheOrigin) {
    Point point = {26, -19};
    SnapToGrid(point, Grid{.stepX = 20, .stepY = 30, .originX = 7, .originY = -5});
    EXPECT_EQ(point, (Point{27, -5}));
}

TEST(SnapToGrid, StepOfZeroLeavesTheCoordinateAlone) {
    Point point = {26.5, -19};
    SnapToGrid(point, Grid{.stepX = 0, .stepY = 10, .originX = 3, .originY = 0});
    EXPECT_EQ(point, (Point{26.5, -20}));
}

}  // namespace
}  // namespace ormala
