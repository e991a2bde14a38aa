#include "stencil/ctlRatioGrid.h"

#include <gtest/gtest.h>

#include <cmath>
#include <stdexcept>
#include <tuple>

#include "modAPI/constants.h"
#include "modAPI/rectangles.h"
#include "stencil/StencilOnSheet.h"
#include "support/OwnToolSettings.h"
#include "support/RecordingCanvas.h"

namespace ormala {
namespace {

using Kind = RecordingCanvas::Kind;

TEST(CtlRatioGrid, GripsTakeTheResolutionOfTheWorksheetAndStayOnTheirPoints) {
    StencilOnSheet stage;
    const StencilState before = stage.state();
    for (const auto& [dpi, move, side] : {std::tuple{192, 27, 19}, {144, 19, 13}, {96, 13, 9}}) {
        stage.host.meter.present = SheetScale(dpi);
        stage.tool.resize(StencilOnSheet::sheet);
        EXPECT_EQ(stage.grip(StencilGripKind::move).pixels().width(), move);
        for (const StencilGripKind kind :
             {StencilGripKind::size, StencilGripKind::sizeCorner, StencilGripKind::rotate}) {
            EXPECT_EQ(stage.grip(kind, 2).pixels().width(), side);
            const Point off = stage.grip(kind, 2).center();
            EXPECT_NEAR(off.x, stage.gripAt(kind, 2).x, 1.01);
            EXPECT_NEAR(off.y, stage.gripAt(kind, 2).y, 1.01);
        }
    }
    EXPECT_EQ(stage.state(), before) << "the tool's own coordinates are pixels of the screen";
}

TEST(CtlRatioGrid, ChangeOfTheResolutionRepaintsWhatWasAndWhatIs) {
    StencilOnSheet stage;
    const PixelRect small = stage.grip(StencilGripKind::move).pixels();
    stage.host.meter.present = SheetScale(192);
    stage.host.forget();
    stage.tool.resize(StencilOnSheet::sheet);
    EXPECT_TRUE(stage.host.repainted.meets(small));
    EXPECT_TRUE(stage.tool.footprint().meets(stage.grip(StencilGripKind::move).pixels()));
}

TEST(CtlRatioGrid, GripIsDraggedFromWhereTheHandTookItAtEveryResolution) {
    for (const int dpi : {96, 144, 192}) {
        StencilOnSheet stage;
        stage.host.meter.present = SheetScale(dpi);
        stage.tool.resize(StencilOnSheet::sheet);
        const Rect before = stage.tool.RectBound();
        const Point center = stage.grip(StencilGripKind::move).center();
        stage.dragBy({center.x + 3, center.y - 4}, {30, 20});
        EXPECT_NEAR(stage.tool.RectBound().left, before.left + 30, 1) << dpi;
        EXPECT_NEAR(stage.tool.RectBound().top, before.top + 20, 1) << dpi;
    }
}

TEST(CtlRatioGrid, StartsWithItsDefaults) {
    StencilOnSheet stage;
    EXPECT_TRUE(stage.tool.EditMode());
    EXPECT_FALSE(stage.tool.Selected());
    EXPECT_FALSE(stage.tool.HasFocus());
    EXPECT_EQ(stage.tool.RotationAngle(), 0);
    EXPECT_EQ(stage.tool.PatternList()[0].Pattern, 5);  // "Section double"
    for (std::size_t slot = 1; slot < patternSlots; ++slot) {
        EXPECT_EQ(stage.tool.PatternList()[slot].Pattern, -1);
    }
    EXPECT_EQ(stage.grip(StencilGripKind::move).borderColor, rgb(191, 191, 191));
}

TEST(CtlRatioGrid, NewStencilHasItsDefaultSizeAboutTheShiftedCentre) {
    StencilOnSheet stage;
    for (const double offset : {0.0, 24.0, -347.8}) {
        stage.tool.CenterToScreen(false, offset, false, true);
        const Rect& rect = stage.tool.RectBound();
        EXPECT_NEAR(PixelHeight(rect), 305.57, 0.01);
        EXPECT_NEAR(PixelWidth(rect), 494.43, 0.01);
        EXPECT_NEAR(RectCenter(rect).x, 500 + offset, 1e-9);
        EXPECT_NEAR(RectCenter(rect).y, 400 + offset, 1e-9);
    }
}

TEST(CtlRatioGrid, DefaultSizeFollowsTheFirstPattern) {
    StencilOnSheet stage;
    PatternList patterns;
    patterns[0].Pattern = 1;  // "Halves", as high as wide
    stage.tool.setPatternList(patterns);
    stage.tool.CenterToScreen(false, 0, false, true);
    EXPECT_NEAR(PixelRatio(stage.tool.RectBound(), false), 1, 1e-12);
    patterns[0].Pattern = -1;
    stage.tool.setPatternList(patterns);
    stage.tool.CenterToScreen(false, 0, false, true);
    EXPECT_NEAR(PixelRatio(stage.tool.RectBound(), false), 1, 1e-12);
}

TEST(CtlRatioGrid, FitsTheWorksheetWhateverGridAndOffset) {
    StencilOnSheet stage;
    stage.tool.setRotationAngle(1.0);
    stage.tool.CenterToScreen(true, 77, true, true);
    EXPECT_EQ(stage.tool.RectBound(), (Rect{0, 0, 999, 799}));
    EXPECT_EQ(stage.tool.RotationAngle(), 1.0);
}

TEST(CtlRatioGrid, CentersOnTheGridAndOnWholePixels) {
    StencilOnSheet stage({1001, 801});
    stage.settings.grid = {70, 70, 5, 5};
    stage.tool.CenterToScreen(false, 0, false, false);
    EXPECT_EQ(RectCenter(stage.tool.RectBound()), (Point{500, 400}));
    stage.tool.CenterToScreen(true, 0, false, false);
    EXPECT_EQ(RectCenter(stage.tool.RectBound()), (Point{495, 425}));
}

TEST(CtlRatioGrid, WithAllSlotsEmptyShowsGripsAndNoLines) {
    StencilOnSheet stage;
    stage.tool.setPatternList({});
    RecordingCanvas canvas;
    stage.tool.draw(canvas);
    EXPECT_EQ(canvas.count(Kind::shape), stencilGripCount);
    EXPECT_EQ(canvas.calls.size(), static_cast<std::size_t>(stencilGripCount));
}

TEST(CtlRatioGrid, WithoutEditModeShowsNoGripsAndTakesNoClicks) {
    StencilOnSheet stage;
    const Point move = stage.gripAt(StencilGripKind::move);
    stage.tool.setEditMode(false);
    EXPECT_EQ(stage.changes, 1);
    EXPECT_FALSE(stage.tool.HitTest(move.x, move.y));
    RecordingCanvas canvas;
    stage.tool.draw(canvas);
    EXPECT_EQ(canvas.count(Kind::shape), 0);
    EXPECT_EQ(canvas.count(Kind::line), 8);
    const StencilState before = stage.state();
    stage.drag(StencilGripKind::move, 0, {50, 50});
    EXPECT_EQ(stage.state(), before);
    stage.tool.setEditMode(true);
    EXPECT_TRUE(stage.tool.HitTest(move.x, move.y));
}

TEST(CtlRatioGrid, BordersTellSelectionAndFocus) {
    StencilOnSheet stage;
    stage.tool.setSelected(true);
    EXPECT_EQ(stage.changes, 1);
    EXPECT_EQ(stage.grip(StencilGripKind::size, 1).borderColor, rgb(255, 128, 128));
    EXPECT_EQ(stage.grip(StencilGripKind::rotate).borderColor, rgb(0, 192, 192));
    stage.tool.setSelected(true);
    EXPECT_EQ(stage.changes, 1);
    stage.tool.gotFocus();
    EXPECT_TRUE(stage.tool.HasFocus());
    EXPECT_EQ(stage.grip(StencilGripKind::size, 1).borderColor, rgb(0, 0, 0));
    stage.tool.LoseFocus();
    EXPECT_FALSE(stage.tool.HasFocus());
    EXPECT_EQ(stage.grip(StencilGripKind::size, 1).borderColor, rgb(255, 128, 128));
    stage.tool.setSelected(false);
    EXPECT_EQ(stage.grip(StencilGripKind::size, 1).borderColor, rgb(191, 191, 191));
}

TEST(CtlRatioGrid, UndoPutsTheGripsBackAndTellsThePanel) {
    StencilOnSheet stage;
    stage.drag(StencilGripKind::move, 0, {50, 50});
    stage.changes = 0;
    stage.tool.History().Undo();
    EXPECT_EQ(stage.changes, 1);
    const Point center = stage.grip(StencilGripKind::move).center();
    const Point expected = stage.gripAt(StencilGripKind::move);
    EXPECT_LT(std::abs(center.x - expected.x), 1.1);
    EXPECT_LT(std::abs(center.y - expected.y), 1.1);
}

TEST(CtlRatioGrid, HistoryLeavesColorAndLineOut) {
    StencilOnSheet stage;
    stage.tool.setColor(rgb(9, 8, 7));
    stage.tool.setLineWidth(4);
    EXPECT_FALSE(stage.tool.History().Add(false));
    stage.tool.setRotationAngle(0.5);
    EXPECT_TRUE(stage.tool.History().Add(false));
    stage.tool.History().Undo();
    EXPECT_EQ(stage.tool.Color(), rgb(9, 8, 7));
    EXPECT_EQ(stage.tool.LineWidth(), 4);
}

TEST(CtlRatioGrid, ThousandStepsLeaveNineHundredAndNinetyNineToUndo) {
    StencilOnSheet stage;
    for (int i = 1; i <= 1000; ++i) {
        stage.tool.setRotationAngle(i / 1000.0);
        ASSERT_TRUE(stage.tool.History().Add(false));
    }
    int undone = 0;
    while (stage.tool.History().UndoPossible()) {
        stage.tool.History().Undo();
        ++undone;
    }
    EXPECT_EQ(undone, 999);
    EXPECT_EQ(stage.tool.RotationAngle(), 1 / 1000.0);
}

TEST(CtlRatioGrid, SlotBeyondTheHistoryIsABoundsError) {
    StencilOnSheet stage;
    stage.tool.History().Initialize(StateHistory<StencilState>::slots);
    const auto fill = [&] {
        for (int i = 1; i <= StateHistory<StencilState>::slots; ++i) {
            stage.tool.setRotationAngle(i / 1000.0);
            stage.tool.History().Add(false);
        }
    };
    EXPECT_THROW(fill(), std::out_of_range);
}

TEST(CtlRatioGrid, ResizeOfTheSheetLeavesTheStencil) {
    StencilOnSheet stage;
    const Rect before = stage.tool.RectBound();
    stage.tool.resize({200, 100});
    EXPECT_EQ(stage.tool.RectBound(), before);
}

TEST(CtlRatioGrid, MouseActionRunsOnATimerAndIsDrawnUnturned) {
    StencilOnSheet stage;
    stage.tool.setRotationAngle(pi / 4);
    stage.tool.ShowMouseAction();
    EXPECT_TRUE(stage.host.timerRuns);
    EXPECT_EQ(stage.host.timerInterval, 50);
    RecordingCanvas canvas;
    stage.tool.draw(canvas);
    const auto lines = canvas.ofKind(Kind::line);
    EXPECT_EQ(lines[0].points[0].y, lines[0].points[1].y);
    for (int n = 0; n < 33; ++n) {
        ASSERT_TRUE(stage.host.timerRuns);
        stage.host.ticking->tick();
    }
    EXPECT_FALSE(stage.host.timerRuns);
    RecordingCanvas after;
    stage.tool.draw(after);
    EXPECT_NE(after.ofKind(Kind::line)[0].points[0].y, after.ofKind(Kind::line)[0].points[1].y);
}

TEST(CtlRatioGrid, PreviewShowsTheArrowAndTheUnturnedRectangle) {
    StencilOnSheet stage;
    stage.tool.setRotationAngle(pi / 4);
    stage.tool.setPreviewMouseAction(true);
    EXPECT_TRUE(stage.tool.mouseAction().linesVisible());
    EXPECT_FALSE(stage.tool.mouseAction().mouseVisible());
    RecordingCanvas canvas;
    stage.tool.draw(canvas);
    const auto lines = canvas.ofKind(Kind::line);
    EXPECT_EQ(lines[0].points[0].y, lines[0].points[1].y);
    stage.tool.setPreviewMouseAction(false);
    EXPECT_FALSE(stage.tool.mouseAction().linesVisible());
}

TEST(CtlRatioGrid, ArrowOfThePreviewFollowsTheStencil) {
    StencilOnSheet stage;
    stage.tool.setPreviewMouseAction(true);
    stage.tool.keyDown(key::right, modifier::ctrl);
    const Rect& bound = stage.tool.RectBound();
    const Line arrow{bound.left, bound.top, bound.right, bound.bottom};
    EXPECT_EQ(stage.tool.mouseAction().lines()[0], arrow);
    stage.tool.ShowMouseAction();
    stage.tool.setRectBound({100, 200, 300, 500});
    EXPECT_EQ(stage.tool.mouseAction().lines()[0], (Line{100, 200, 300, 500}));
}

TEST(CtlRatioGrid, EndOfThePreviewLeavesARunningActionAlone) {
    StencilOnSheet stage;
    stage.tool.setPreviewMouseAction(true);
    stage.tool.ShowMouseAction();
    stage.tool.setPreviewMouseAction(false);
    EXPECT_TRUE(stage.tool.mouseAction().linesVisible());
    EXPECT_TRUE(stage.tool.mouseAction().running());
}

TEST(CtlRatioGrid, RemovedToolStopsItsTimer) {
    FakeToolHost host;
    const OwnToolSettings settings;
    const SpecialRatios ratios([](int, std::string_view text) { return std::string(text); }, {});
    {
        ctlRatioGrid tool(host, settings, ratios);
        tool.ShowMouseAction();
        EXPECT_TRUE(host.timerRuns);
    }
    EXPECT_FALSE(host.timerRuns);
}

TEST(CtlRatioGrid, StencilOfAnySizeAndPlaceCanBeDrawnTurnedAndMoved) {
    for (const double far : {1e9, 1e100, 1e300}) {
        for (const Rect rect : {Rect{-far, -far, far, far}, Rect{far, far, 1.1 * far, 1.2 * far},
                                Rect{0, 0, far, 300}}) {
            StencilOnSheet stage;
            stage.tool.setRectBound(rect);
            stage.tool.setRotationAngle(1.0);
            for (const int key : {key::left, key::down, key::pageUp}) {
                stage.tool.keyDown(key, 0);
            }
            stage.hover({500, 400});
            stage.drag(StencilGripKind::move, 0, {5, 5});
            RecordingCanvas canvas;
            stage.tool.draw(canvas);
            EXPECT_LT(canvas.farthest(), 40000) << far;
            EXPECT_LT(canvas.calls.size(), 200U) << far;
            EXPECT_LT(stage.tool.footprint().rects().size(), 40U) << far;
            stage.tool.keyDown(key::home, 0);
        }
    }
}

}  // namespace
}  // namespace ormala
