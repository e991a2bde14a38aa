#include "measure/LabelAnchors.h"

#include <gtest/gtest.h>

#include <limits>

#include "modAPI/constants.h"

namespace ormala {
namespace {

TEST(LabelAnchorForAngle, EachQuarterHasItsCorner) {
    EXPECT_EQ(LabelAnchorForAngle(0.5), Anchor::topRight);
    EXPECT_EQ(LabelAnchorForAngle(2), Anchor::topLeft);
    EXPECT_EQ(LabelAnchorForAngle(4), Anchor::bottomLeft);
    EXPECT_EQ(LabelAnchorForAngle(6), Anchor::bottomRight);
}

TEST(LabelAnchorForAngle, EndsBelongToTheQuarterBefore) {
    EXPECT_EQ(LabelAnchorForAngle(0), Anchor::topRight);
    EXPECT_EQ(LabelAnchorForAngle(halfPi), Anchor::topRight);
    EXPECT_EQ(LabelAnchorForAngle(pi), Anchor::topLeft);
    EXPECT_EQ(LabelAnchorForAngle(threeHalvesPi), Anchor::bottomLeft);
    EXPECT_EQ(LabelAnchorForAngle(twoPi), Anchor::bottomRight);
}

TEST(LabelAnchorForAngle, OneFullTurnIsTakenOff) {
    EXPECT_EQ(LabelAnchorForAngle(twoPi + 0.5), Anchor::topRight);
    EXPECT_EQ(LabelAnchorForAngle(2 * twoPi), Anchor::bottomRight);
    EXPECT_EQ(LabelAnchorForAngle(2 * twoPi + 0.5), Anchor::centre);
}

TEST(LabelAnchorForAngle, AnythingElseHasTheCentre) {
    EXPECT_EQ(LabelAnchorForAngle(-0.1), Anchor::centre);
    EXPECT_EQ(LabelAnchorForAngle(std::numeric_limits<double>::quiet_NaN()), Anchor::centre);
}

TEST(LabelAnchorForLength, FlatLineHasItBelowOrAbove) {
    const Point here{100, 100};
    for (const double slope : {0.0, -0.0, 0.5, 1.0}) {
        EXPECT_EQ(LabelAnchorForLength(here, slope, {50, 90}), Anchor::topLeft);
        EXPECT_EQ(LabelAnchorForLength(here, slope, {50, 100}), Anchor::topLeft);
        EXPECT_EQ(LabelAnchorForLength(here, slope, {50, 101}), Anchor::bottomRight);
    }
    for (const double slope : {-0.5, -1.0}) {
        EXPECT_EQ(LabelAnchorForLength(here, slope, {50, 90}), Anchor::topRight);
        EXPECT_EQ(LabelAnchorForLength(here, slope, {50, 101}), Anchor::bottomLeft);
    }
}

TEST(LabelAnchorForLength, SteepLineHasItLeftOrRight) {
    const Point here{100, 100};
    for (const double slope : {1.01, infinite}) {
        EXPECT_EQ(LabelAnchorForLength(here, slope, {101, 50}), Anchor::bottomRight);
        EXPECT_EQ(LabelAnchorForLength(here, slope, {100, 50}), Anchor::topLeft);
    }
    for (const double slope : {-1.01, minusInfinite}) {
        EXPECT_EQ(LabelAnchorForLength(here, slope, {101, 50}), Anchor::topRight);
        EXPECT_EQ(LabelAnchorForLength(here, slope, {100, 50}), Anchor::bottomLeft);
    }
}

}  // namespace
}  // namespace ormala
