#include "scene/strokes.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <random>

#include "support/RasterCanvas.h"
#include "support/RecordingCanvas.h"

namespace ormala {
namespace {

using Kind = RecordingCanvas::Kind;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr Pen solid{7, 2};
/// More than any part of a canvas needs, and far within a drawing system's whole numbers.
constexpr int sane = 40000;

TEST(DrawSegment, RoundsHalvesAwayFromZero) {
    RecordingCanvas canvas;
    DrawSegment(canvas, solid, {0.5, -0.5}, {2.49, -2.5});
    ASSERT_EQ(canvas.calls.size(), 1U);
    EXPECT_EQ(canvas.calls[0].points, (std::vector<PixelPoint>{{1, -1}, {2, -3}}));
    EXPECT_EQ(canvas.calls[0].pen, solid);
}

TEST(DrawSegment, VisiblePartOfAHugeUprightLineLiesOnItsPixel) {
    for (const double far : {1e5, 1e9, 1e15, 1e300, 1.7e308}) {
        RecordingCanvas canvas;
        DrawSegment(canvas, solid, {123.4, -far}, {123.4, far});
        DrawSegment(canvas, solid, {far, 456.5}, {-far, 456.5});
        ASSERT_EQ(canvas.calls.size(), 2U) << far;
        for (const PixelPoint& p : canvas.calls[0].points) {
            EXPECT_EQ(p.x, 123);
        }
        EXPECT_LE(canvas.calls[0].points[0].y, 0);
        EXPECT_GE(canvas.calls[0].points[1].y, 800);
        for (const PixelPoint& p : canvas.calls[1].points) {
            EXPECT_EQ(p.y, 457);
        }
        EXPECT_GE(canvas.calls[1].points[0].x, 1000);
        EXPECT_LE(canvas.calls[1].points[1].x, 0);
        EXPECT_LT(canvas.farthest(), sane);
    }
}

TEST(DrawSegment, HugeSlantedLineStaysOnItsPixels) {
    // Through (500, 400) with a slope of one half.
    for (const double far : {1e5, 1e9, 1e12}) {
        RasterCanvas canvas({1000, 800});
        DrawSegment(canvas, solid, {500 - 2 * far, 400 - far}, {500 + 2 * far, 400 + far});
        EXPECT_EQ(canvas.painted(), 1000);
        for (int x = 0; x < 1000; ++x) {
            const double exact = 400 + (x - 500) / 2.0;
            const bool there = canvas.at(x, static_cast<int>(std::floor(exact))) == 7 ||
                               canvas.at(x, static_cast<int>(std::ceil(exact))) == 7;
            EXPECT_TRUE(there) << x << " of " << far;
        }
    }
}

TEST(DrawSegment, BesideTheCanvasOrNotFiniteDrawsNothing) {
    RecordingCanvas canvas;
    DrawSegment(canvas, solid, {1e9, 0}, {1e9, 100});
    DrawSegment(canvas, solid, {-1e300, -1e200}, {1e300, -1e200});
    DrawSegment(canvas, solid, {0, 0}, {infinity, 5});
    DrawSegment(canvas, solid, {notANumber, 0}, {10, 10});
    EXPECT_TRUE(canvas.calls.empty());
}

TEST(DrawPolyline, RunsOnInOneCall) {
    RecordingCanvas canvas;
    const std::array<Point, 4> points{{{0, 0}, {10, 0}, {10, 10}, {-50, 30}}};
    drawPolyline(canvas, {7, 0}, points);
    ASSERT_EQ(canvas.calls.size(), 1U);
    EXPECT_EQ(canvas.calls[0].kind, Kind::polyline);
    EXPECT_EQ(canvas.calls[0].points.size(), 4U);
}

TEST(DrawPolyline, DrawsEveryVisiblePieceOfACurveThatLeavesAndComesBack) {
    const std::array<Point, 6> points{
        {{10, 10}, {20, 10}, {20, 1e9}, {1e300, 1e9}, {500, -1e9}, {500, 300}}};
    RasterCanvas canvas({1000, 800});
    drawPolyline(canvas, solid, points);
    EXPECT_EQ(canvas.at(15, 10), 7);
    EXPECT_EQ(canvas.at(20, 700), 7);
    EXPECT_EQ(canvas.at(500, 299), 7);
    EXPECT_EQ(canvas.at(500, 301), RasterCanvas::empty);
    RecordingCanvas record;
    drawPolyline(record, solid, points);
    EXPECT_LT(record.farthest(), sane);
    EXPECT_LE(record.calls.size(), 6U);
}

TEST(DrawPolyline, PieceWithBothEndsOutsideIsDrawnOnce) {
    RecordingCanvas canvas;
    const std::array<Point, 4> points{{{-1e9, 50}, {1e9, 50}, {1e9, 1e9}, {2e9, 2e9}}};
    drawPolyline(canvas, solid, points);
    EXPECT_EQ(canvas.count(Kind::line), 1);
    EXPECT_EQ(canvas.calls.size(), 1U);
}

/// Control points of a circle.
std::array<Point, 13> circle(const Point& center, double radius) {
    constexpr double k = 0.551784;
    constexpr double units[13][2] = {{0, -1}, {k, -1}, {1, -k}, {1, 0},   {1, k},   {k, 1}, {0, 1},
                                     {-k, 1}, {-1, k}, {-1, 0}, {-1, -k}, {-k, -1}, {0, -1}};
    std::array<Point, 13> points;
    for (std::size_t i = 0; i < points.size(); ++i) {
        points[i] = {center.x + units[i][0] * radius, center.y + units[i][1] * radius};
    }
    return points;
}

TEST(DrawBezier, NearCurveIsOneCallOfAllItsArcs) {
    RecordingCanvas canvas;
    drawBezier(canvas, solid, circle({300, 300}, 100));
    ASSERT_EQ(canvas.calls.size(), 1U);
    EXPECT_EQ(canvas.calls[0].kind, Kind::bezier);
    ASSERT_EQ(canvas.calls[0].points.size(), 13U);
    EXPECT_EQ(canvas.calls[0].points[0], (PixelPoint{300, 200}));
    EXPECT_EQ(canvas.calls[0].points[1], (PixelPoint{355, 200}));
}

TEST(DrawBezier, VisiblePartOfAHugeCircleLiesWhereItBelongs) {
    for (const double radius : {2e4, 1e6, 1e9}) {
        // Its leftmost point touches x = 200 at y = 400.
        RecordingCanvas record;
        drawBezier(record, solid, circle({200 + radius, 400}, radius));
        EXPECT_GT(record.calls.size(), 0U);
        EXPECT_LT(record.calls.size(), 300U) << radius;
        EXPECT_LT(record.farthest(), sane) << radius;
        RasterCanvas canvas({1000, 800});
        drawBezier(canvas, solid, circle({200 + radius, 400}, radius));
        for (int y = 0; y < 800; ++y) {
            const double exact = 200 + (y - 400.0) * (y - 400.0) / (2 * radius);
            bool there = false;
            for (int x = 0; x < 1000; ++x) {
                if (canvas.at(x, y) == 7) {
                    EXPECT_NEAR(x, exact, 1.5) << y << " of " << radius;
                    there = true;
                }
            }
            EXPECT_TRUE(there) << y << " of " << radius;
        }
    }
}

TEST(DrawBezier, AnySizeAndPlaceNeitherOverflowsNorStalls) {
    std::mt19937 random(23);
    std::uniform_real_distribution<double> exponent(0, 307);
    std::uniform_real_distribution<double> unit(-1, 1);
    for (int i = 0; i < 300; ++i) {
        const double size = std::pow(10, exponent(random));
        const Point center{unit(random) * size, unit(random) * size};
        RecordingCanvas canvas;
        drawBezier(canvas, solid, circle(center, size));
        EXPECT_LT(canvas.calls.size(), 600U) << size;
        EXPECT_LT(canvas.farthest(), sane) << size;
    }
}

TEST(DrawBezier, NotFiniteDrawsNothing) {
    RecordingCanvas canvas;
    drawBezier(canvas, solid, circle({infinity, 0}, 10));
    drawBezier(canvas, solid, circle({0, notANumber}, 10));
    EXPECT_TRUE(canvas.calls.empty());
}

TEST(Strokes, RepaintOfAPartDrawsThePixelsOfTheWhole) {
    std::mt19937 random(29);
    std::uniform_real_distribution<double> inside(100, 400);
    std::uniform_real_distribution<double> unit(-1, 1);
    std::uniform_real_distribution<double> exponent(1, 7);
    std::uniform_int_distribution<int> corner(0, 300);
    constexpr PixelSize sheet{600, 500};
    for (int i = 0; i < 60; ++i) {
        const double far = std::pow(10, exponent(random));
        const Point through{inside(random), inside(random)};
        const Point away{unit(random) * far, unit(random) * far};
        const Point p1{through.x - away.x, through.y - away.y};
        const Point p2{through.x + away.x, through.y + away.y};
        const Pen pen{5, i % 4};
        const auto drawAll = [&](Canvas& canvas) {
            DrawSegment(canvas, pen, p1, p2);
            drawBezier(canvas, pen, circle({through.x + far, through.y}, far));
        };
        RasterCanvas whole(sheet);
        drawAll(whole);
        const int left = corner(random);
        const int top = corner(random);
        const PixelRect part{left, top, left + 200, top + 150};
        RasterCanvas again(sheet, part);
        drawAll(again);
        EXPECT_EQ(whole.differences(again, part), 0) << "size " << far << " code " << pen.lineCode;
    }
}

TEST(StrokeBounds, ReachBeyondTheEndsByHalfThePen) {
    constexpr PixelRect area{0, 0, 1000, 800};
    const PixelRect bounds = strokeBounds({0, 6}, {100, 50}, {200, 50}, area);
    EXPECT_LE(bounds.left, 97);
    EXPECT_LE(bounds.top, 47);
    EXPECT_GE(bounds.right, 203);
    EXPECT_GE(bounds.bottom, 53);
    EXPECT_LT(bounds.height(), 12);
}

TEST(PixelsOf, AreCutToTheArea) {
    constexpr PixelRect area{0, 0, 1000, 800};
    EXPECT_EQ(pixelsOf({-1e300, 10.5, 1e300, 20.5}, area), (PixelRect{0, 10, 1000, 22}));
    EXPECT_TRUE(pixelsOf({2000, 0, 3000, 10}, area).empty());
    EXPECT_TRUE(pixelsOf({0, -1e300, 10, -1e299}, area).empty());
    EXPECT_EQ(pixelsOf({0, 0, infinity, 10}, area), area);
}

}  // namespace
}  // namespace ormala
