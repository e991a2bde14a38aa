#include "measure/MeasureDrag.h"

#include <gtest/gtest.h>

#include <cmath>

#include "modAPI/angles.h"
#include "scene/Input.h"

namespace ormala {
namespace {

using enum MeasureGrip;
using modifier::alt;
using modifier::ctrl;
using modifier::shift;

constexpr MeasureState lines{false, {100, 100, 300, 100}, {100.25, 300, 300, 500}};
constexpr Grid grid{70, 30, 5, 7};

void noSnap(Point& /*point*/) {}

void snapAway(Point& point) {
    point = {701.5, 702.5};
}

MeasureDrag dragOf(MeasureGrip grip, double dx, double dy, int modifiers = 0) {
    return {grip, lines, dx, dy, modifiers};
}

struct Outcome {
    MeasureState state;
    /// Of the read-out.
    Point shown;
};

Outcome endDragged(MeasureGrip grip, double dx, double dy, int modifiers = 0,
                   const EndSnap& snap = noSnap) {
    Outcome outcome{lines, {}};
    outcome.shown = DragEndGrip(outcome.state, dragOf(grip, dx, dy, modifiers), snap);
    return outcome;
}

Outcome centerDragged(MeasureGrip grip, double dx, double dy, int modifiers = 0) {
    Outcome outcome{lines, {}};
    outcome.shown = DragCenterGrip(outcome.state, dragOf(grip, dx, dy, modifiers), grid);
    return outcome;
}

Outcome allDragged(double dx, double dy, int modifiers = 0, const EndSnap& snap = noSnap) {
    Outcome outcome{lines, {}};
    outcome.shown =
        DragIntersectGrip(outcome.state, dragOf(intersect, dx, dy, modifiers), grid, snap);
    return outcome;
}

TEST(DragEndGrip, MovesItsOwnEndToWholePixels) {
    EXPECT_EQ(endDragged(endA1, 10, 20).state.LineA, (Line{110, 120, 300, 100}));
    EXPECT_EQ(endDragged(endA2, -10, 20).state.LineA, (Line{100, 100, 290, 120}));
    EXPECT_EQ(endDragged(endB1, 10, 20).state.LineB, (Line{110, 320, 300, 500}));
    EXPECT_EQ(endDragged(endB2, 10.5, 20.4).state.LineB, (Line{100.25, 300, 311, 520}));
    EXPECT_EQ(endDragged(endA1, 10, 20).state.LineB, lines.LineB);
    EXPECT_EQ(endDragged(endB1, 10, 20).state.LineA, lines.LineA);
}

TEST(DragEndGrip, StopsTwoPixelsFromTheOtherEndAndShowsTheMouse) {
    const Outcome near = endDragged(endA2, -199, 1);  // 1.41 pixels away
    EXPECT_EQ(near.state.LineA, (Line{100, 100, 102, 101}));
    EXPECT_EQ(near.shown, (Point{101, 101}));
    EXPECT_EQ(endDragged(endA2, -200, 0).state.LineA, (Line{100, 100, 102, 100}));
    EXPECT_EQ(endDragged(endA2, -201, 0).state.LineA, (Line{100, 100, 102, 100}));
    EXPECT_EQ(endDragged(endA2, -201, 0).shown, (Point{99, 100}));
    EXPECT_EQ(endDragged(endA2, -198, 0).state.LineA, (Line{100, 100, 102, 100}));
    EXPECT_EQ(PixelLengthA(endDragged(endA2, -198, 0).state), 3);
}

TEST(DragEndGrip, LimitIsTakenInSinglePrecision) {
    // Nearer than 2 by less than a float can tell.
    const double hair = 1e-9;
    const Outcome outcome = endDragged(endA2, -198 - hair, 0, shift);
    EXPECT_NEAR(outcome.state.LineA.x2, 102, 1e-6);
    EXPECT_EQ(endDragged(endA2, -198.001, 0, shift).state.LineA, (Line{100, 100, 102, 100}));
}

TEST(DragEndGrip, WithShiftKeepsItsAngleWhereverTheMouseGoes) {
    for (const MeasureGrip grip : {endA1, endA2, endB1, endB2}) {
        const bool ofA = grip == endA1 || grip == endA2;
        const bool first = grip == endA1 || grip == endB1;
        const Line before = ofA ? lines.LineA : lines.LineB;
        const Point other = first ? secondEnd(before) : firstEnd(before);
        const Point end = first ? firstEnd(before) : secondEnd(before);
        for (int i = 0; i < 24; ++i) {
            const double radius = 50 + 3 * i;
            const Point mouse{other.x + radius * std::cos(i), other.y + radius * std::sin(i)};
            const Outcome now = endDragged(grip, mouse.x - end.x, mouse.y - end.y, shift);
            const Line after = ofA ? now.state.LineA : now.state.LineB;
            EXPECT_NEAR(std::remainder(AngleOfLine(after) - AngleOfLine(before), 6.283185307), 0,
                        1e-6);
            EXPECT_NEAR(LineLength(after), radius, 1e-9);
            const Point kept = first ? secondEnd(after) : firstEnd(after);
            EXPECT_EQ(kept, other);
        }
    }
}

TEST(DragEndGrip, WithAltAloneJoinsOtherTools) {
    const Outcome joined = endDragged(endA1, 10, 20, alt, snapAway);
    EXPECT_EQ(joined.state.LineA, (Line{701.5, 702.5, 300, 100}));
    EXPECT_EQ(joined.shown, (Point{701.5, 702.5}));
    for (const int others : {0, shift, ctrl, alt | shift, alt | ctrl, alt | ctrl | shift}) {
        EXPECT_NE(endDragged(endA1, 10, 20, others, snapAway).state.LineA.x1, 701.5) << others;
    }
}

TEST(DragEndGrip, JoinedEndMayComeNearerThanTheLimit) {
    const EndSnap onOther = [](Point& point) { point = {300, 100}; };
    EXPECT_EQ(endDragged(endA1, 195, 0, alt, onOther).state.LineA, (Line{300, 100, 300, 100}));
}

TEST(DragEndGrip, KnowsNoGrid) {
    EXPECT_EQ(endDragged(endA1, 10, 20, ctrl).state, endDragged(endA1, 10, 20).state);
    EXPECT_EQ(endDragged(endA1, 10, 20, ctrl | alt, snapAway).state,
              endDragged(endA1, 10, 20).state);
}

TEST(DragCenterGrip, MovesItsLineWithoutRounding) {
    const Outcome a = centerDragged(centerA, 10.25, -3.5);
    EXPECT_EQ(a.state.LineA, (Line{110.25, 96.5, 310.25, 96.5}));
    EXPECT_EQ(a.state.LineB, lines.LineB);
    EXPECT_EQ(a.shown, (Point{210.25, 96.5}));
    const Outcome b = centerDragged(centerB, 1, 2);
    EXPECT_EQ(b.state.LineB, (Line{101.25, 302, 301, 502}));
    EXPECT_EQ(b.state.LineA, lines.LineA);
}

TEST(DragCenterGrip, WithShiftMovesTheTrueDistanceAlongAFixedDirection) {
    const Outcome outcome = centerDragged(centerA, 40, -3, shift);
    const double distance = std::sqrt(40.0 * 40 + 3 * 3);
    EXPECT_NEAR(distance, 40.1, 0.02);
    EXPECT_NEAR(outcome.state.LineA.x1, 100 + distance, 1e-9);
    EXPECT_NEAR(outcome.state.LineA.y1, 100, 1e-9);
}

TEST(DragCenterGrip, WithShiftHasSixteenDirections) {
    for (int i = 0; i < 160; ++i) {
        const double angle = (i + 0.5) * 6.283185307179586 / 160;
        const Outcome outcome =
            centerDragged(centerA, 100 * std::cos(angle), -100 * std::sin(angle), shift);
        const double moved = AngleOf(100, 100, outcome.state.LineA.x1, outcome.state.LineA.y1);
        const double steps = moved / 0.39269908169872414;
        EXPECT_NEAR(steps, std::round(steps), 1e-9) << i;
        EXPECT_LT(std::abs(std::remainder(moved - angle, 6.283185307179586)), 0.1964) << i;
        EXPECT_NEAR(Distance(100, 100, outcome.state.LineA.x1, outcome.state.LineA.y1), 100, 1e-9);
    }
}

TEST(DragCenterGrip, WithCtrlPutsTheMiddleOnTheGrid) {
    const Outcome outcome = centerDragged(centerA, 20, 12, ctrl);
    EXPECT_EQ(outcome.shown, (Point{215, 127}));
    EXPECT_EQ(PointOnLine(outcome.state.LineA, 0.5), (Point{215, 127}));
}

TEST(DragCenterGrip, AltHasNoEffect) {
    EXPECT_EQ(centerDragged(centerA, 20, 12, alt).state, centerDragged(centerA, 20, 12).state);
}

TEST(DragIntersectGrip, MovesTheWholeToolByWholePixels) {
    const Outcome outcome = allDragged(10.4, -20.6);
    EXPECT_EQ(outcome.state.LineA, (Line{110, 79, 310, 79}));
    EXPECT_EQ(outcome.state.LineB, (Line{110.25, 279, 310, 479}));
    EXPECT_EQ(outcome.shown, (Point{310, 79}));
}

TEST(DragIntersectGrip, WithShiftEndsOnAWholePixelOfAFixedDirection) {
    const Outcome outcome = allDragged(40, -3, shift);
    EXPECT_EQ(outcome.shown, (Point{340, 100}));
    const Outcome slanted = allDragged(30, -32, shift);
    EXPECT_EQ(slanted.shown, (Point{331, 69}));  // 43.86 pixels along 45 degrees
}

TEST(DragIntersectGrip, WithCtrlGoesToTheGrid) {
    EXPECT_EQ(allDragged(20, 12, ctrl).shown, (Point{355, 97 + 30}));
}

TEST(DragIntersectGrip, WithAltAloneJoinsOtherToolsOnAWholePixel) {
    EXPECT_EQ(allDragged(10, 20, alt, snapAway).shown, (Point{702, 703}));
    EXPECT_EQ(allDragged(10, 20, alt, snapAway).state.LineA.x2, 702);
    EXPECT_EQ(allDragged(10, 20, alt | ctrl, snapAway).shown, allDragged(10, 20, ctrl).shown);
    EXPECT_EQ(allDragged(10, 20, alt | shift, snapAway).shown, allDragged(10, 20, shift).shown);
}

TEST(MeasureDrag, GoesBackWithTheMouseExactly) {
    MeasureState state = lines;
    for (const MeasureGrip grip : {centerA, centerB, intersect}) {
        for (const double by : {333.3, -17.7, 0.0}) {
            if (grip == intersect) {
                DragIntersectGrip(state, dragOf(grip, by, by / 3), grid, noSnap);
            } else {
                DragCenterGrip(state, dragOf(grip, by, by / 3), grid);
            }
        }
        EXPECT_EQ(state, lines);
    }
}

}  // namespace
}  // namespace ormala
