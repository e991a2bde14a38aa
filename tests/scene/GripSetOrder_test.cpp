#include <gtest/gtest.h>

#include "scene/GripSet.h"
#include "support/RecordingCanvas.h"

// Tags, borders and the order of grips among the other items of their tool.

namespace ormala {
namespace {

constexpr int lineItem = 2;

std::vector<Grip> twoGrips() {
    std::vector<Grip> grips(2);
    for (Grip& grip : grips) {
        grip.box = {0, 0, 9, 9, false};
    }
    grips[0].place({100, 100});
    grips[1].place({300, 100});
    return grips;
}

/// Two grips and a line; the first grip comes forward with the line, the second stays.
GripSet gripsWithLine() {
    return GripSet(twoGrips(), {{1, 0, lineItem}, {}}, 1);
}

std::optional<int> hoverOver(GripSet& grips, double x, double y) {
    DirtyRegion changed;
    return grips.update({x, y}, changed);
}

/// The numbers of the grips and, as -1, the line, from below to the top.
std::vector<int> order(const GripSet& grips) {
    RecordingCanvas canvas;
    std::vector<int> found;
    const auto takeGrips = [&] {
        for (const auto& call : canvas.calls) {
            found.push_back(call.box == grips[0].pixels() ? 0 : 1);
        }
        canvas.calls.clear();
    };
    grips.draw(canvas, [&](int other) {
        takeGrips();
        found.push_back(-1 - other);
    });
    takeGrips();
    return found;
}

TEST(GripSetOrder, OtherItemsLieBeneathTheGripsAtFirst) {
    EXPECT_EQ(order(gripsWithLine()), (std::vector<int>{-1, 0, 1}));
}

TEST(GripSetOrder, GrowingGripBringsItsItemsForwardInTheirOrder) {
    GripSet grips = gripsWithLine();
    hoverOver(grips, 100, 100);
    EXPECT_EQ(order(grips), (std::vector<int>{1, 0, -1}));
    EXPECT_EQ(grips.restackings(), 1U);
}

TEST(GripSetOrder, GripWithoutItemsLeavesTheOrder) {
    GripSet grips = gripsWithLine();
    hoverOver(grips, 300, 100);
    EXPECT_TRUE(grips[1].grown());
    EXPECT_EQ(order(grips), (std::vector<int>{-1, 0, 1}));
    EXPECT_EQ(grips.restackings(), 0U);
}

TEST(GripSetOrder, WhatIsInFrontAlreadyIsNotMovedAgain) {
    GripSet grips = gripsWithLine();
    hoverOver(grips, 100, 100);
    hoverOver(grips, 700, 700);
    hoverOver(grips, 100, 100);
    EXPECT_EQ(grips.restackings(), 1U);
    EXPECT_EQ(order(grips), (std::vector<int>{1, 0, -1}));
}

TEST(GripTags, HiddenGripIsOutOfEveryLoop) {
    GripSet grips(twoGrips());
    grips.setTag(0, GripTag::hidden);
    EXPECT_FALSE(grips.HitTest(100, 100));
    EXPECT_FALSE(hoverOver(grips, 100, 100));
    RecordingCanvas canvas;
    grips.draw(canvas);
    EXPECT_EQ(canvas.calls.size(), 1U);
    DirtyRegion region;
    grips.addTo(region);
    EXPECT_EQ(region.rects().size(), 1U);
    EXPECT_TRUE(hoverOver(grips, 300, 100));
}

TEST(GripTags, EditModeBringsNoHiddenGripBack) {
    GripSet grips(twoGrips());
    grips.setTag(0, GripTag::hidden);
    grips.setVisible(false);
    grips.setVisible(true);
    EXPECT_FALSE(grips.HitTest(100, 100));
    grips.setTag(0, GripTag::grip);
    EXPECT_TRUE(grips.HitTest(100, 100));
}

TEST(GripTags, HeldGripIsAtRestAndLetGoWhenItIsHidden) {
    GripSet grips(twoGrips());
    DirtyRegion changed;
    grips.setActive(grips.update({100, 100, HoverMode::press}, changed));
    grips.setTag(0, GripTag::hidden);
    EXPECT_FALSE(grips.active());
    EXPECT_FALSE(grips[0].grown());
    EXPECT_FALSE(grips[0].pressed);
    EXPECT_EQ(grips[0].borderWidth, 1);
}

TEST(GripTags, HidingAnotherGripLeavesTheHeldOne) {
    GripSet grips(twoGrips());
    grips.setActive(0);
    grips.setTag(1, GripTag::hidden);
    EXPECT_EQ(grips.active(), 0);
}

TEST(GripBorders, FocusComesBeforeSelectionAndGreyLast) {
    std::vector<Grip> list = twoGrips();
    list[0].focusBorder = rgb(1, 0, 0);
    list[0].selectedBorder = rgb(2, 0, 0);
    list[1].focusBorder = rgb(3, 0, 0);
    list[1].selectedBorder = rgb(4, 0, 0);
    GripSet grips(list);
    grips.setTag(1, GripTag::hidden);
    grips.setBorderColors(true, true);
    EXPECT_EQ(grips[0].borderColor, rgb(1, 0, 0));
    EXPECT_EQ(grips[1].borderColor, rgb(3, 0, 0));
    grips.setBorderColors(true, false);
    EXPECT_EQ(grips[0].borderColor, rgb(1, 0, 0));
    grips.setBorderColors(false, true);
    EXPECT_EQ(grips[0].borderColor, rgb(2, 0, 0));
    EXPECT_EQ(grips[1].borderColor, rgb(4, 0, 0));
    grips.setBorderColors(false, false);
    EXPECT_EQ(grips[0].borderColor, rgb(191, 191, 191));
}

}  // namespace
}  // namespace ormala
