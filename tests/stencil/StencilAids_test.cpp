#include "stencil/StencilAids.h"

#include <gtest/gtest.h>

#include <cmath>

#include "modAPI/constants.h"
#include "support/FakeTextMeter.h"
#include "support/RecordingCanvas.h"
#include "support/stencilGripIndex.h"

namespace ormala {
namespace {

using Kind = RecordingCanvas::Kind;

constexpr PixelSize sheet{1000, 800};
constexpr double half = 1280.6248474865697;  // the sheet's diagonal

StencilState stencil(double angle = 0) {
    StencilState state;
    state.RectBound = {400, 300, 600, 500};
    state.RotationAngle = angle;
    return state;
}

Grip lookOf(StencilGrip grip) {
    return makeStencilGrips()[static_cast<std::size_t>(indexOfStencilGrip(grip.kind, grip.number))];
}

/// The aids of a drag of that grip that has come to `at`.
StencilAids aidsOf(StencilGrip grip, const StencilState& state, const Point& at,
                   bool lines = true) {
    StencilAids aids;
    aids.resize(sheet);
    aids.begin(grip, lookOf(grip), stencil(), lines);
    aids.update(state, at, FakeTextMeter());
    return aids;
}

bool isNear(const Line& a, const Line& b) {
    return std::abs(a.x1 - b.x1) < 1e-6 && std::abs(a.y1 - b.y1) < 1e-6 &&
           std::abs(a.x2 - b.x2) < 1e-6 && std::abs(a.y2 - b.y2) < 1e-6;
}

TEST(StencilAids, ShowNothingBetweenDrags) {
    StencilAids aids;
    aids.resize(sheet);
    RecordingCanvas canvas;
    aids.drawBelowGrips(canvas);
    aids.drawAboveGrips(canvas);
    EXPECT_TRUE(canvas.calls.empty());
    DirtyRegion region;
    aids.addTo(region, {0, 0, 1000, 800});
    EXPECT_TRUE(region.empty());
}

TEST(StencilAids, MoveShowsTheWayFromTheCentreAtThePress) {
    StencilState moved = stencil();
    moved.RectBound = {450, 320, 650, 520};
    const StencilAids aids = aidsOf({StencilGripKind::move, 0}, moved, {550, 420});
    ASSERT_TRUE(aids.lineHelper()[0]);
    EXPECT_EQ(*aids.lineHelper()[0], (Line{550, 420, 500, 400}));
    EXPECT_FALSE(aids.lineHelper()[1]);
    EXPECT_FALSE(aids.lineHelper()[2]);
    EXPECT_FALSE(aids.shpCircle());
}

TEST(StencilAids, OtherGripsShowTheLineThroughCentreAndGripBothWays) {
    const StencilAids aids = aidsOf({StencilGripKind::size, 1}, stencil(), {600, 400});
    ASSERT_TRUE(aids.lineHelper()[0]);
    EXPECT_TRUE(isNear(*aids.lineHelper()[0], {500 + half, 400, 500 - half, 400}));
    EXPECT_FALSE(aids.lineHelper()[1]);
    EXPECT_FALSE(aids.shpCircle());
    const StencilAids corner = aidsOf({StencilGripKind::sizeCorner, 0}, stencil(), {600, 300});
    ASSERT_TRUE(corner.lineHelper()[0]);
    const double side = half / std::sqrt(2);
    EXPECT_TRUE(isNear(*corner.lineHelper()[0], {500 + side, 400 - side, 500 - side, 400 + side}));
}

TEST(StencilAids, RotationShowsBothAxesAndTheCircleOfTheRotateGrips) {
    const StencilState turned = stencil(pi / 6);
    const StencilAids aids = aidsOf({StencilGripKind::rotate, 0}, turned, {550, 330});
    ASSERT_TRUE(aids.lineHelper()[1] && aids.lineHelper()[2]);
    const double c = std::cos(pi / 6) * half;
    const double s = std::sin(pi / 6) * half;
    EXPECT_TRUE(isNear(*aids.lineHelper()[1], {500 + c, 400 - s, 500 - c, 400 + s}));
    EXPECT_TRUE(isNear(*aids.lineHelper()[2], {500 - s, 400 - c, 500 + s, 400 + c}));
    // cos(pi/4) * (201, 201) long, about (500, 400)
    ASSERT_TRUE(aids.shpCircle());
    EXPECT_EQ(*aids.shpCircle(), (PixelRect{400, 300, 601, 501}));
}

TEST(StencilAids, LinesAndCircleOnlyWhereTheyAreWanted) {
    const StencilAids aids = aidsOf({StencilGripKind::rotate, 0}, stencil(), {550, 330}, false);
    for (const auto& line : aids.lineHelper()) {
        EXPECT_FALSE(line);
    }
    EXPECT_FALSE(aids.shpCircle());
    EXPECT_TRUE(aids.lblInfo().visible());
}

TEST(StencilAids, LinesTakeTheColorOfTheGrip) {
    const StencilGrip grip{StencilGripKind::rotate, 2};
    const StencilAids aids = aidsOf(grip, stencil(), {450, 450});
    RecordingCanvas canvas;
    aids.drawBelowGrips(canvas);
    EXPECT_EQ(canvas.count(Kind::line), 3);
    EXPECT_EQ(canvas.count(Kind::shape), 1);
    for (const auto& call : canvas.calls) {
        if (call.kind == Kind::line) {
            EXPECT_EQ(call.pen, (Pen{lookOf(grip).color, 2}));
        } else {
            EXPECT_EQ(call.shape.kind, ShapeKind::oval);
            EXPECT_EQ(call.shape.fill, std::nullopt);
        }
    }
}

TEST(StencilAids, ReadOutFitsItsTextAndStandsBesideTheGrip) {
    StencilAids aids = aidsOf({StencilGripKind::size, 1}, stencil(), {600, 400});
    EXPECT_EQ(aids.lblInfo().Caption(), "");
    aids.setText("abc", FakeTextMeter());
    aids.update(stencil(), {600, 400}, FakeTextMeter());
    EXPECT_EQ(aids.lblInfo().box(), (PixelRect{566, 391, 588, 408}));
    RecordingCanvas canvas;
    aids.drawAboveGrips(canvas);
    EXPECT_EQ(canvas.count(Kind::text), 9);
}

TEST(StencilAids, HideEndsThemAll) {
    StencilAids aids = aidsOf({StencilGripKind::rotate, 0}, stencil(), {550, 330});
    aids.hide();
    EXPECT_FALSE(aids.lineHelper()[0] || aids.lineHelper()[1] || aids.lineHelper()[2]);
    EXPECT_FALSE(aids.shpCircle());
    EXPECT_FALSE(aids.lblInfo().visible());
}

TEST(StencilAids, StencilOfAnySizeStaysWithinPixels) {
    for (const double far : {1e5, 1e9, 1e300}) {
        for (const double at : {0.0, far}) {
            StencilState huge;
            huge.RectBound = {at - far, at - far, at + far, at + far};
            StencilAids aids;
            aids.resize(sheet);
            aids.begin({StencilGripKind::rotate, 0}, lookOf({StencilGripKind::rotate, 0}), huge,
                       true);
            aids.update(huge, {at + far, at - far}, FakeTextMeter());
            aids.setText("abc", FakeTextMeter());
            RecordingCanvas canvas;
            aids.drawBelowGrips(canvas);
            aids.drawAboveGrips(canvas);
            EXPECT_LT(canvas.farthest(), 1000000) << far;
            DirtyRegion region;
            aids.addTo(region, {0, 0, 1000, 800});
            EXPECT_LT(region.rects().size(), 100U);
        }
    }
}

}  // namespace
}  // namespace ormala
