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

/// A grip of that design size on (200, 100) at a resolution.
Grip gripAt(int dpi, int size) {
    Grip grip = gripOfSize(static_cast<float>(size));
    grip.size = size;
    grip.setScale(SheetScale(dpi));
    grip.place({200, 100});
    return grip;
}

struct SizeAtDpi {
    int dpi;
    int size;
    int resting;
    int grown;
    double reach;
};

constexpr SizeAtDpi sizesAtDpi[] = {
    {96, 9, 9, 21, 6},     {96, 13, 13, 25, 6},  {115, 9, 11, 25, 7},   {120, 9, 11, 27, 8},
    {120, 13, 17, 33, 8},  {144, 9, 13, 31, 9},  {144, 13, 19, 37, 9},  {192, 9, 19, 43, 12},
    {192, 13, 27, 51, 12}, {240, 9, 23, 53, 15}, {240, 13, 33, 63, 15},
};

TEST(Grip, KeepsItsSizeToTheHandAtEveryResolutionWithAPixelInTheMiddle) {
    for (const SizeAtDpi& expected : sizesAtDpi) {
        Grip grip = gripAt(expected.dpi, expected.size);
        const int half = expected.resting / 2;
        EXPECT_EQ(grip.pixels(),
                  (PixelRect{200 - half, 100 - half, 200 + half + 1, 100 + half + 1}))
            << expected.dpi;
        EXPECT_FALSE(grip.grown()) << expected.dpi;
        EXPECT_EQ(grip.reach(), expected.reach);
        grip.grow();
        EXPECT_TRUE(grip.grown()) << expected.dpi;
        EXPECT_EQ(grip.pixels().width(), expected.grown) << expected.dpi;
        EXPECT_EQ(grip.pixels().right - 201, 200 - grip.pixels().left);
        EXPECT_EQ(grip.reach(), 0);
        grip.shrink();
        EXPECT_EQ(grip, gripAt(expected.dpi, expected.size));
    }
}

TEST(Grip, StaysGrownWhenTheResolutionChanges) {
    Grip grip = gripAt(96, 9);
    grip.grow();
    grip.setScale(SheetScale(192));
    EXPECT_TRUE(grip.grown());
    EXPECT_EQ(grip.pixels().width(), 43);
    grip.setScale(SheetScale(96));
    EXPECT_EQ(grip.pixels().width(), 21);
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
