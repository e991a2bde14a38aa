#include "measure/MeasureGrips.h"

#include <gtest/gtest.h>

#include "support/RecordingCanvas.h"

namespace ormala {
namespace {

using enum MeasureGrip;

constexpr MeasureState twoLines{false, {100, 100, 300, 100}, {100, 300, 300, 500}};

const Grip& gripIn(const GripSet& set, MeasureGrip grip) {
    return set[static_cast<int>(grip)];
}

/// Grips on their places, as those of separate lines.
GripSet placed() {
    GripSet set = makeMeasureGrips();
    for (int i = 0; i < measureGripCount; ++i) {
        const auto grip = static_cast<MeasureGrip>(i);
        set.place(i, measureGripPoint(grip, twoLines));
        set.setTag(i, measureGripTag(grip, false));
    }
    return set;
}

/// What comes forward when that grip grows, from below to the top; strokes are -1 and -2.
std::vector<int> broughtForward(MeasureGrip grip) {
    GripSet set = placed();
    DirtyRegion changed;
    const Point at = measureGripPoint(grip, twoLines);
    set.update({at.x, at.y}, changed);
    RecordingCanvas canvas;
    std::vector<int> order;
    const auto take = [&] {
        for (const auto& call : canvas.calls) {
            for (int i = 0; i < measureGripCount; ++i) {
                if (set[i].inUse() && set[i].pixels() == call.box) {
                    order.push_back(i);
                }
            }
        }
        canvas.calls.clear();
    };
    set.draw(canvas, [&](int stroke) {
        take();
        order.push_back(-1 - stroke);
    });
    take();
    return {order.end() - 4, order.end()};
}

TEST(MeasureGrips, AreNinePixelsWideInTheirColors) {
    const GripSet set = makeMeasureGrips();
    ASSERT_EQ(set.count(), measureGripCount);
    for (int i = 0; i < set.count(); ++i) {
        EXPECT_EQ(set[i].box.width, 9);
        EXPECT_EQ(set[i].box.height, 9);
        EXPECT_EQ(set[i].box.oval, set[i].kind == ShapeKind::oval);
        EXPECT_EQ(set[i].color, set[i].selectedBorder);
        EXPECT_EQ(set[i].color, set[i].pressedColor);
    }
    for (const MeasureGrip end : {endA1, endA2, endB1, endB2}) {
        EXPECT_EQ(gripIn(set, end).kind, ShapeKind::oval);
    }
    for (const MeasureGrip other : {centerA, centerB, intersect}) {
        EXPECT_EQ(gripIn(set, other).kind, ShapeKind::rectangle);
    }
    for (const MeasureGrip ofA : {endA1, endA2, centerA}) {
        EXPECT_EQ(gripIn(set, ofA).focusBorder, rgb(0, 15, 255));
        EXPECT_EQ(gripIn(set, ofA).color, rgb(128, 128, 255));
    }
    for (const MeasureGrip ofB : {endB1, endB2, centerB}) {
        EXPECT_EQ(gripIn(set, ofB).focusBorder, rgb(255, 0, 0));
        EXPECT_EQ(gripIn(set, ofB).color, rgb(255, 128, 128));
    }
    EXPECT_EQ(gripIn(set, intersect).focusBorder, rgb(191, 0, 255));
    EXPECT_EQ(gripIn(set, intersect).color, rgb(225, 136, 255));
}

TEST(MeasureGrips, LieOnEndsMiddlesAndTheCommonPoint) {
    EXPECT_EQ(measureGripPoint(endA1, twoLines), (Point{100, 100}));
    EXPECT_EQ(measureGripPoint(endA2, twoLines), (Point{300, 100}));
    EXPECT_EQ(measureGripPoint(endB1, twoLines), (Point{100, 300}));
    EXPECT_EQ(measureGripPoint(endB2, twoLines), (Point{300, 500}));
    EXPECT_EQ(measureGripPoint(centerA, twoLines), (Point{200, 100}));
    EXPECT_EQ(measureGripPoint(centerB, twoLines), (Point{200, 400}));
    EXPECT_EQ(measureGripPoint(intersect, twoLines), (Point{300, 100}));
}

TEST(MeasureGrips, TagsFollowTheConnection) {
    for (const MeasureGrip first : {endA1, endB1}) {
        EXPECT_EQ(measureGripTag(first, true), GripTag::grip);
        EXPECT_EQ(measureGripTag(first, false), GripTag::grip);
    }
    for (const MeasureGrip single : {endA2, endB2, centerA, centerB}) {
        EXPECT_EQ(measureGripTag(single, true), GripTag::hidden);
        EXPECT_EQ(measureGripTag(single, false), GripTag::grip);
    }
    EXPECT_EQ(measureGripTag(intersect, true), GripTag::grip);
    EXPECT_EQ(measureGripTag(intersect, false), GripTag::hidden);
}

TEST(MeasureGrips, GrowingGripComesForwardWithItsLine) {
    const auto items = [](MeasureGrip first, MeasureGrip second, MeasureGrip last, int stroke) {
        return std::vector<int>{static_cast<int>(first), static_cast<int>(second),
                                static_cast<int>(last), stroke};
    };
    EXPECT_EQ(broughtForward(endA1), items(centerA, endA2, endA1, -1));
    EXPECT_EQ(broughtForward(endA2), items(centerA, endA1, endA2, -1));
    EXPECT_EQ(broughtForward(centerA), items(endA1, endA2, centerA, -1));
    EXPECT_EQ(broughtForward(endB1), items(centerB, endB2, endB1, -2));
    EXPECT_EQ(broughtForward(endB2), items(centerB, endB1, endB2, -2));
    EXPECT_EQ(broughtForward(centerB), items(endB1, endB2, centerB, -2));
}

TEST(MeasureGrips, CommonPointLeavesTheOrder) {
    GripSet set = makeMeasureGrips();
    for (int i = 0; i < measureGripCount; ++i) {
        set.setTag(i, measureGripTag(static_cast<MeasureGrip>(i), true));
        set.place(i, measureGripPoint(static_cast<MeasureGrip>(i), {true, twoLines.LineA, {}}));
    }
    DirtyRegion changed;
    EXPECT_EQ(set.update({300, 100}, changed), static_cast<int>(intersect));
    EXPECT_TRUE(set[static_cast<int>(intersect)].grown());
    EXPECT_EQ(set.restackings(), 0U);
}

TEST(MeasureGrips, SecondEndOfLineAComesFirstWhereBothLie) {
    GripSet set = placed();
    set.place(static_cast<int>(endB2), {300, 100});
    DirtyRegion changed;
    EXPECT_EQ(set.update({301, 101}, changed), static_cast<int>(endA2));
}

}  // namespace
}  // namespace ormala
