#include "stencil/PatternCurves.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include "modAPI/constants.h"
#include "modAPI/transforms.h"
#include "reference/ReferenceTable.h"

namespace ormala {
namespace {

struct Drawn {
    std::vector<Line> segments;
    std::vector<std::vector<Point>> polylines;
    std::vector<BezierEllipse> beziers;
};

class Recorder final : public PatternReceiver {
  public:
    void segment(Point p1, Point p2) override { all.segments.push_back({p1.x, p1.y, p2.x, p2.y}); }
    void polyline(std::span<const Point> points) override {
        all.polylines.emplace_back(points.begin(), points.end());
    }
    void bezier(const BezierEllipse& points) override { all.beziers.push_back(points); }

    Drawn all;
};

Drawn drawn(const PatternRecord& pattern, const PatternPlacement& placement) {
    Recorder recorder;
    PatternCurves().draw(pattern, placement, recorder);
    return recorder.all;
}

Drawn drawn(int index, const PatternPlacement& placement) {
    return drawn(PatternTable::instance()[index], placement);
}

PatternPlacement placedAt(const Rect& rectBound, std::int32_t lineCode = 2) {
    PatternPlacement placement;
    placement.rectBound = rectBound;
    placement.lineCode = lineCode;
    return placement;
}

PatternRecord curve(std::vector<Line> lines) {
    PatternRecord record;
    record.Lines = std::move(lines);
    record.Polyline = true;
    return record;
}

bool isNear(const Line& a, const Line& b, double distance = 1e-9) {
    return std::abs(a.x1 - b.x1) < distance && std::abs(a.y1 - b.y1) < distance &&
           std::abs(a.x2 - b.x2) < distance && std::abs(a.y2 - b.y2) < distance;
}

TEST(PatternCurves, HalvesOfAHundredAndOnePixelsLieOnPixelFifty) {
    const auto lines = drawn(1, placedAt({0, 0, 100, 100})).segments;
    ASSERT_EQ(lines.size(), 6U);
    EXPECT_EQ(lines[4], (Line{50, 0, 50, 100}));
    EXPECT_EQ(lines[5], (Line{0, 50, 100, 50}));
}

TEST(PatternCurves, SolidSpiralComesSegmentBySegment) {
    const auto spiral = drawn(7, placedAt({0, 0, 300, 300}, 2));
    EXPECT_EQ(spiral.segments.size(), 177U);
    EXPECT_TRUE(spiral.polylines.empty());
}

TEST(PatternCurves, DottedAndDashedSpiralsComeAsOnePolyline) {
    for (const std::int32_t lineCode : {0, 1}) {
        const auto spiral = drawn(7, placedAt({0, 0, 300, 300}, lineCode));
        EXPECT_TRUE(spiral.segments.empty());
        ASSERT_EQ(spiral.polylines.size(), 1U);
        EXPECT_GT(spiral.polylines[0].size(), 100U);
        EXPECT_LT(spiral.polylines[0].size(), 178U);
    }
}

TEST(PatternCurves, DashedStraightPatternsComeAsSegments) {
    const auto halves = drawn(1, placedAt({0, 0, 100, 100}, 1));
    EXPECT_EQ(halves.segments.size(), 6U);
    EXPECT_TRUE(halves.polylines.empty());
}

TEST(PatternCurves, SegmentThatRoundsToTheLastPointIsDropped) {
    const PatternRecord pattern = curve(
        {{0, 0, 0.125, 0}, {0.125, 0, 0.1255, 0}, {0.1255, 0, 0.1285, 0}, {0.1285, 0, 0.25, 0}});
    const auto lines = drawn(pattern, placedAt({0, 0, 100, 100}, 0)).polylines;
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_EQ(lines[0], (std::vector<Point>{{0, 0}, {12, 0}, {25, 0}}));
}

TEST(PatternCurves, SpiralDropsItsSegmentsShorterThanAPixel) {
    const auto lines = drawn(7, placedAt({0, 0, 40, 40}, 0)).polylines;
    ASSERT_EQ(lines.size(), 1U);
    for (std::size_t i = 2; i < lines[0].size(); ++i) {
        EXPECT_NE(lines[0][i], lines[0][i - 1]);
    }
    EXPECT_LT(lines[0].size(), 120U);
}

TEST(PatternCurves, GapInACurveStartsANewPolyline) {
    const PatternRecord pattern = curve({{0, 0, 0.5, 0}, {0.6, 0, 1, 0}, {1, 0, 1, 1}});
    const auto lines = drawn(pattern, placedAt({0, 0, 100, 100}, 1)).polylines;
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[0], (std::vector<Point>{{0, 0}, {50, 0}}));
    EXPECT_EQ(lines[1], (std::vector<Point>{{60, 0}, {100, 0}, {100, 100}}));
}

TEST(PatternCurves, FirstSegmentKeepsBothEndsEvenIfEqual) {
    const auto lines = drawn(curve({{0, 0, 0.001, 0}}), placedAt({0, 0, 100, 100}, 0)).polylines;
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_EQ(lines[0], (std::vector<Point>{{0, 0}, {0, 0}}));
}

TEST(PatternCurves, PolylinePointsAreCutTowardZero) {
    const PatternRecord pattern = curve({{0, 0, 1, 1}});
    const auto lines = drawn(pattern, placedAt({-10.9, -0.9, 10.9, 7.9}, 0)).polylines;
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_EQ(lines[0], (std::vector<Point>{{-10, 0}, {10, 7}}));
}

TEST(PatternCurves, CurvesOfAnySizeStayFinite) {
    const auto lines = drawn(7, placedAt({-1e300, -1e300, 1e300, 1e300}, 0)).polylines;
    ASSERT_EQ(lines.size(), 1U);
    for (const Point& point : lines[0]) {
        EXPECT_TRUE(std::isfinite(point.x));
        EXPECT_TRUE(std::isfinite(point.y));
    }
}

TEST(PatternCurves, DrawingTwiceWithOneObjectGivesTheSameTwice) {
    PatternCurves curves;
    Recorder recorder;
    curves.draw(PatternTable::instance()[7], placedAt({0, 0, 300, 200}, 0), recorder);
    curves.draw(PatternTable::instance()[7], placedAt({0, 0, 300, 200}, 0), recorder);
    ASSERT_EQ(recorder.all.polylines.size(), 2U);
    EXPECT_EQ(recorder.all.polylines[0], recorder.all.polylines[1]);
}

TEST(PatternCurves, QuarterPreRotationSwapsTheSidesOfSectionSimple) {
    PatternPlacement placement = placedAt({0, 0, 1000, 1000});
    placement.preRotation = preRotations()[2];
    const auto lines = drawn(4, placement).segments;
    ASSERT_EQ(lines.size(), 6U);
    EXPECT_TRUE(isNear(lines[4], {0, 1000 * G, 1000, 1000 * G}, 1e-6));
    EXPECT_TRUE(isNear(lines[5], {1000 * (1 - G), 1000, 1000 * (1 - G), 0}, 1e-6));
}

TEST(PatternCurves, EllipsesTurnWithTheStencilAndKeepItsAxes) {
    PatternPlacement placement = placedAt({100, 100, 500, 300});
    const auto upright = drawn(14, placement).beziers;
    placement.angle = halfPi;
    const auto turned = drawn(14, placement).beziers;
    ASSERT_EQ(upright.size(), 6U);
    ASSERT_EQ(turned.size(), 6U);
    for (std::size_t i = 0; i < upright.size(); ++i) {
        for (std::size_t j = 0; j < upright[i].size(); ++j) {
            const Point expected = RotatePoint({300, 200}, upright[i][j], halfPi);
            EXPECT_NEAR(turned[i][j].x, expected.x, 1e-9);
            EXPECT_NEAR(turned[i][j].y, expected.y, 1e-9);
        }
    }
    EXPECT_NEAR(turned[0][0].x, 200, 1e-6);
    EXPECT_NEAR(turned[0][0].y, 200, 1e-6);
    EXPECT_NEAR(turned[0][3].x, 300, 1e-6);
    EXPECT_NEAR(turned[0][3].y, 0, 1e-6);
}

TEST(PatternCurves, LinesTurnAboutTheRectanglesCentre) {
    PatternPlacement placement = placedAt({0, 0, 200, 100});
    placement.angle = halfPi;
    const auto lines = drawn(18, placement).segments;
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_TRUE(isNear(lines[0], {50, 150, 150, -50}, 1e-9));
}

TEST(PatternCurves, AnEllipsePassesThroughTheFourSides) {
    PatternRecord pattern;
    pattern.Ellipses = {{0.5, 0.5, 0.5, 0.5}};
    const auto points = drawn(pattern, placedAt({10, 20, 410, 220})).beziers.at(0);
    EXPECT_EQ(points[0], (Point{210, 20}));
    EXPECT_EQ(points[3], (Point{410, 120}));
    EXPECT_EQ(points[6], (Point{210, 220}));
    EXPECT_EQ(points[9], (Point{10, 120}));
    EXPECT_EQ(points[12], points[0]);
    EXPECT_NEAR(points[1].x, 210 + 200 * 0.551784, 1e-9);
    EXPECT_NEAR(points[2].y, 120 - 100 * 0.551784, 1e-9);
}

/// Compares the records of one placement with what is drawn for it.
class PlacedPattern {
  public:
    explicit PlacedPattern(const ReferenceTable::Row& row) {
        const auto v = ReferenceTable::numbers(row);
        PatternPlacement placement = placedAt({v[4], v[5], v[6], v[7]});
        placement.preRotation = v[8];
        if (!row[9].empty()) {
            placement.angle = v[9];
        }
        drawn_ = drawn(static_cast<int>(v[2]), placement);
        nextSegment_ = static_cast<std::size_t>(v[3]);
        for (std::size_t i = 4; i < 8; ++i) {
            size_ = std::max(size_, std::abs(v[i]));
        }
    }

