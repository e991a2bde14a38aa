#include "scene/GripSet.h"

#include <gtest/gtest.h>

#include "support/RecordingCanvas.h"

namespace ormala {
namespace {

/// Small grips of 9 pixels with their centres on these points.
GripSet gripsAt(const std::vector<Point>& places) {
    std::vector<Grip> grips;
    for (const Point& place : places) {
        Grip grip;
        grip.box = {0, 0, 9, 9, false};
        grip.place(place);
        grips.push_back(grip);
    }
    return GripSet(grips);
}

std::optional<int> hover(GripSet& grips, double x, double y) {
    DirtyRegion changed;
    return grips.update({x, y}, changed);
}

std::optional<int> update(GripSet& grips, const HoverInput& input) {
    DirtyRegion changed;
    return grips.update(input, changed);
}

HoverInput inputAt(double x, double y, HoverMode mode) {
    HoverInput input;
    input.x = x;
    input.y = y;
    input.mode = mode;
    return input;
}

/// The boxes in drawing order.
std::vector<PixelRect> drawingOrder(const GripSet& grips) {
    RecordingCanvas canvas;
    grips.draw(canvas);
    std::vector<PixelRect> boxes;
    for (const auto& call : canvas.calls) {
        boxes.push_back(call.box);
    }
    return boxes;
}

TEST(GripSet, GripOfWidthNineIsHitSixPixelsOutside) {
    GripSet grips = gripsAt({{100, 100}});  // covers 96 to 104
    EXPECT_FALSE(hover(grips, 89, 100));
    EXPECT_TRUE(hover(grips, 90, 100));
    EXPECT_TRUE(grips[0].grown());
    EXPECT_FALSE(hover(grips, 300, 300));
    EXPECT_TRUE(hover(grips, 110.5, 100));
    EXPECT_FALSE(hover(grips, 300, 300));
    EXPECT_FALSE(hover(grips, 111, 100));
}

TEST(GripSet, AtTwiceTheResolutionAGripIsHitTwelvePixelsOutside) {
    GripSet grips = gripsAt({{100, 100}});
    EXPECT_FALSE(grips.setScale(SheetScale(96)));
    EXPECT_TRUE(grips.setScale(SheetScale(192)));
    grips.place(0, {100, 100});  // covers 91 to 109
    EXPECT_FALSE(hover(grips, 78, 100));
    EXPECT_TRUE(hover(grips, 79, 100));
    EXPECT_EQ(grips[0].pixels(), (PixelRect{79, 79, 122, 122}));
    EXPECT_FALSE(hover(grips, 300, 300));
    EXPECT_EQ(grips[0].pixels(), (PixelRect{91, 91, 110, 110}));
}

TEST(GripSet, GrownGripIsHitOnItsOwnAreaOnly) {
    GripSet grips = gripsAt({{100, 100}});
    hover(grips, 100, 100);
    ASSERT_EQ(grips[0].pixels(), (PixelRect{90, 90, 111, 111}));
    EXPECT_TRUE(hover(grips, 90, 100));
    EXPECT_FALSE(hover(grips, 89, 100));
    EXPECT_FALSE(grips[0].grown());
}

TEST(GripSet, NearerCentreOfOverlappingGripsWins) {
    GripSet grips = gripsAt({{100, 100}, {106, 100}});
    EXPECT_EQ(hover(grips, 104, 100), 1);
    GripSet others = gripsAt({{100, 100}, {106, 100}});
    EXPECT_EQ(hover(others, 103, 100), 0);
}

TEST(GripSet, FirstInControlOrderWinsOnEqualDistance) {
    GripSet grips = gripsAt({{100, 100}, {106, 100}});
    EXPECT_EQ(hover(grips, 103.5, 100.5), 0);
    GripSet together = gripsAt({{50, 50}, {50, 50}, {50, 50}});
    EXPECT_EQ(hover(together, 52, 52), 0);
}

TEST(GripSet, NearnessAndNotStackingTellsOverlappingGripsApart) {
    GripSet grips = gripsAt({{100, 100}, {112, 100}});
    EXPECT_EQ(hover(grips, 116, 100), 1);  // grip 1 is the upper one now, down to 102
    EXPECT_EQ(hover(grips, 104, 100), 0);
    EXPECT_FALSE(grips[1].grown());
}

TEST(GripSet, HitIsReportedUpToAFarDistanceOnly) {
    Grip wide;
    wide.box = {0, 0, 40000, 40000, false};
    GripSet grips({wide});
    EXPECT_TRUE(hover(grips, 20000, 10001.5));
    EXPECT_FALSE(hover(grips, 20000, 10001));
}

TEST(GripSet, GrowingComesToTheTopAndTheOrderStays) {
    GripSet grips = gripsAt({{100, 100}, {300, 100}, {500, 100}});
    hover(grips, 100, 100);
    hover(grips, 300, 100);
    hover(grips, 900, 700);
    const auto boxes = drawingOrder(grips);
    ASSERT_EQ(boxes.size(), 3U);
    EXPECT_EQ(boxes[0], grips[2].pixels());
    EXPECT_EQ(boxes[1], grips[0].pixels());
    EXPECT_EQ(boxes[2], grips[1].pixels());
}

TEST(GripSet, OnlyTheGripUnderTheMouseIsGrown) {
    GripSet grips = gripsAt({{100, 100}, {106, 100}, {300, 100}});
    hover(grips, 100, 100);
    hover(grips, 300, 100);
    EXPECT_FALSE(grips[0].grown());
    EXPECT_FALSE(grips[1].grown());
    EXPECT_TRUE(grips[2].grown());
}

TEST(GripSet, PressGivesABorderOfThreeAndASolidFill) {
    GripSet grips = gripsAt({{100, 100}, {300, 100}});
    EXPECT_EQ(update(grips, inputAt(100, 100, HoverMode::press)), 0);
    EXPECT_EQ(grips[0].borderWidth, 3);
    EXPECT_TRUE(grips[0].pressed);
    EXPECT_EQ(grips[1].borderWidth, 1);
    EXPECT_FALSE(grips[1].pressed);
}

TEST(GripSet, ReleaseGivesBackABorderOfOne) {
    GripSet grips = gripsAt({{100, 100}, {300, 100}});
    grips.setActive(update(grips, inputAt(100, 100, HoverMode::press)));
    EXPECT_EQ(update(grips, inputAt(500, 500, HoverMode::release)), 0);
    EXPECT_EQ(grips[0].borderWidth, 1);
    EXPECT_FALSE(grips[0].pressed);
}

TEST(GripSet, HoverLeavesThePressedLook) {
    GripSet grips = gripsAt({{100, 100}});
    grips.setActive(update(grips, inputAt(100, 100, HoverMode::press)));
    hover(grips, 104, 100);
    EXPECT_TRUE(grips[0].pressed);
    EXPECT_EQ(grips[0].borderWidth, 3);
}

TEST(GripSet, ActiveGripIsTheHitWhereverTheMouseIs) {
    GripSet grips = gripsAt({{100, 100}, {300, 100}});
    grips.setActive(update(grips, inputAt(100, 100, HoverMode::press)));
    EXPECT_EQ(hover(grips, 300, 100), 0);
    EXPECT_TRUE(grips[0].grown());
    EXPECT_FALSE(grips[1].grown());
}

TEST(GripSet, OtherToolsMovesHitNothing) {
    GripSet grips = gripsAt({{100, 100}});
    HoverInput input = inputAt(100, 100, HoverMode::hover);
    input.ours = false;
    EXPECT_FALSE(update(grips, input));
    EXPECT_FALSE(grips[0].grown());
}

TEST(GripSet, DragOfAnotherItemLightsUpNoGrip) {
    GripSet grips = gripsAt({{100, 100}});
    HoverInput input = inputAt(100, 100, HoverMode::hover);
    input.mouseHeldElsewhere = true;
    EXPECT_FALSE(update(grips, input));
    input.mode = HoverMode::release;
    EXPECT_FALSE(update(grips, input));
    input.mode = HoverMode::press;
    EXPECT_EQ(update(grips, input), 0);
}

TEST(GripSet, ActiveGripDoesNotShrinkWhileAnotherItemHoldsTheMouse) {
    GripSet grips = gripsAt({{100, 100}});
    grips.setActive(update(grips, inputAt(100, 100, HoverMode::press)));
    HoverInput input = inputAt(300, 300, HoverMode::hover);
    input.mouseHeldElsewhere = true;
    EXPECT_FALSE(update(grips, input));
    EXPECT_TRUE(grips[0].grown());
}

TEST(GripSet, ReportsThePixelsOfTheGripsThatChangeAndNoOthers) {
    GripSet grips = gripsAt({{100, 100}, {300, 100}, {500, 100}});
    DirtyRegion changed;
    grips.update({100, 100}, changed);
    ASSERT_EQ(changed.rects().size(), 1U);
    EXPECT_EQ(changed.rects()[0], (PixelRect{90, 90, 111, 111}));
    changed.clear();
    grips.update({300, 100}, changed);
    EXPECT_TRUE(changed.meets({90, 90, 111, 111}));
    EXPECT_TRUE(changed.meets({290, 90, 311, 111}));
    EXPECT_FALSE(changed.meets({490, 90, 511, 111}));
}

TEST(GripSet, MoveThatChangesNoGripReportsNothing) {
    GripSet grips = gripsAt({{100, 100}, {300, 100}});
    DirtyRegion changed;
    grips.update({100, 100}, changed);
    changed.clear();
    grips.update({104, 102}, changed);
    EXPECT_TRUE(changed.empty());
    grips.update({700, 700}, changed);
    changed.clear();
    grips.update({710, 710}, changed);
    EXPECT_TRUE(changed.empty());
}

TEST(GripSet, HiddenGripsTakeNoMouse) {
    GripSet grips = gripsAt({{100, 100}});
    EXPECT_TRUE(grips.HitTest(100, 100));
    EXPECT_FALSE(grips.HitTest(92, 100));
    grips.setVisible(false);
    EXPECT_FALSE(grips.HitTest(100, 100));
    EXPECT_FALSE(hover(grips, 100, 100));
    DirtyRegion region;
    grips.addTo(region);
    EXPECT_TRUE(region.empty());
}

TEST(GripSet, GrownGripStaysCentredWhenItIsPlaced) {
    GripSet grips = gripsAt({{100, 100}});
    hover(grips, 100, 100);
    grips.place(0, {205, 207});
    EXPECT_EQ(grips[0].pixels(), (PixelRect{195, 197, 216, 218}));
}

}  // namespace
}  // namespace ormala
