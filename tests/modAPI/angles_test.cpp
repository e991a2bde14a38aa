#include "modAPI/angles.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "modAPI/constants.h"
#include "reference/ReferenceTable.h"

namespace ormala {
namespace {

TEST(AngleOf, RightIsZeroAndUpIsHalfPi) {
    EXPECT_EQ(AngleOf(0, 0, 1, 0), 0);
    EXPECT_EQ(AngleOf(0, 0, 0, -1), halfPi);
    EXPECT_EQ(AngleOf(0, 0, -1, 0), pi);
    EXPECT_EQ(AngleOf(0, 0, 0, 1), threeHalvesPi);
}

TEST(AngleOf, EqualPointsHaveAngleZero) {
    EXPECT_EQ(AngleOf(0, 0, 0, 0), 0);
    EXPECT_EQ(AngleOf(7, -3, 7, -3), 0);
}

TEST(AngleOf, DownRightIsSevenQuartersOfPiAsYPointsDown) {
    EXPECT_NEAR(AngleOf(0, 0, 1, 1), 5.49778714378, 1e-11);
}

TEST(AngleOf, ComparesWithTheReference) {
    const ReferenceTable table("angles.csv");
    ASSERT_EQ(table.rows().size(), 3000U);
    for (const auto& row : table.rows()) {
        const auto v = ReferenceTable::numbers(row);
        const Line line = {v[0], v[1], v[2], v[3]};
        const std::string text = row[0] + ' ' + row[1] + ' ' + row[2] + ' ' + row[3];
        EXPECT_TRUE(agrees(AngleOfLine(line), v[4])) << text;
        EXPECT_TRUE(agrees(AcuteAngleOfLine(line), v[5])) << text;
        EXPECT_TRUE(agrees(SlopeOfLine(line), v[6])) << text;
        EXPECT_TRUE(agrees(LineLength(line), v[7])) << text;
    }
}

TEST(AcuteAngleOf, IgnoresDirections) {
    EXPECT_EQ(AcuteAngleOf(0, 0, -1, 0), 0);
    EXPECT_EQ(AcuteAngleOf(0, 0, 0, 5), halfPi);
    EXPECT_EQ(AcuteAngleOf(2, 2, 2, 2), 0);
    EXPECT_DOUBLE_EQ(AcuteAngleOf(0, 0, -3, 3), std::atan(1.0));
}

TEST(SlopeOf, EqualPointsHaveInfiniteSlope) {
    EXPECT_EQ(SlopeOf(4, 4, 4, 4), 1e308);
    EXPECT_TRUE(IsInfinite(SlopeOf(4, 4, 4, 4)));
}

TEST(SlopeOf, VerticalLineIsInfiniteByItsDirection) {
    EXPECT_EQ(SlopeOf(4, 9, 4, 1), infinite);
    EXPECT_EQ(SlopeOf(4, 1, 4, 9), minusInfinite);
}

TEST(SlopeOf, UpIsPositive) {
    EXPECT_EQ(SlopeOf(0, 0, 2, -1), 0.5);
}

TEST(DistanceFromLine, IsPositiveToTheRightOfTheTravel) {
    EXPECT_NEAR(DistanceFromLine(0, 0, 10, 0, 5, 3), 3, 1e-12);
    EXPECT_NEAR(DistanceFromLine(0, 0, 10, 0, 5, -3), -3, 1e-12);
}

TEST(DistanceFromLine, RayOfEqualPointsIsHorizontal) {
    EXPECT_NEAR(DistanceFromLine(2, 2, 2, 2, 50, 9), 7, 1e-12);
}

TEST(DistanceFromLine, ComparesWithTheReference) {
    const ReferenceTable table("line_distances.csv");
    ASSERT_EQ(table.rows().size(), 1500U);
    for (const auto& row : table.rows()) {
        const auto v = ReferenceTable::numbers(row);
        const double distance = DistanceFromLine(v[0], v[1], v[2], v[3], v[4], v[5]);
        EXPECT_TRUE(agrees(distance, v[6], Distance(v[0], v[1], v[4], v[5])))
            << distance << " for " << v[6];
    }
}

TEST(IsInfinite, BeginsAtTheLargestPowerOfTen) {
    EXPECT_TRUE(IsInfinite(1e308));
    EXPECT_TRUE(IsInfinite(-1e308));
    EXPECT_TRUE(IsInfinite(HUGE_VAL));
    EXPECT_FALSE(IsInfinite(9.9e307));
    EXPECT_FALSE(IsInfinite(0));
}

TEST(SafeDivide, DivisionByZeroIsInfiniteByTheSign) {
    EXPECT_EQ(SafeDivide(3, 0), infinite);
    EXPECT_EQ(SafeDivide(-3, 0), minusInfinite);
    EXPECT_EQ(SafeDivide(0, 0), 0);
    EXPECT_EQ(SafeDivide(3, 2), 1.5);
}

}  // namespace
}  // namespace ormala