    void check(const ReferenceTable::Row& row) {
        const auto v = ReferenceTable::numbers(row);
        if (row[0] == "line") {
            const Line& line = drawn_.segments.at(nextSegment_++);
            EXPECT_TRUE(isNear(line, {v[2], v[3], v[4], v[5]}, 1e-9 * size_)) << row[1];
            return;
        }
        const BezierEllipse& points = drawn_.beziers.at(nextBezier_++);
        for (std::size_t i = 0; i < points.size(); ++i) {
            EXPECT_NEAR(points[i].x, v[2 + 2 * i], 1e-9 * size_) << row[1];
            EXPECT_NEAR(points[i].y, v[3 + 2 * i], 1e-9 * size_) << row[1];
        }
    }

  private:
    Drawn drawn_;
    std::size_t nextSegment_ = 0;
    std::size_t nextBezier_ = 0;
    double size_ = 1;
};

TEST(PatternCurves, ComparesWithTheReference) {
    const ReferenceTable table("placed_patterns.csv");
    ASSERT_GT(table.rows().size(), 2000U);
    ASSERT_EQ(table.rows().front()[0], "placement");
    PlacedPattern pattern(table.rows().front());
    for (const auto& row : table.rows()) {
        if (row[0] == "placement") {
            pattern = PlacedPattern(row);
        } else {
            pattern.check(row);
        }
    }
}

}  // namespace
}  // namespace ormala
