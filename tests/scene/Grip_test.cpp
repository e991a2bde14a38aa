#include "scene/Grip.h"

#include <gtest/gtest.h>

#include <limits>

#include "support/RecordingCanvas.h"

namespace ormala {
namespace {

Grip gripOfSize(float size) {
    Grip grip;
    grip.box = {100, 50, size, size, false};
    grip.color = rgb(1, 2, 3);
    grip.pressedColor = rgb(4, 5, 6);
    return grip;
}

TEST(Grip, GrowsBySixOnEachSideOnlyOnce) {
    Grip grip = gripOfSize(9);
    grip.grow();
    grip.grow();
    EXPECT_EQ(grip.box, (ShapeBox{94, 44, 21, 21, false}));
    EXPECT_TRUE(grip.grown());
}

TEST(Grip, ShrinksBackToWhereItWas) {
    for (const float size : {9.0F, 13.0F}) {
        Grip grip = gripOfSize(size);
        const Grip resting = grip;
        grip.shrink();
        EXPECT_EQ(grip, resting);
        grip.grow();
        grip.shrink();
        EXPECT_EQ(grip, resting);
    }
}

TEST(Grip, PlacesItsMiddlePixelOnThePoint) {
    Grip grip = gripOfSize(9);
    grip.place({200.4, 99.5});
    EXPECT_EQ(grip.pixels(), (PixelRect{196, 96, 205, 105}));
    grip.grow();
    grip.place({200.4, 99.5});
    EXPECT_EQ(grip.pixels(), (PixelRect{190, 90, 211, 111}));
}

TEST(Grip, IsSeeThroughAtRestAsItsOwnColorAndSolidWhilePressed) {
    Grip grip = gripOfSize(9);
    RecordingCanvas canvas;
    grip.draw(canvas);
    grip.pressed = true;
    grip.draw(canvas);
    ASSERT_EQ(canvas.calls.size(), 2U);
    EXPECT_EQ(canvas.calls[0].shape.fill, rgb(1, 2, 3));
    EXPECT_EQ(canvas.calls[1].shape.fill, rgb(4, 5, 6));
}

TEST(Grip, HiddenOrOffTheCanvasDrawsNothing) {
    RecordingCanvas canvas;
    Grip grip = gripOfSize(9);
    grip.visible = false;
    grip.draw(canvas);
    grip.visible = true;
    grip.place({-40, 50});
    grip.draw(canvas);
    EXPECT_TRUE(canvas.calls.empty());
}

TEST(Grip, OutOfReachOfWholeNumbersCoversNoPixel) {
    for (const double far : {1e9, -1e9, 1e30, -1e300, std::numeric_limits<double>::infinity()}) {
        Grip grip = gripOfSize(9);
        grip.place({far, 10});
        EXPECT_TRUE(grip.pixels().empty()) << far;
        grip.place({10, far});
        EXPECT_TRUE(grip.pixels().empty()) << far;
    }
}

}  // namespace
}  // namespace ormala
