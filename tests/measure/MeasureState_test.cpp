#include "measure/MeasureState.h"

#include <gtest/gtest.h>

#include "modAPI/constants.h"
#include "modAPI/textForms.h"
#include "reference/ReferenceTable.h"

namespace ormala {
namespace {

MeasureState separateLines(const Line& a, const Line& b) {
    return {false, a, b};
}

TEST(PixelLength, CountsBothEndPixels) {
    const MeasureState state = separateLines({0, 0, 3, 4}, {10, 5, 19, 5});
    EXPECT_EQ(PixelLengthA(state), 6);
    EXPECT_EQ(PixelLengthB(state), 10);
}

TEST(PixelLength, OfAPointIsOnePixel) {
    const MeasureState state = separateLines({7, 7, 7, 7}, {0, 0, 0, 0});
    EXPECT_EQ(PixelLengthA(state), 1);
    EXPECT_EQ(RatioAToB(state), 1);
    EXPECT_EQ(AngleAToB(state), 0);
    EXPECT_EQ(AngleVertA(state), 0);
}

TEST(MeasureRatio, OfTwoEqualLinesIsOneInBothDirections) {
    const MeasureState state = separateLines({0, 0, 30, 40}, {5, 9, 35, 49});
    EXPECT_EQ(RatioAToB(state), 1);
    EXPECT_EQ(RatioBToA(state), 1);
    EXPECT_EQ(FormatRatio(RatioAToB(state), {}), "1.000");
}

TEST(MeasureAngle, OfARightAngle) {
    const MeasureState state = separateLines({0, 0, 10, 0}, {0, 0, 0, -10});
    EXPECT_EQ(AngleAToB(state), halfPi);
    EXPECT_NEAR(AngleBToA(state), threeHalvesPi, 1e-14);
    EXPECT_NEAR(AngleVertA(state), halfPi, 1e-13);
    EXPECT_NEAR(AngleVertB(state), 0, 1e-13);
}

TEST(MeasureAngle, BothAnglesMakeAFullTurn) {
    const MeasureState same = separateLines({0, 0, 10, 0}, {0, 5, 10, 5});
    EXPECT_EQ(AngleAToB(same), 0);
    EXPECT_EQ(AngleBToA(same), twoPi);
    const MeasureState opposite = separateLines({0, 0, 10, 0}, {10, 5, 0, 5});
    EXPECT_EQ(AngleAToB(opposite), pi);
    EXPECT_EQ(AngleBToA(opposite), pi);
}

TEST(MeasureAngle, SwappedEndsTurnTheDirectionAndNotTheLength) {
    const MeasureState state = separateLines({0, 0, 30, -10}, {0, 0, -4, -50});
    MeasureState swapped = state;
    swapped.LineA = {30, -10, 0, 0};
    EXPECT_EQ(PixelLengthA(swapped), PixelLengthA(state));
    EXPECT_EQ(RatioAToB(swapped), RatioAToB(state));
    EXPECT_NEAR(AngleAToB(swapped), AngleAToB(state) - pi + twoPi, 1e-13);
    EXPECT_NEAR(AngleBToA(swapped), AngleBToA(state) + pi - twoPi, 1e-13);
    EXPECT_NEAR(AngleVertA(swapped), AngleVertA(state), 1e-13);
}

TEST(MeasureState, ConnectingMovesTheSecondEndOfLineBOnly) {
    MeasureState state = separateLines({1, 2, 3, 4}, {5, 6, 7, 8});
    connectLines(state, true);
    EXPECT_EQ(state, (MeasureState{true, {1, 2, 3, 4}, {5, 6, 3, 4}}));
    connectLines(state, false);
    EXPECT_EQ(state, (MeasureState{false, {1, 2, 3, 4}, {5, 6, 3, 4}}));
}

TEST(MeasureState, NewLinesMeetWhereTheyAreConnected) {
    MeasureState state;
    resetLines(state);
    EXPECT_EQ(state, (MeasureState{true, {-31, -199, 0, 0}, {97, 78, 0, 0}}));
    state.Connected = false;
    resetLines(state);
    EXPECT_EQ(state.LineB, (Line{97, 78, 10, 0}));
}

TEST(MeasureState, EndsComeInTheirOrder) {
    const MeasureState state = separateLines({1, 2, 3, 4}, {5, 6, 7, 8});
    EXPECT_EQ(lineEnds(state), (std::array<Point, 4>{{{1, 2}, {3, 4}, {5, 6}, {7, 8}}}));
    EXPECT_EQ(IntersectPoint(state), (Point{3, 4}));
}

TEST(MeasureState, EachNumberCountsInAComparison) {
    const MeasureState state = separateLines({1, 2, 3, 4}, {5, 6, 7, 8});
    for (double Line::*number : {&Line::x1, &Line::y1, &Line::x2, &Line::y2}) {
        for (Line MeasureState::*line : {&MeasureState::LineA, &MeasureState::LineB}) {
            MeasureState other = state;
            other.*line.*number += 1e-12;
            EXPECT_NE(other, state);
        }
    }
    EXPECT_NE((MeasureState{true, state.LineA, state.LineB}), state);
}

TEST(MeasureState, QuantitiesAgreeWithTheReference) {
    const ReferenceTable table("measure_layouts.csv");
    ASSERT_GT(table.rows().size(), 2000U);
    for (const auto& row : table.rows()) {
        const auto n = ReferenceTable::numbers(row);
        const MeasureState state{n[0] != 0, {n[1], n[2], n[3], n[4]}, {n[5], n[6], n[7], n[8]}};
        EXPECT_NEAR(AngleAToB(state), n[14], 1e-9) << row[1];
        EXPECT_NEAR(AngleBToA(state), n[15], 1e-9) << row[1];
        EXPECT_NEAR(AngleVertA(state), n[16], 1e-7) << row[1];
        EXPECT_NEAR(AngleVertB(state), n[17], 1e-7) << row[1];
        EXPECT_TRUE(agrees(PixelLengthA(state), n[18])) << row[1];
        EXPECT_TRUE(agrees(PixelLengthB(state), n[19])) << row[1];
        EXPECT_TRUE(agrees(RatioAToB(state), n[20])) << row[1];
        EXPECT_TRUE(agrees(RatioBToA(state), n[21])) << row[1];
    }
}

}  // namespace
}  // namespace ormala
