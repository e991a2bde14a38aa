#include <gtest/gtest.h>

#include "modAPI/constants.h"
#include "modAPI/rectangles.h"
#include "stencil/StencilOnSheet.h"
#include "support/DragWays.h"

// What a drag makes of a stencil is a matter of where it was pressed, where the mouse is now and
// which modifiers are held, and not of how the mouse came there.

namespace ormala {
namespace {

constexpr Rect fractional{300.25, 280.5, 521.75, 402.125};

struct Held {
    StencilGripKind kind;
    int number;
};

constexpr Held grips[] = {{StencilGripKind::move, 0},       {StencilGripKind::rotate, 0},
                          {StencilGripKind::rotate, 2},     {StencilGripKind::size, 0},
                          {StencilGripKind::size, 1},       {StencilGripKind::size, 2},
                          {StencilGripKind::size, 3},       {StencilGripKind::sizeCorner, 0},
                          {StencilGripKind::sizeCorner, 1}, {StencilGripKind::sizeCorner, 2},
                          {StencilGripKind::sizeCorner, 3}};

/// Short ones, and through the stencil to its other side and beyond it.
constexpr Point ways[] = {{3, -2}, {-41, 27}, {-170, -95}, {180, 101}, {-400, 380}, {420, -390}};

struct Start {
    Rect rect = fractional;
    double angle = 0;
};

StencilState dragged(const Start& start, const Held& held, const Point& by, int shift, int moves,
                     bool restless) {
    StencilOnSheet stage;
    stage.tool.setRectBound(start.rect);
    stage.tool.setRotationAngle(start.angle);
    dragInMoves(stage, stage.gripAt(held.kind, held.number), by, shift, moves, restless);
    return stage.state();
}

void expectSameInAnyMoves(const Start& start) {
    for (const Held& held : grips) {
        for (const Point& by : ways) {
            for (int shift = 0; shift < modifierSets; ++shift) {
                const StencilState once = dragged(start, held, by, shift, 1, false);
                for (const int moves : handMoves) {
                    for (const bool restless : {false, true}) {
                        ASSERT_EQ(dragged(start, held, by, shift, moves, restless), once)
                            << "grip " << static_cast<int>(held.kind) << ' ' << held.number
                            << " by " << by.x << ", " << by.y << " modifiers " << shift << " in "
                            << moves << " moves" << (restless ? ", restless" : "");
                    }
                }
            }
        }
    }
}

TEST(StencilDragMoves, AnyNumberOfMovesEndsTheSame) {
    expectSameInAnyMoves({});
}

TEST(StencilDragMoves, AnyNumberOfMovesEndsTheSameOnATurnedStencil) {
    expectSameInAnyMoves({fractional, pi / 6});
}

TEST(StencilDragMoves, AnyNumberOfMovesEndsTheSameWhenThePressBringsTheFocus) {
    for (const Held& held : grips) {
        StencilOnSheet stage;
        stage.tool.setRectBound(fractional);
        const Point from = stage.gripAt(held.kind, held.number);
        const Point to{from.x - 170, from.y - 95};
        stage.press(from);
        // The one move that follows may be taken for that which comes with the focus.
        stage.tool.gotFocus();
        stage.dragTo(to);
        stage.release(to);
        EXPECT_EQ(stage.state(), dragged({}, held, {-170, -95}, 0, 1, false))
            << static_cast<int>(held.kind) << ' ' << held.number;
    }
}

TEST(StencilDragMoves, ACornerPulledPastTheCentreInOneMoveKeepsTheOppositeCorner) {
    for (const double angle : {0.0, pi / 6}) {
        const StencilCorners before = ComputeCorners({{300, 300, 499, 399}, angle, {}});
        const StencilState now =
            dragged({{300, 300, 499, 399}, angle}, {StencilGripKind::sizeCorner, 1}, {-260, -240},
                    0, 1, false);
        EXPECT_NEAR(PixelHeight(now.RectBound), smallestSide, 1e-9);
        EXPECT_NEAR(PixelWidth(now.RectBound), 2 * smallestSide, 1e-9);
        const Point kept = ComputeCorners(now)[0];
        EXPECT_NEAR(kept.x, before[0].x, 1e-9);
        EXPECT_NEAR(kept.y, before[0].y, 1e-9);
    }
}

TEST(StencilDragMoves, ACornerPulledPastTheCentreWithCtrlKeepsTheCentre) {
    const StencilState now = dragged({{300, 300, 499, 399}}, {StencilGripKind::sizeCorner, 3},
                                     {260, 240}, modifier::ctrl, 1, false);
    EXPECT_NEAR(PixelHeight(now.RectBound), smallestSide, 1e-9);
    EXPECT_NEAR(PixelWidth(now.RectBound), 2 * smallestSide, 1e-9);
    EXPECT_NEAR(RectCenter(now.RectBound).x, 399.5, 1e-9);
    EXPECT_NEAR(RectCenter(now.RectBound).y, 349.5, 1e-9);
}

TEST(StencilDragMoves, AModifierLetGoOnTheWayLeavesNoTrace) {
    for (const Held& held : grips) {
        StencilOnSheet stage;
        stage.tool.setRectBound(fractional);
        const Point from = stage.gripAt(held.kind, held.number);
        const Point to{from.x - 61, from.y + 44};
        stage.press(from);
        stage.dragTo(to);
        const StencilState plain = stage.state();
        for (int shift = 1; shift < modifierSets; ++shift) {
            stage.dragTo(to, shift);
            stage.dragTo(to);
            EXPECT_EQ(stage.state(), plain) << held.number << ' ' << shift;
        }
        stage.release(to);
    }
}

TEST(StencilDragMoves, ADragThereAndBackStoresAndRaisesNothing) {
    for (const double angle : {0.0, pi / 6}) {
        for (const Held& held : grips) {
            StencilOnSheet stage;
            stage.tool.setRectBound(fractional);
            stage.tool.setRotationAngle(angle);
            stage.tool.History().Add(true);
            const StencilState before = stage.state();
            const Point from = stage.gripAt(held.kind, held.number);
            stage.press(from);
            stage.dragTo({from.x + 60, from.y - 33});
            EXPECT_NE(stage.state(), before);
            stage.dragTo(from);
            EXPECT_EQ(stage.state(), before) << held.number;
            const int changes = stage.changes;
            const int newest = stage.tool.History().newest();
            stage.release(from);
            EXPECT_EQ(stage.changes, changes);
            EXPECT_EQ(stage.tool.History().newest(), newest);
        }
    }
}

TEST(StencilDragMoves, AModifierThatBindsTheGripActsOnAMouseThatStands) {
    StencilOnSheet stage;
    stage.tool.setRectBound({300, 300, 530, 449});  // 231 by 150 pixels, near 1.54
    const Point from = stage.gripAt(StencilGripKind::size, 1);
    const StencilState before = stage.state();
    stage.press(from);
    stage.dragTo(from, modifier::ctrl);
    EXPECT_EQ(stage.state(), before);
    stage.dragTo(from, modifier::shift);
    EXPECT_NE(stage.state(), before);
    stage.dragTo(from);
    EXPECT_EQ(stage.state(), before);
}

}  // namespace
}  // namespace ormala
