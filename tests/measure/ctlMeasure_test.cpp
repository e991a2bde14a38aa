#include "measure/ctlMeasure.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "measure/MeasureOnSheet.h"
#include "modAPI/constants.h"
#include "support/ManualLanguage.h"
#include "support/OwnToolSettings.h"
#include "support/RecordingCanvas.h"

namespace ormala {
namespace {

using enum MeasureGrip;
using Kind = RecordingCanvas::Kind;

RecordingCanvas drawn(const ctlMeasure& tool) {
    RecordingCanvas canvas;
    tool.draw(canvas);
    return canvas;
}

TEST(CtlMeasure, StartsWithItsDefaults) {
    FakeToolHost host;
    const OwnToolSettings settings;
    const ManualMeasures others;
    const ctlMeasure tool(host, settings, others);
    EXPECT_TRUE(tool.Connected());
    EXPECT_TRUE(tool.LabelsLengthVisible());
    EXPECT_TRUE(tool.LabelsAngleVisible());
    EXPECT_EQ(tool.AngleMode(), 0);
    EXPECT_EQ(tool.LengthMode(), 0);
    EXPECT_EQ(tool.LengthFactor(), 1.0);
    EXPECT_EQ(tool.LengthUnit(), "m");
    EXPECT_FALSE(tool.Selected());
    EXPECT_FALSE(tool.HasFocus());
}

TEST(CtlMeasure, DefaultPropertiesShowAllLabelsAndConnectTheLines) {
    MeasureOnSheet stage(MeasureOnSheet::sheet, false);
    stage.tool.setLabelsLengthVisible(false);
    stage.tool.setLabelsAngleVisible(false);
    stage.tool.SetDefaultProperties();
    EXPECT_TRUE(stage.tool.LabelsLengthVisible());
    EXPECT_TRUE(stage.tool.LabelsAngleVisible());
    EXPECT_TRUE(stage.tool.Connected());
}

TEST(CtlMeasure, NewToolStandsAboutTheShiftedCentre) {
    MeasureOnSheet stage({1001, 801});
    stage.tool.CenterToScreen(false, 24, true);
    EXPECT_EQ(stage.tool.LineA(), (Line{524 - 31, 424 - 199, 524, 424}));
    EXPECT_EQ(stage.tool.LineB(), (Line{524 + 97, 424 + 78, 524, 424}));
    stage.tool.setConnected(false);
    stage.tool.CenterToScreen(false, 0, true);
    EXPECT_EQ(stage.tool.LineB(), (Line{597, 478, 510, 400}));
}

TEST(CtlMeasure, CenteringKeepsTheShapeAndCanAlignToTheGrid) {
    MeasureOnSheet stage;
    stage.settings.grid = {70, 70, 5, 5};
    stage.tool.setLineA({10, 20, 110, 30});
    stage.tool.setLineB({50, 60, 110, 30});
    stage.tool.CenterToScreen(true, 0, false);
    EXPECT_EQ(stage.tool.LineA(), (Line{395, 415, 495, 425}));
    EXPECT_EQ(stage.tool.LineB(), (Line{435, 455, 495, 425}));
}

TEST(CtlMeasure, ConnectingMovesTheSecondEndOfLineBAndPartingMovesNothing) {
    MeasureOnSheet stage(MeasureOnSheet::sheet, false);
    const Line a = stage.tool.LineA();
    stage.tool.setConnected(true);
    EXPECT_EQ(stage.tool.LineA(), a);
    EXPECT_EQ(stage.tool.LineB(), (Line{597, 478, 500, 400}));
    stage.tool.setConnected(false);
    EXPECT_EQ(stage.tool.LineA(), a);
    EXPECT_EQ(stage.tool.LineB(), (Line{597, 478, 500, 400}));
}

TEST(CtlMeasure, ConnectionDecidesWhichGripsAreThere) {
    MeasureOnSheet stage;
    EXPECT_EQ(drawn(stage.tool).count(Kind::shape), 3);
    EXPECT_TRUE(stage.grip(intersect).inUse());
    stage.tool.setConnected(false);
    EXPECT_EQ(drawn(stage.tool).count(Kind::shape), 6);
    EXPECT_FALSE(stage.grip(intersect).inUse());
    EXPECT_EQ(drawn(stage.tool).count(Kind::bezier), 0);
}

TEST(CtlMeasure, GripsLieCentredOnTheirPoints) {
    MeasureOnSheet stage(MeasureOnSheet::sheet, false);
    EXPECT_EQ(stage.grip(endA1).pixels(), (PixelRect{465, 197, 474, 206}));
    EXPECT_EQ(stage.grip(endB2).pixels(), (PixelRect{506, 396, 515, 405}));
    EXPECT_EQ(stage.grip(centerA).pixels(), (PixelRect{481, 297, 490, 306}));  // (484.5, 300.5)
}

TEST(CtlMeasure, LinesAreDrawnWithTheirLastPixel) {
    MeasureOnSheet stage;
    stage.tool.setColorA(rgb(1, 2, 3));
    stage.tool.setColorB(rgb(4, 5, 6));
    stage.tool.setLineWidth(3);
    const auto lines = drawn(stage.tool).ofKind(Kind::line);
    ASSERT_EQ(lines.size(), 4U);
    EXPECT_EQ(lines[0].pen, (Pen{rgb(1, 2, 3), 3}));
    EXPECT_EQ(lines[0].points, (std::vector<PixelPoint>{{469, 201}, {500, 400}}));
    EXPECT_EQ(lines[1].points, (std::vector<PixelPoint>{{500, 400}, {501, 400}}));
    EXPECT_EQ(lines[2].pen, (Pen{rgb(4, 5, 6), 3}));
    EXPECT_EQ(lines[2].points, (std::vector<PixelPoint>{{597, 478}, {500, 400}}));
    EXPECT_EQ(lines[3].points, (std::vector<PixelPoint>{{500, 400}, {501, 400}}));
}

TEST(CtlMeasure, InTemplateModeOnlyTheLinesRemain) {
    for (const bool connected : {true, false}) {
        MeasureOnSheet stage(MeasureOnSheet::sheet, connected);
        stage.tool.setEditMode(false);
        EXPECT_EQ(stage.changes, 1);
        const RecordingCanvas canvas = drawn(stage.tool);
        EXPECT_EQ(canvas.count(Kind::line), 4);
        EXPECT_EQ(canvas.calls.size(), 4U);
        stage.tool.setConnected(!connected);
        EXPECT_EQ(drawn(stage.tool).calls.size(), 4U);
        EXPECT_FALSE(stage.tool.HitTest(469, 201));
        stage.tool.setEditMode(true);
        EXPECT_TRUE(stage.tool.HitTest(469, 201));
        EXPECT_GT(drawn(stage.tool).count(Kind::text), 0);
    }
}

TEST(CtlMeasure, LabelsLieBeneathTheGripsAndTheReadOutAbove) {
    MeasureOnSheet stage;
    stage.press(stage.gripAt(intersect));
    stage.dragTo({510, 410});
    const auto calls = drawn(stage.tool).calls;
    EXPECT_EQ(calls.front().kind, Kind::bezier);
    EXPECT_EQ(calls.back().text, "X = 510  Y = 410");
    const auto grip =
        std::ranges::find_if(calls, [](const auto& call) { return call.kind == Kind::shape; });
    const auto length = std::ranges::find_if(
        calls, [](const auto& call) { return call.text.find("a:b") != std::string::npos; });
    EXPECT_LT(length - calls.begin(), grip - calls.begin());
}

TEST(CtlMeasure, NumberAndUnitsShowInTheLabels) {
    MeasureOnSheet stage;
    stage.tool.setLineA({0, 0, 99, 0});
    stage.tool.setLineB({0, 0, 99, 0});
    stage.tool.setNumber(12);
    EXPECT_EQ(stage.tool.labels().lblLengthA().Caption(), "12 a = 100.0\r\na:b = 1.000");
    stage.tool.setLengthMode(2);
    stage.tool.setLengthFactor(5);
    stage.tool.setLengthUnit("km");
    stage.tool.setAngleMode(1);
    EXPECT_EQ(stage.tool.labels().lblLengthA().Caption(), "12 a = 100.0\r\na:b = 1.000");
    stage.tool.PositionGrips();
    EXPECT_EQ(stage.tool.labels().lblLengthA().Caption(), "12 a = 5.0 km\r\na:b = 1.000");
    EXPECT_EQ(stage.tool.labels().lblAngle2().Caption(), "12\r\n0.0000 rad");
    EXPECT_EQ(stage.tool.LengthMode(), 2);
    EXPECT_EQ(stage.tool.LengthFactor(), 5);
    EXPECT_EQ(stage.tool.LengthUnit(), "km");
    EXPECT_EQ(stage.tool.AngleMode(), 1);
    EXPECT_EQ(stage.tool.Number(), 12);
}

TEST(CtlMeasure, QuantitiesAreThoseOfItsLines) {
    MeasureOnSheet stage;
    stage.tool.setLineA({0, 0, 10, 0});
    stage.tool.setLineB({0, 0, 0, -10});
    EXPECT_EQ(stage.tool.PixelLengthA(), 11);
    EXPECT_EQ(stage.tool.PixelLengthB(), 11);
    EXPECT_EQ(stage.tool.RatioAToB(), 1);
    EXPECT_EQ(stage.tool.RatioBToA(), 1);
    EXPECT_EQ(stage.tool.AngleAToB(), halfPi);
    EXPECT_NEAR(stage.tool.AngleBToA(), threeHalvesPi, 1e-14);
    EXPECT_NEAR(stage.tool.AngleVertA(), halfPi, 1e-13);
    EXPECT_NEAR(stage.tool.AngleVertB(), 0, 1e-13);
    EXPECT_EQ(stage.tool.IntersectPoint(), (Point{10, 0}));
}

TEST(CtlMeasure, BordersTellSelectionAndFocus) {
    MeasureOnSheet stage;
    EXPECT_EQ(stage.grip(endA1).borderColor, rgb(191, 191, 191));
    stage.tool.setSelected(true);
    EXPECT_EQ(stage.changes, 1);
    EXPECT_EQ(stage.grip(endA1).borderColor, rgb(128, 128, 255));
    stage.tool.setSelected(true);
    EXPECT_EQ(stage.changes, 1);
    stage.tool.gotFocus();
    EXPECT_TRUE(stage.tool.HasFocus());
    EXPECT_EQ(stage.grip(endA1).borderColor, rgb(0, 15, 255));
    EXPECT_EQ(stage.grip(intersect).borderColor, rgb(191, 0, 255));
    stage.tool.setConnected(false);
    EXPECT_EQ(stage.grip(centerB).borderColor, rgb(255, 0, 0));
    stage.tool.LoseFocus();
    EXPECT_FALSE(stage.tool.HasFocus());
    EXPECT_EQ(stage.grip(endB1).borderColor, rgb(255, 128, 128));
    stage.tool.setSelected(false);
    EXPECT_EQ(stage.grip(endB1).borderColor, rgb(191, 191, 191));
}

TEST(CtlMeasure, UndoOfAConnectionRestoresTheSecondEndOfLineBExactly) {
    MeasureOnSheet stage(MeasureOnSheet::sheet, false);
    stage.tool.setLineB({597.125, 478, 510.0625, 399.3});
    stage.tool.History().Add(false);
    const MeasureState before = stage.tool.state();
    stage.tool.setConnected(true);
    stage.tool.History().Add(false);
    const MeasureState after = stage.tool.state();
    stage.changes = 0;
    stage.tool.History().Undo();
    EXPECT_EQ(stage.tool.state(), before);
    EXPECT_EQ(stage.changes, 1);
    EXPECT_TRUE(stage.grip(endB2).inUse());
    EXPECT_FALSE(stage.grip(intersect).inUse());
    EXPECT_EQ(stage.grip(endB2).pixels(), (PixelRect{506, 395, 515, 404}));
    stage.tool.History().Redo();
    EXPECT_EQ(stage.tool.state(), after);
    EXPECT_TRUE(stage.grip(intersect).inUse());
}

TEST(CtlMeasure, HistoryLeavesColorsAndLabelsOut) {
    MeasureOnSheet stage;
    stage.tool.setColorA(rgb(9, 8, 7));
    stage.tool.setLineWidth(4);
    stage.tool.setNumber(5);
    stage.tool.setLengthMode(1);
    stage.tool.setLabelsAngleVisible(false);
    EXPECT_FALSE(stage.tool.History().Add(false));
    stage.tool.setLineA({1, 2, 3, 4});
    EXPECT_TRUE(stage.tool.History().Add(false));
    stage.tool.History().Undo();
    EXPECT_EQ(stage.tool.ColorA(), rgb(9, 8, 7));
    EXPECT_EQ(stage.tool.LineWidth(), 4);
    EXPECT_EQ(stage.tool.Number(), 5);
    EXPECT_FALSE(stage.tool.LabelsAngleVisible());
}

TEST(CtlMeasure, ThousandStepsLeaveNineHundredAndNinetyNineToUndo) {
    MeasureOnSheet stage;
    for (int i = 1; i <= StateHistory<MeasureState>::slots; ++i) {
        stage.tool.setLineA({static_cast<double>(i), 0, 0, 0});
        ASSERT_TRUE(stage.tool.History().Add(false));
    }
    int undone = 0;
    while (stage.tool.History().UndoPossible()) {
        stage.tool.History().Undo();
        ++undone;
    }
    EXPECT_EQ(undone, 999);
    EXPECT_EQ(stage.tool.LineA().x1, 1);
}

TEST(CtlMeasure, ResizeOfTheSheetLeavesTheLines) {
    MeasureOnSheet stage;
    const MeasureState before = stage.tool.state();
    stage.tool.resize({200, 100});
    EXPECT_EQ(stage.tool.state(), before);
}

TEST(CtlMeasure, LinesOfAnySizeAndPlaceCanBeDrawnAndDragged) {
    for (const double far : {1e5, 1e9, 1e300, 1.7e308}) {
        for (const bool connected : {true, false}) {
            MeasureOnSheet stage;
            stage.tool.setConnected(connected);
            stage.tool.setLineA({-far, -far, far, far});
            stage.tool.setLineB({400, 300, far, far / 2});
            stage.drag(connected ? endB1 : centerA, {30, 40});
            stage.drag(endB1, {5, -5}, modifier::shift);
            const RecordingCanvas canvas = drawn(stage.tool);
            EXPECT_GE(canvas.count(Kind::line), 1) << far;
            EXPECT_LT(canvas.farthest(), 40000) << far;
            EXPECT_LT(canvas.calls.size(), 80U) << far;
            EXPECT_LT(stage.tool.footprint().rects().size(), 80U) << far;
            stage.tool.keyDown(key::home, 0);
        }
    }
}

TEST(CtlMeasure, VisiblePartOfAHugeLineIsExact) {
    MeasureOnSheet stage;
    stage.tool.setLineA({-1e300, -1e300, 1e300, 1e300});
    const auto lines = drawn(stage.tool).ofKind(Kind::line);
    ASSERT_FALSE(lines.empty());
    EXPECT_EQ(lines[0].points[0].x, lines[0].points[0].y);
    EXPECT_EQ(lines[0].points[1].x, lines[0].points[1].y);
    EXPECT_LE(lines[0].points[0].x, 0);
    EXPECT_GE(lines[0].points[1].x, 1000);
}

TEST(CtlMeasure, SaysWhatItMeasuresAndWhereItsGripsAre) {
    const ManualLanguage english(languageEnglish);
    MeasureOnSheet stage;
    stage.tool.setNumber(4);
    stage.tool.setLineA({100, 50, 100, 149});
    stage.tool.setLineB({149, 149, 100, 149});
    const SpokenTool said = stage.tool.spoken(1);
    EXPECT_EQ(said.name, "Measurement Tool 4");
    EXPECT_EQ(said.value, "a = 100.0, b = 50.0, a:b = 2.000, ab = 270.00°");
    EXPECT_EQ(said.description, "X = 100  Y = 149");
    // Two free ends and the common point.
    ASSERT_EQ(said.grips, 3);
    const auto grips = stage.tool.spokenGrips(1);
    ASSERT_EQ(grips.size(), 3U);
    EXPECT_EQ(grips[0].name, "Measurement Tool 4, first end of line a");
    EXPECT_EQ(grips[0].value, "X = 100  Y = 50");
    EXPECT_EQ(grips[0].place, stage.grip(endA1).pixels());
    EXPECT_EQ(grips[1].value, "X = 149  Y = 149");
    EXPECT_EQ(grips[2].name, "Measurement Tool 4, common point of both lines");
    stage.tool.setConnected(false);
    EXPECT_EQ(stage.tool.spoken(1).grips, 6);
    EXPECT_EQ(stage.tool.spokenGrips(1)[4].name, "Measurement Tool 4, center of line a");
}

}  // namespace
}  // namespace ormala
