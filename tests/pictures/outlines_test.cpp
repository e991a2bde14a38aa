#include "pictures/outlines.h"

#include <cmath>
#include <string>

#include <gtest/gtest.h>

#include "pictures/pictureTable.h"

namespace ormala {
namespace {

const GridFit unscaled(24, 2);

TEST(Outlines, LinesPassTheirPoints) {
    const auto contours = readOutlines("M1 2L3 4 L 5 -6.5", Turn::none, unscaled);
    ASSERT_EQ(contours.size(), 1U);
    EXPECT_FALSE(contours[0].closed);
    EXPECT_EQ(contours[0].points, (std::vector<Point>{{1, 2}, {3, 4}, {5, -6.5}}));
}

TEST(Outlines, EachMoveStartsAContourAndZClosesOne) {
    const auto contours = readOutlines("M1 1L2 3L4 2ZM5 5L6 7", Turn::none, unscaled);
    ASSERT_EQ(contours.size(), 2U);
    EXPECT_TRUE(contours[0].closed);
    EXPECT_FALSE(contours[1].closed);
}

TEST(Outlines, ARectangleHasFourCorners) {
    const auto contours = readOutlines("R 2 4 20 10", Turn::none, unscaled);
    ASSERT_EQ(contours.size(), 1U);
    EXPECT_TRUE(contours[0].closed);
    EXPECT_EQ(contours[0].points, (std::vector<Point>{{2, 4}, {20, 4}, {20, 10}, {2, 10}}));
}

TEST(Outlines, ACurveEndsOnItsLastPointAndBendsTowardsTheOthers) {
    const auto contours = readOutlines("M0 0C0 12 24 12 24 0", Turn::none, unscaled);
    ASSERT_EQ(contours.size(), 1U);
    const auto& points = contours[0].points;
    EXPECT_EQ(points.back(), (Point{24, 0}));
    EXPECT_DOUBLE_EQ(points[points.size() / 2].x, 12);
    EXPECT_DOUBLE_EQ(points[points.size() / 2].y, 9);
}

TEST(Outlines, AnArcRunsClockwiseFromTheRight) {
    const auto points = readOutlines("A 12 12 10 0 90", Turn::none, unscaled)[0].points;
    EXPECT_NEAR(points.front().x, 22, 1e-9);
    EXPECT_NEAR(points.back().y, 22, 1e-9);
    for (const Point& point : points) {
        EXPECT_NEAR(std::hypot(point.x - 12, point.y - 12), 10, 1e-9);
    }
}

TEST(Outlines, TwoArcsOfOnePathAreOneLine) {
    EXPECT_EQ(readOutlines("A 12 12 10 0 90 A 12 18 4 90 90", Turn::none, unscaled).size(), 1U);
}

TEST(Outlines, ACircleIsClosedOrALine) {
    EXPECT_TRUE(readOutlines("O 12 12 4", Turn::none, unscaled)[0].closed);
    const auto line = readOutlines("o 12 12 4", Turn::none, unscaled)[0];
    EXPECT_FALSE(line.closed);
    EXPECT_EQ(line.points.front(), line.points.back());
}

TEST(Outlines, TurnsGoClockwise) {
    const auto turned = [](Turn turn) {
        return readOutlines("M2 5L3 7", turn, unscaled)[0].points[0];
    };
    EXPECT_EQ(turned(Turn::quarter), (Point{19, 2}));
    EXPECT_EQ(turned(Turn::half), (Point{22, 19}));
    EXPECT_EQ(turned(Turn::threeQuarters), (Point{5, 22}));
    EXPECT_EQ(turned(Turn::mirrored), (Point{22, 5}));
}

TEST(Outlines, OnlyLevelAndUprightLinesAreFitted) {
    const GridFit fit(16, 1);
    const auto level = readOutlines("M2 6L22 6", Turn::none, fit)[0].points;
    EXPECT_EQ(level, (std::vector<Point>{{1.5, 3.5}, {14.5, 3.5}}));
    const auto slanted = readOutlines("M3 6L21 9", Turn::none, fit)[0].points;
    EXPECT_EQ(slanted, (std::vector<Point>{{2, 4}, {14, 6}}));
}

TEST(Outlines, ACurveThatMeetsAFittedLineFollowsIt) {
    const GridFit fit(16, 1);
    const auto points = readOutlines("M2 6L2 12C2 18 9 20 12 20", Turn::none, fit)[0].points;
    EXPECT_EQ(points[1].x, 1.5);
    EXPECT_NEAR(points[2].x, 1.5, 0.1);
}

TEST(Outlines, EveryPathOfThePicturesIsReadToItsEnd) {
    for (int index = 0; index < pictureCount; ++index) {
        for (const Layer& layer : drawingOf(static_cast<Picture>(index)).layers) {
            const std::string path = layer.path;
            EXPECT_EQ(path.find_first_not_of("MLCAROoZ 0123456789.-"), std::string::npos) << path;
            for (const Contour& contour : readOutlines(path, Turn::none, unscaled)) {
                for (const Point& point : contour.points) {
                    EXPECT_TRUE(point.x >= -0.01 && point.x <= 24.01) << path;
                    EXPECT_TRUE(point.y >= -0.01 && point.y <= 24.01) << path;
                }
            }
        }
    }
}

}  // namespace
}  // namespace ormala
