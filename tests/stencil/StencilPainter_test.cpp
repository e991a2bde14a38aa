#include "stencil/StencilPainter.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "modAPI/constants.h"
#include "support/RasterCanvas.h"
#include "support/RecordingCanvas.h"

namespace ormala {
namespace {

using Kind = RecordingCanvas::Kind;

constexpr PixelRect wholeSheet{0, 0, 1000, 800};
constexpr int sane = 40000;
constexpr double sizes[] = {1, 100, 1e5, 1e9, 1e100, 1e300};
constexpr double angles[] = {0, pi / 6, halfPi, 4.0, 6.28};

StencilState stencilWith(int pattern, const Rect& rect, double angle = 0) {
    StencilState state;
    state.RectBound = rect;
    state.RotationAngle = angle;
    state.PatternList[0].Pattern = pattern;
    return state;
}

RecordingCanvas drawn(const StencilState& state, int lineCode = 2, bool turned = true) {
    RecordingCanvas canvas(wholeSheet);
    drawPatterns(canvas, state, {9, lineCode}, turned);
    return canvas;
}

std::vector<PixelPoint> line(int x1, int y1, int x2, int y2) {
    return {{x1, y1}, {x2, y2}};
}

TEST(StencilPainter, HalvesOfAHundredAndOnePixelsLieOnPixelFifty) {
    const auto calls = drawn(stencilWith(1, {0, 0, 100, 100})).calls;
    ASSERT_EQ(calls.size(), 6U);
    EXPECT_EQ(calls[4].points, line(50, 0, 50, 100));
    EXPECT_EQ(calls[5].points, line(0, 50, 100, 50));
}

TEST(StencilPainter, PatternsAreNamedByIndexAndNotById) {
    EXPECT_EQ(PatternIndexFromId(6), 5);
    EXPECT_EQ(PatternIdFromIndex(7), 14);
    PatternSetting slot;
    EXPECT_EQ(patternOfSlot(slot), nullptr);
    slot.Pattern = 19;
    EXPECT_EQ(patternOfSlot(slot), nullptr);
    slot.Pattern = 7;
    ASSERT_NE(patternOfSlot(slot), nullptr);
    EXPECT_EQ(patternOfSlot(slot)->Name, "Spiral left");
}

TEST(StencilPainter, EmptySlotDrawsNothingAndLeavesTheOthers) {
    StencilState state = stencilWith(-1, {100, 100, 200, 200});
    EXPECT_TRUE(drawn(state).calls.empty());
    DirtyRegion region;
    addPatternsTo(region, state, {9, 2}, true, wholeSheet);
    EXPECT_TRUE(region.empty());
    state.PatternList[3].Pattern = 0;
    EXPECT_EQ(drawn(state).calls.size(), 4U);
}

TEST(StencilPainter, SlotsAreDrawnInTheirOrder) {
    StencilState state = stencilWith(18, {0, 0, 100, 100});
    state.PatternList[4].Pattern = 1;
    const auto calls = drawn(state).calls;
    ASSERT_EQ(calls.size(), 8U);
    EXPECT_EQ(calls[0].points, line(0, 0, 100, 100));
    EXPECT_EQ(calls[2].points, line(0, 0, 100, 0));
}

TEST(StencilPainter, SolidSpiralsComeInSegmentsAndDashedOnesInPolylines) {
    for (const int spiral : {7, 11}) {
        const StencilState state = stencilWith(spiral, {100, 100, 700, 700});
        const auto solid = drawn(state, 2);
        EXPECT_EQ(solid.count(Kind::line), 177);
        EXPECT_EQ(solid.count(Kind::polyline), 0);
        for (const int code : {0, 1}) {
            const auto dashed = drawn(state, code);
            EXPECT_EQ(dashed.count(Kind::line), 0);
            EXPECT_EQ(dashed.count(Kind::polyline), 1);
        }
    }
}

TEST(StencilPainter, SpiralPointsThatFallTogetherAreDropped) {
    const auto calls = drawn(stencilWith(7, {10, 10, 40, 40}), 0).calls;
    ASSERT_EQ(calls.size(), 1U);
    EXPECT_LT(calls[0].points.size(), 100U);
    for (std::size_t i = 1; i < calls[0].points.size(); ++i) {
        EXPECT_NE(calls[0].points[i], calls[0].points[i - 1]);
    }
}

TEST(StencilPainter, QuarterTurnInsideTheSquareSwapsTheLines) {
    StencilState state = stencilWith(4, {0, 0, 1000, 1000});
    state.PatternList[0].PreRotation = twoPi / 4;
    const auto calls = drawn(state).calls;
    ASSERT_EQ(calls.size(), 6U);
    // The upright line at 0.382 lies at 0.618 now.
    EXPECT_EQ(calls[4].points, line(0, 618, 1000, 618));
    EXPECT_EQ(calls[5].points, line(382, 1000, 382, 0));
}

TEST(StencilPainter, EllipsesKeepTheAxesOfAQuarterTurnedStencil) {
    const auto calls = drawn(stencilWith(14, {300, 300, 500, 400}, halfPi)).calls;
    ASSERT_EQ(calls.size(), 6U);
    for (const auto& call : calls) {
        EXPECT_EQ(call.kind, Kind::bezier);
        ASSERT_EQ(call.points.size(), 13U);
    }
    // 200 wide and 100 high, it stands upright about (400, 350) now; its top lies on the left.
    EXPECT_EQ(calls[0].points[0], (PixelPoint{350, 350}));
    EXPECT_EQ(calls[0].points[3], (PixelPoint{400, 250}));
    EXPECT_EQ(calls[0].points[6], (PixelPoint{450, 350}));
    EXPECT_EQ(calls[0].points[9], (PixelPoint{400, 450}));
}

TEST(StencilPainter, UnturnedDrawingLeavesTheAngleOut) {
    const StencilState state = stencilWith(1, {0, 0, 100, 100}, 1.0);
    EXPECT_EQ(drawn(state, 2, false).calls[0].points, line(0, 0, 100, 0));
    EXPECT_NE(drawn(state, 2, true).calls[0].points, line(0, 0, 100, 0));
}

TEST(StencilPainter, PenHasTheToolsColorAndLineCode) {
    for (const int code : {0, 1, 2, 5}) {
        for (const auto& call : drawn(stencilWith(5, {0, 0, 100, 100}), code).calls) {
            EXPECT_EQ(call.pen, (Pen{9, code}));
        }
    }
}

TEST(StencilPainter, RectangleOfAnySizeNeitherOverflowsNorStalls) {
    for (int pattern = 0; pattern < PatternTable::count(); ++pattern) {
        for (const double size : sizes) {
            for (const double angle : angles) {
                for (const int code : {0, 1, 2}) {
                    for (const Rect rect :
                         {Rect{-size, -size, size, size}, Rect{0, 0, size, 100},
                          Rect{-size, 5, 900, size}, Rect{size, size, 2 * size, 1.5 * size},
                          Rect{-2 * size, 0, -size, size}}) {
                        const auto canvas = drawn(stencilWith(pattern, rect, angle), code);
                        EXPECT_LT(canvas.calls.size(), 1000U)
                            << pattern << ' ' << size << ' ' << angle << ' ' << code;
                        EXPECT_LT(canvas.farthest(), sane)
                            << pattern << ' ' << size << ' ' << angle << ' ' << code;
                    }
                }
            }
        }
    }
}

TEST(StencilPainter, FarAwayDrawsNothingOnTheSheet) {
    for (int pattern = 0; pattern < PatternTable::count(); ++pattern) {
        for (const int code : {0, 1, 2}) {
            const Rect rect{1e9, 1e9, 1e9 + 500, 1e9 + 300};
            EXPECT_TRUE(drawn(stencilWith(pattern, rect, 1.0), code).calls.empty()) << pattern;
        }
    }
}

TEST(StencilPainter, VisibleLineOfAHugeRectangleLiesOnItsPixel) {
    for (const double size : {1e5, 1e9, 1e15, 1e300}) {
        for (const int code : {0, 1, 2}) {
            // Only one side lies on the sheet.
            const auto left = drawn(stencilWith(0, {321, -size, size, size}), code).calls;
            ASSERT_EQ(left.size(), 1U) << size;
            EXPECT_EQ(left[0].points[0].x, 321);
            EXPECT_EQ(left[0].points[1].x, 321);
            EXPECT_GE(std::max(left[0].points[0].y, left[0].points[1].y), 800);
            EXPECT_LE(std::min(left[0].points[0].y, left[0].points[1].y), 0);
            const auto bottom = drawn(stencilWith(0, {-size, -size, size, 234}), code).calls;
            ASSERT_EQ(bottom.size(), 1U) << size;
            EXPECT_EQ(bottom[0].points[0].y, 234);
            EXPECT_EQ(bottom[0].points[1].y, 234);
            EXPECT_GE(std::max(bottom[0].points[0].x, bottom[0].points[1].x), 1000);
            const auto middle = drawn(stencilWith(1, {-size, -size, size, size}), code).calls;
            ASSERT_EQ(middle.size(), 2U) << size;
            EXPECT_EQ(middle[0].points[0].x, 0);
            EXPECT_EQ(middle[1].points[1].y, 0);
        }
    }
}

TEST(StencilPainter, TurnedHugeLinesPassThroughTheirCentre) {
    for (const double size : {1e5, 1e7, 1e9}) {
        for (const double angle : angles) {
            RasterCanvas canvas({1000, 800});
            const Rect rect{500 - size, 400 - size, 500 + size, 400 + size};
            drawPatterns(canvas, stencilWith(1, rect, angle), {9, 2}, true);
            // The line that was level, at points up to 300 pixels from the centre.
            for (int away = -300; away <= 300; away += 50) {
                const auto x = static_cast<int>(std::lround(500 + std::cos(angle) * away));
                const auto y = static_cast<int>(std::lround(400 - std::sin(angle) * away));
                int near = 0;
                for (const int dx : {-1, 0, 1}) {
                    for (const int dy : {-1, 0, 1}) {
                        near += canvas.at(x + dx, y + dy) == 9 ? 1 : 0;
                    }
                }
                EXPECT_GT(near, 0) << size << ' ' << angle << ' ' << away;
            }
        }
    }
}

TEST(StencilPainter, FootprintCoversWhatIsDrawn) {
    constexpr PixelSize size{400, 300};
    constexpr PixelRect area{0, 0, 400, 300};
    std::mt19937 random(53);
    std::uniform_real_distribution<double> place(-300, 700);
    std::uniform_real_distribution<double> turn(0, twoPi);
    std::uniform_int_distribution<int> pattern(0, PatternTable::count() - 1);
    const auto preRotations = ormala::preRotations();
    for (int i = 0; i < 300; ++i) {
        StencilState state;
        const double left = place(random);
        const double top = place(random);
        state.RectBound = {left, top, left + std::abs(place(random)),
                           top + std::abs(place(random))};
        if (i % 10 == 0) {
            state.RectBound.right += 1e9;
        }
        state.RotationAngle = i % 4 == 0 ? 0 : turn(random);
        for (std::size_t slot = 0; slot < 2; ++slot) {
            state.PatternList[slot].Pattern = pattern(random);
            state.PatternList[slot].PreRotation =
                preRotations[static_cast<std::size_t>(i) % preRotations.size()];
        }
        const Pen pen{9, i % 8};
        const bool turned = i % 5 != 0;
        RasterCanvas canvas(size);
        drawPatterns(canvas, state, pen, turned);
        DirtyRegion region;
        addPatternsTo(region, state, pen, turned, area);
        EXPECT_EQ(canvas.paintedOutside(region), 0) << i;
        EXPECT_LE(region.rects().size(), 2U);
    }
}

TEST(StencilPainter, ThickLinesFootprintReachesHalfAPenBeyond) {
    DirtyRegion region;
    addPatternsTo(region, stencilWith(0, {100, 100, 200, 200}), {9, 11}, true, wholeSheet);
    EXPECT_LE(region.bounds().left, 95);
    EXPECT_GE(region.bounds().bottom, 206);
}

}  // namespace
}  // namespace ormala
