#include "modAPI/placing.h"

#include <gtest/gtest.h>

#include <cmath>

namespace ormala {
namespace {

TEST(PlaceByAnchor, CentreRoundsAndHalvesDown) {
    EXPECT_EQ(PlaceByAnchor(9, 13, {100.5, 50.4}, Anchor::centre), (Point{97, 44}));
}

TEST(PlaceByAnchor, OtherAnchorsRoundDown) {
    const Point at = {100.7, 50.7};
    EXPECT_EQ(PlaceByAnchor(9, 5, at, Anchor::topCentre), (Point{96, 50}));
    EXPECT_EQ(PlaceByAnchor(9, 5, at, Anchor::bottomCentre), (Point{96, 46}));
    EXPECT_EQ(PlaceByAnchor(9, 5, at, Anchor::rightCentre), (Point{92, 48}));
    EXPECT_EQ(PlaceByAnchor(9, 5, at, Anchor::leftCentre), (Point{100, 48}));
    EXPECT_EQ(PlaceByAnchor(9, 5, at, Anchor::topRight), (Point{92, 50}));
    EXPECT_EQ(PlaceByAnchor(9, 5, at, Anchor::bottomRight), (Point{92, 46}));
    EXPECT_EQ(PlaceByAnchor(9, 5, at, Anchor::bottomLeft), (Point{100, 46}));
    EXPECT_EQ(PlaceByAnchor(9, 5, at, Anchor::topLeft), (Point{100, 50}));
}

TEST(PlaceByAnchor, RoundsDownBelowZeroToo) {
    EXPECT_EQ(PlaceByAnchor(9, 5, {-0.2, -0.2}, Anchor::topLeft), (Point{-1, -1}));
}

TEST(PlaceFormByAnchor, DoesNotRound) {
    EXPECT_EQ(PlaceFormByAnchor(9, 5, {100.5, 50.5}, Anchor::centre, false), (Point{96, 48}));
    EXPECT_EQ(PlaceFormByAnchor(9, 5, {100.25, 50}, Anchor::topLeft, false), (Point{100.25, 50}));
    EXPECT_EQ(PlaceFormByAnchor(9, 5, {100.25, 50}, Anchor::bottomRight, false),
              (Point{92.25, 46}));
}

TEST(PlaceFormByAnchor, GapIsSixAlongTheAxis) {
    const Point at = {100, 50};
    EXPECT_EQ(PlaceFormByAnchor(10, 6, at, Anchor::centre, true), (Point{95, 47}));
    EXPECT_EQ(PlaceFormByAnchor(10, 6, at, Anchor::topCentre, true), (Point{95, 56}));
    EXPECT_EQ(PlaceFormByAnchor(10, 6, at, Anchor::bottomCentre, true), (Point{95, 39}));
    EXPECT_EQ(PlaceFormByAnchor(10, 6, at, Anchor::rightCentre, true), (Point{85, 47}));
    EXPECT_EQ(PlaceFormByAnchor(10, 6, at, Anchor::leftCentre, true), (Point{106, 47}));
}

TEST(PlaceFormByAnchor, GapIsAsWideAsItIsTold) {
    const Point at{100, 50};
    EXPECT_EQ(PlaceFormByAnchor(10, 6, at, Anchor::leftCentre, true, 12), (Point{112, 47}));
    EXPECT_DOUBLE_EQ(PlaceFormByAnchor(10, 6, at, Anchor::topLeft, true, 12).x,
                     100 + std::sqrt(72.0));
    EXPECT_EQ(PlaceFormByAnchor(10, 6, at, Anchor::leftCentre, false, 12), (Point{100, 47}));
}

TEST(PlaceFormByAnchor, GapOfACornerIsSixAlongTheDiagonal) {
    const Point at = {100, 50};
    const double gap = 4.242640687119285;
    const Point topLeft = PlaceFormByAnchor(10, 6, at, Anchor::topLeft, true);
    EXPECT_DOUBLE_EQ(topLeft.x, 100 + gap);
    EXPECT_DOUBLE_EQ(topLeft.y, 50 + gap);
    const Point bottomRight = PlaceFormByAnchor(10, 6, at, Anchor::bottomRight, true);
    EXPECT_DOUBLE_EQ(bottomRight.x, 91 - gap);
    EXPECT_DOUBLE_EQ(bottomRight.y, 45 - gap);
    const Point topRight = PlaceFormByAnchor(10, 6, at, Anchor::topRight, true);
    EXPECT_DOUBLE_EQ(topRight.x, 91 - gap);
    EXPECT_DOUBLE_EQ(topRight.y, 50 + gap);
    const Point bottomLeft = PlaceFormByAnchor(10, 6, at, Anchor::bottomLeft, true);
    EXPECT_DOUBLE_EQ(bottomLeft.x, 100 + gap);
    EXPECT_DOUBLE_EQ(bottomLeft.y, 45 - gap);
}

}  // namespace
}  // namespace ormala
