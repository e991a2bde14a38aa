#include "stencil/StencilDrag.h"

#include <gtest/gtest.h>

#include <cmath>

#include "modAPI/constants.h"
#include "modAPI/rectangles.h"
#include "scene/Input.h"
#include "stencil/DragTable.h"
#include "stencil/StencilTexts.h"
#include "toolkit/DragReadOut.h"

namespace ormala {
namespace {

using modifier::alt;
using modifier::ctrl;
using modifier::shift;

/// A stencil about (500, 400), held by the middle of the grip.
StencilState stencilOf(double width, double height, double angle = 0) {
    StencilState state;
    state.RectBound = {500 - width / 2, 400 - height / 2, 500 + width / 2, 400 + height / 2};
    state.RotationAngle = angle;
    return state;
}

GripDrag moveDrag(double dx, double dy, int modifiers) {
    GripDrag drag;
    drag.grip = {StencilGripKind::move, 0};
    drag.gripWidth = drag.gripHeight = 25;
    drag.grabX = drag.grabY = 12;
    drag.pressX = 500;
    drag.pressY = 400;
    drag.x = 500 + dx;
    drag.y = 400 + dy;
    drag.shift = modifiers;
    return drag;
}

/// The mouse in that direction from the centre, holding the top right rotate grip.
GripDrag rotateDrag(double degrees, int modifiers) {
    GripDrag drag;
    drag.grip = {StencilGripKind::rotate, 0};
    drag.x = 500 + std::cos(degrees * pi / 180) * 1000;
    drag.y = 400 - std::sin(degrees * pi / 180) * 1000;
    drag.shift = modifiers;
    return drag;
}

double rotatedTo(double degrees, int modifiers) {
    StencilState state = stencilOf(200, 200);  // the grip's own direction is 45 degrees
    DragRotate(state, rotateDrag(degrees + 45, modifiers));
    return state.RotationAngle * 180 / pi;
}

TEST(DragMove, AgreesWithTheReference) {
    const auto drags = referenceDrags(StencilGripKind::move);
    ASSERT_GT(drags.size(), 500U);
    for (const ReferenceDrag& one : drags) {
        StencilState state = one.before;
        const Point at = DragMove(state, one.drag, one.grid);
        // The shift is made in single precision.
        EXPECT_TRUE(isNear(state.RectBound, one.after.RectBound, 4e-4)) << one.text;
        EXPECT_EQ(state.RotationAngle, one.before.RotationAngle);
        EXPECT_EQ(moveText(at, {}), one.text) << "modifiers " << one.drag.shift;
    }
}

TEST(DragMove, ShiftKeepsTheDistanceInOneOfSixteenDirections) {
    StencilState state = stencilOf(200, 100);
    DragMove(state, moveDrag(100, 10, shift), {});
    EXPECT_EQ(RectCenter(state.RectBound), (Point{600, 400}));
    state = stencilOf(200, 100);
    DragMove(state, moveDrag(100, -45, shift), {});
    // 22.5 degrees at a distance of 109.7
    EXPECT_EQ(RectCenter(state.RectBound), (Point{601, 358}));
}

TEST(DragMove, CtrlPutsTheCentreOnTheGridAfterTheFixedDirection) {
    StencilState state = stencilOf(200, 100);
    EXPECT_EQ(DragMove(state, moveDrag(33, 70, ctrl), {50, 50, 0, 0}), (Point{550, 450}));
    state = stencilOf(200, 100);
    EXPECT_EQ(DragMove(state, moveDrag(100, 10, ctrl | shift), {70, 70, 3, 4}), (Point{633, 424}));
    EXPECT_EQ(RectCenter(state.RectBound), (Point{633, 424}));
}

TEST(DragMove, SizeStaysToTheLastBit) {
    StencilState state = stencilOf(201, 77);
    DragMove(state, moveDrag(-133, 211, 0), {});
    EXPECT_EQ(PixelWidth(state.RectBound), 202);
    EXPECT_EQ(PixelHeight(state.RectBound), 78);
}

TEST(DragRotate, AgreesWithTheReference) {
    const auto drags = referenceDrags(StencilGripKind::rotate);
    ASSERT_GT(drags.size(), 500U);
    for (const ReferenceDrag& one : drags) {
        StencilState state = one.before;
        DragRotate(state, one.drag);
        EXPECT_NEAR(state.RotationAngle, one.after.RotationAngle, 1e-9) << one.text;
        EXPECT_EQ(state.RectBound, one.before.RectBound);
        EXPECT_EQ(rotationText(state.RotationAngle, {}), one.text);
    }
}

TEST(DragRotate, CtrlWinsOverShiftAndShiftOverAlt) {
    EXPECT_NEAR(rotatedTo(25, ctrl | shift), 27, 1e-9);
    EXPECT_NEAR(rotatedTo(25, ctrl | shift | alt), 27, 1e-9);
    EXPECT_NEAR(rotatedTo(25, shift | alt), 22.5, 1e-9);
    EXPECT_NEAR(rotatedTo(25, alt), 45, 1e-9);
    EXPECT_NEAR(rotatedTo(25, 0), 25, 1e-9);
}

TEST(DragRotate, FixedStepThatRoundsToAFullTurnIsZero) {
    for (const int modifiers : {ctrl, shift, alt}) {
        EXPECT_EQ(rotatedTo(358.5, modifiers), 0) << modifiers;
    }
    EXPECT_NEAR(rotatedTo(358.5, 0), 358.5, 1e-9);
}

TEST(DragRotate, MouseOnTheCentreFailsNowhere) {
    StencilState state = stencilOf(200, 100);
    GripDrag drag;
    drag.grip = {StencilGripKind::rotate, 2};
    drag.x = 500;
    drag.y = 400;
    DragRotate(state, drag);
    EXPECT_EQ(state.RotationAngle, 0);
}

TEST(ModifiedAngle, AgreesWithTheReference) {
    const ReferenceTable table("angle_steps.csv");
    ASSERT_EQ(table.rows().size(), 1000U);
    for (const auto& row : table.rows()) {
        const auto n = ReferenceTable::numbers(row);
        const auto kind = static_cast<AngleStep>(ReferenceTable::whole(row[2]));
        const double after = modifiedAngle(n[0], n[1] != 0, kind);
        // A result on the border of the turn may be shown from either side of it.
        const double apart = std::abs(after - n[3]);
        EXPECT_LE(std::min(apart, std::abs(apart - twoPi)), 1e-9)
            << n[0] << ' ' << n[1] << ' ' << n[2];
    }
}

TEST(ModifiedAngle, FixedStepsGoToTheNextMultiple) {
    EXPECT_NEAR(modifiedAngle(0.1, false, AngleStep::twentiethOfPi), 2 * pi / 20, 1e-12);
    EXPECT_NEAR(modifiedAngle(0.3, true, AngleStep::sixteenthOfPi), pi / 16, 1e-12);
}

TEST(ModifiedAngle, StaysWithinATurn) {
    EXPECT_NEAR(modifiedAngle(0, true, AngleStep::degree), 359 * pi / 180, 1e-9);
    EXPECT_EQ(modifiedAngle(359 * pi / 180, false, AngleStep::degree), 0);
    EXPECT_NEAR(modifiedAngle(359.95 * pi / 180, false, AngleStep::degree), 0.95 * pi / 180, 1e-9);
    double angle = 0;
    for (int i = 0; i < 3600; ++i) {
        angle = modifiedAngle(angle, false, AngleStep::tenthOfDegree);
        ASSERT_GE(angle, 0);
        ASSERT_LT(angle, twoPi);
    }
    EXPECT_LT(std::min(angle, twoPi - angle), 0.001);
}

TEST(AngleStepOf, PrefersCtrlToShiftToAlt) {
    EXPECT_EQ(angleStepOf(0), AngleStep::degree);
    EXPECT_EQ(angleStepOf(alt), AngleStep::tenthOfDegree);
    EXPECT_EQ(angleStepOf(shift | alt), AngleStep::sixteenthOfPi);
    EXPECT_EQ(angleStepOf(shift | alt | ctrl), AngleStep::twentiethOfPi);
}

}  // namespace
}  // namespace ormala
