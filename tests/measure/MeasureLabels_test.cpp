#include "measure/MeasureLabels.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

#include "reference/ReferenceTable.h"
#include "support/FakeTextMeter.h"
#include "support/RecordingCanvas.h"

namespace ormala {
namespace {

using Kind = RecordingCanvas::Kind;

constexpr MeasureState connected{true, {469, 201, 500, 400}, {597, 478, 500, 400}};
constexpr MeasureState separate{false, {469, 201, 500, 400}, {597, 478, 510, 400}};

MeasureLabels labelsOf(const MeasureState& state, const MeasureSigns& signs = {},
                       bool editMode = true) {
    MeasureLabels labels;
    labels.arrange(state, signs, editMode, {}, FakeTextMeter());
    return labels;
}

/// Which angle labels are shown, as the sum of their numbers.
int shownAngles(const MeasureLabels& labels) {
    return (labels.lblAngle1().visible() ? 1 : 0) + (labels.lblAngle2().visible() ? 2 : 0);
}

TEST(MeasureLabels, ConnectedLinesShowTheSmallerAngleOnly) {
    MeasureState state{true, {600, 400, 500, 400}, {500, 300, 500, 400}};
    EXPECT_EQ(shownAngles(labelsOf(state)), 2);
    EXPECT_EQ(labelsOf(state).lblAngle2().Caption(), "0\r\n90.00°");
    std::swap(state.LineA, state.LineB);
    EXPECT_EQ(shownAngles(labelsOf(state)), 1);
    EXPECT_EQ(labelsOf(state).lblAngle1().Caption(), "0\r\n90.00°");
}

TEST(MeasureLabels, CircleGrowsWithTheResolutionAndTheAnglesStandOnIt) {
    for (const auto& [dpi, diameter] : {std::pair{96, 61}, {144, 91}, {192, 123}}) {
        FakeTextMeter meter;
        meter.present = SheetScale(dpi);
        MeasureLabels labels;
        // The point opposite to the bisector lies straight above.
        const MeasureState state{true, {600, 500, 500, 400}, {400, 500, 500, 400}};
        labels.arrange(state, {}, true, {}, meter);
        ASSERT_TRUE(labels.shpCircle());
        const int half = diameter / 2;
        EXPECT_EQ(*labels.shpCircle(), (PixelRect{500 - half, 400 - half, 501 + half, 401 + half}));
        const bool first = labels.lblAngle1().visible();
        const ctlLabel& shown = first ? labels.lblAngle1() : labels.lblAngle2();
        EXPECT_NEAR(shown.box().top, 400 + diameter / 2.0, 1);
    }
}

TEST(MeasureLabels, EqualAnglesShowTheSecondLabelOnly) {
    const MeasureState straight{true, {600, 400, 500, 400}, {300, 400, 500, 400}};
    ASSERT_EQ(AngleAToB(straight), AngleBToA(straight));
    EXPECT_EQ(shownAngles(labelsOf(straight)), 2);
}

TEST(MeasureLabels, SeparateLinesShowBothAnglesBetweenTheirMiddles) {
    const MeasureLabels labels = labelsOf({false, {100, 100, 300, 100}, {100, 300, 300, 500}});
    EXPECT_EQ(shownAngles(labels), 1);
    EXPECT_FALSE(labels.shpCircle());
    const PixelRect& box = labels.lblAngle1().box();
    EXPECT_LE(std::abs(box.left + box.right - 2 * 200), 1);
    EXPECT_LE(std::abs(box.top + box.bottom - 2 * 250), 1);
    EXPECT_EQ(labels.lblAngle1().Caption(), "0\r\n45.00° (315.00°)");
    EXPECT_EQ(labels.lblAngle1().Alignment(), Alignment::center);
}

TEST(MeasureLabels, CircleStandsAboutTheCommonPoint) {
    EXPECT_EQ(labelsOf(connected).shpCircle(), (PixelRect{470, 370, 531, 431}));
}

TEST(MeasureLabels, CircleIsDottedAndThroughItsBox) {
    RecordingCanvas canvas;
    labelsOf(connected).draw(canvas);
    const auto curves = canvas.ofKind(Kind::bezier);
    ASSERT_EQ(curves.size(), 1U);
    EXPECT_EQ(curves[0].pen, (Pen{rgb(225, 136, 255), 0}));
    ASSERT_EQ(curves[0].points.size(), 13U);
    for (const PixelPoint& p : {PixelPoint{470, 400}, {530, 400}, {500, 370}, {500, 430}}) {
        EXPECT_EQ(std::ranges::count(curves[0].points, p), p.x == 530 ? 2 : 1);
    }
}

TEST(MeasureLabels, SwitchesTurnThemOnAndOff) {
    MeasureSigns signs;
    signs.LabelsLengthVisible = false;
    EXPECT_FALSE(labelsOf(connected, signs).lblLengthA().visible());
    EXPECT_FALSE(labelsOf(connected, signs).lblLengthB().visible());
    EXPECT_TRUE(labelsOf(connected, signs).shpCircle());
    EXPECT_NE(shownAngles(labelsOf(connected, signs)), 0);
    signs.LabelsLengthVisible = true;
    signs.LabelsAngleVisible = false;
    EXPECT_TRUE(labelsOf(connected, signs).lblLengthA().visible());
    EXPECT_TRUE(labelsOf(connected, signs).lblLengthB().visible());
    EXPECT_FALSE(labelsOf(connected, signs).shpCircle());
    EXPECT_EQ(shownAngles(labelsOf(connected, signs)), 0);
    EXPECT_EQ(shownAngles(labelsOf(separate, signs)), 0);
}

TEST(MeasureLabels, OutsideEditModeNothingIsShown) {
    for (const MeasureState& state : {connected, separate}) {
        RecordingCanvas canvas;
        const MeasureLabels labels = labelsOf(state, {}, false);
        labels.draw(canvas);
        EXPECT_TRUE(canvas.calls.empty());
        DirtyRegion region;
        labels.addTo(region);
        EXPECT_TRUE(region.empty());
    }
}

TEST(MeasureLabels, LengthsTakeTheColorOfTheirLineUnlessItIsLight) {
    MeasureSigns signs;
    signs.ColorA = rgb(255, 0, 0);
    signs.ColorB = rgb(255, 255, 0);
    const MeasureLabels labels = labelsOf(connected, signs);
    EXPECT_EQ(labels.lblLengthA().ForeColor(), rgb(255, 0, 0));
    EXPECT_EQ(labels.lblLengthB().ForeColor(), rgb(0, 0, 0));
    EXPECT_EQ(labels.lblAngle1().ForeColor(), rgb(0, 0, 0));
    EXPECT_EQ(labels.lblLengthA().BackColor(), rgb(255, 255, 255));
}

TEST(MeasureLabels, FarPlacesNeitherOverflowNorFail) {
    for (const double far : {1e6, 1e9, 1e300, 1.7e308}) {
        for (const bool joined : {true, false}) {
            for (const Line& b : {Line{-far, far, -far, -far}, Line{0, 0, far, far}}) {
                const MeasureLabels labels = labelsOf({joined, {-far, -far, far, far}, b});
                RecordingCanvas canvas;
                labels.draw(canvas);
                EXPECT_LT(canvas.farthest(), 2000) << far;
                DirtyRegion region;
                labels.addTo(region);
                EXPECT_LT(region.rects().size(), 10U);
            }
        }
    }
}

// Names of the columns of the reference table.
enum Column : std::size_t {
    isConnected = 0,
    firstNumber = 1,
    number = 9,
    angleMode,
    lengthMode,
    factor,
    unit,
    labelA = 22,
    labelB = 26,
    shown = 30,
    circleLeft,
    circleTop,
    label1,
    label2 = 37,
};

std::string onOneLine(std::string text) {
    const auto at = text.find("\r\n");
    return at == std::string::npos ? text : text.replace(at, 2, "|");
}

char letterOf(Alignment alignment) {
    if (alignment == Alignment::center) {
        return 'c';
    }
    return alignment == Alignment::left ? 'l' : 'r';
}

void expectLabel(const ctlLabel& label, const ReferenceTable::Row& row, std::size_t at) {
    EXPECT_EQ(onOneLine(label.Caption()), row[at]);
    EXPECT_EQ(label.box().left, ReferenceTable::whole(row[at + 1])) << row[at];
    EXPECT_EQ(label.box().top, ReferenceTable::whole(row[at + 2])) << row[at];
    EXPECT_EQ(letterOf(label.Alignment()), row[at + 3][0]) << row[at];
}

TEST(MeasureLabels, LayoutAgreesWithTheReference) {
    const ReferenceTable table("measure_layouts.csv");
    ASSERT_GT(table.rows().size(), 2000U);
    for (const auto& row : table.rows()) {
        const auto n = ReferenceTable::numbers(row);
        const MeasureState state{
            n[isConnected] != 0, {n[1], n[2], n[3], n[4]}, {n[5], n[6], n[7], n[8]}};
        MeasureSigns signs;
        signs.Number = ReferenceTable::whole(row[number]);
        signs.units = {ReferenceTable::whole(row[angleMode]),
                       ReferenceTable::whole(row[lengthMode]), n[factor], row[unit]};
        const MeasureLabels labels = labelsOf(state, signs);
        expectLabel(labels.lblLengthA(), row, labelA);
        expectLabel(labels.lblLengthB(), row, labelB);
        expectLabel(labels.lblAngle1(), row, label1);
        EXPECT_EQ(shownAngles(labels), ReferenceTable::whole(row[shown]));
        ASSERT_EQ(labels.shpCircle().has_value(), state.Connected);
        if (state.Connected) {
            expectLabel(labels.lblAngle2(), row, label2);
            EXPECT_EQ(labels.shpCircle()->left, ReferenceTable::whole(row[circleLeft]));
            EXPECT_EQ(labels.shpCircle()->top, ReferenceTable::whole(row[circleTop]));
        }
        if (testing::Test::HasFailure()) {
            FAIL() << "case of " << row[firstNumber];
        }
    }
}

}  // namespace
}  // namespace ormala
