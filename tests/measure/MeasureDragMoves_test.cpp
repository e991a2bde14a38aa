#include <gtest/gtest.h>

#include "measure/MeasureOnSheet.h"
#include "modAPI/angles.h"
#include "modAPI/transforms.h"
#include "support/DragWays.h"

// What a drag makes of the lines is a matter of where it was pressed, where the mouse is now and
// which modifiers are held, and not of how the mouse came there.

namespace ormala {
namespace {

using enum MeasureGrip;

constexpr MeasureGrip freeGrips[] = {endA1, endA2, endB1, endB2, centerA, centerB};
constexpr MeasureGrip connectedGrips[] = {endA1, endB1, intersect};

/// Short ones, and some onto, over and past the other end of a line.
constexpr Point ways[] = {{3, -2},   {-41, 27},   {100, -40}, {99, -41},  {101, -40}, {-100, 40},
                          {-99, 39}, {300, -120}, {79, 61},   {-79, -60}, {80, 60},   {-240, 180}};

struct Stage : MeasureOnSheet {
    explicit Stage(bool connected) : MeasureOnSheet(sheet, connected) {
        // With ends between the pixels, as a shifted or a joined one is.
        tool.setLineA({400.25, 300.5, 500.5, 260.25});
        tool.setLineB({420.5, 200.25, connected ? 500.5 : 500.25, connected ? 260.25 : 260});
        tool.History().Add(true);
        settings.grid = {70, 30, 5, 7};
        others.ends = {{497.5, 262.25}, {441.5, 296.75}, {350, 340.5}};
    }
};

MeasureState dragged(bool connected, MeasureGrip grip, const Point& by, int shift, int moves,
                     bool restless) {
    Stage stage(connected);
    dragInMoves(stage, stage.gripAt(grip), by, shift, moves, restless);
    return stage.tool.state();
}

void expectSameInAnyMoves(bool connected, std::span<const MeasureGrip> grips) {
    for (const MeasureGrip grip : grips) {
        for (const Point& by : ways) {
            for (int shift = 0; shift < modifierSets; ++shift) {
                const MeasureState once = dragged(connected, grip, by, shift, 1, false);
                for (const int moves : handMoves) {
                    for (const bool restless : {false, true}) {
                        ASSERT_EQ(dragged(connected, grip, by, shift, moves, restless), once)
                            << "grip " << static_cast<int>(grip) << " by " << by.x << ", " << by.y
                            << " modifiers " << shift << " in " << moves << " moves"
                            << (restless ? ", restless" : "");
                    }
                }
            }
        }
    }
}

TEST(MeasureDragMoves, AnyNumberOfMovesEndsTheSame) {
    expectSameInAnyMoves(false, freeGrips);
}

TEST(MeasureDragMoves, AnyNumberOfMovesEndsTheSameOnConnectedLines) {
    expectSameInAnyMoves(true, connectedGrips);
}

TEST(MeasureDragMoves, AnEndPulledOntoTheOtherOneStopsBeforeItInAnyNumberOfMoves) {
    for (const int shift : {0, modifier::shift, modifier::ctrl}) {
        for (const int moves : handMoves) {
            MeasureOnSheet stage(MeasureOnSheet::sheet, false);
            stage.tool.setLineA({300, 300, 420, 300});
            dragInMoves(stage, {300, 300}, {119, 0}, shift, moves, false);
            EXPECT_EQ(stage.tool.LineA(), (Line{418, 300, 420, 300})) << shift << ' ' << moves;
        }
    }
}

TEST(MeasureDragMoves, AnEndStopsOnTheSideItCameFrom) {
    MeasureOnSheet stage(MeasureOnSheet::sheet, false);
    stage.tool.setLineA({300, 300, 420, 300});
    dragInMoves(stage, {300, 300}, {121, 0}, 0, 1, false);
    EXPECT_EQ(stage.tool.LineA(), (Line{418, 300, 420, 300}));
    dragInMoves(stage, {418, 300}, {4, 0}, 0, 1, false);
    EXPECT_EQ(stage.tool.LineA(), (Line{422, 300, 420, 300}));
}

TEST(MeasureDragMoves, ALineOfNoLengthStaysSoUntilTheMouseIsFarEnough) {
    MeasureOnSheet stage(MeasureOnSheet::sheet, false);
    stage.tool.setLineA({300, 300, 300, 300});
    for (const int shift : {0, modifier::shift}) {
        stage.press({300, 300});
        stage.dragTo({301, 300}, shift);
        EXPECT_EQ(stage.tool.LineA(), (Line{300, 300, 300, 300}));
        stage.release({301, 300});
    }
    stage.press({300, 300});
    stage.dragTo({302, 300});
    EXPECT_EQ(LineLength(stage.tool.LineA()), 2);
}

TEST(MeasureDragMoves, AModifierLetGoOnTheWayLeavesNoTrace) {
    for (const MeasureGrip grip : freeGrips) {
        Stage stage(false);
        const Point from = stage.gripAt(grip);
        const Point to{from.x - 61, from.y + 44};
        stage.press(from);
        stage.dragTo(to);
        const MeasureState plain = stage.tool.state();
        for (int shift = 1; shift < modifierSets; ++shift) {
            stage.dragTo(to, shift);
            stage.dragTo(to);
            EXPECT_EQ(stage.tool.state(), plain) << static_cast<int>(grip) << ' ' << shift;
        }
    }
}

TEST(MeasureDragMoves, ADragThereAndBackStoresAndRaisesNothing) {
    const auto thereAndBack = [](bool connected, MeasureGrip grip, int shift) {
        Stage stage(connected);
        const MeasureState before = stage.tool.state();
        const Point from = stage.gripAt(grip);
        stage.press(from, shift);
        stage.dragTo({from.x + 60, from.y - 33}, shift);
        EXPECT_NE(stage.tool.state(), before);
        stage.dragTo(from, shift);
        EXPECT_EQ(stage.tool.state(), before) << static_cast<int>(grip) << ' ' << shift;
        const int changes = stage.changes;
        const int newest = stage.tool.History().newest();
        stage.release(from);
        EXPECT_EQ(stage.changes, changes);
        EXPECT_EQ(stage.tool.History().newest(), newest);
    };
    for (const int shift : {0, modifier::shift}) {
        for (const MeasureGrip grip : freeGrips) {
            thereAndBack(false, grip, shift);
        }
        for (const MeasureGrip grip : connectedGrips) {
            thereAndBack(true, grip, shift);
        }
    }
}

}  // namespace
}  // namespace ormala
