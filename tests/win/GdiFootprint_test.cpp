#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <random>

#include "measure/MeasureLabels.h"
#include "modAPI/constants.h"
#include "platform/win/GdiCanvas.h"
#include "scene/DirtyRegion.h"
#include "scene/strokes.h"
#include "stencil/PatternTable.h"
#include "stencil/StencilPainter.h"
#include "toolkit/ctlLabel.h"
#include "win/TestSheet.h"

// The places that portable code reckons with for a repaint, against the pixels that the system's
// own pens set.

namespace ormala {
namespace {

constexpr PixelSize footprintSize{260, 220};
constexpr PixelRect area{0, 0, footprintSize.width, footprintSize.height};
constexpr COLORREF footprintGround = RGB(79, 79, 79);
constexpr Color footprintInk = rgb(255, 159, 0);
/// Dotted, dashed, and solid of one to four pixels.
constexpr int lineCodes[] = {0, 1, 2, 3, 4, 5};

class GdiFootprint : public testing::Test {
  protected:
    GdiFootprint() { buffer_.resize(footprintSize); }

    struct Result {
        int painted = 0;
        int outside = 0;
    };

    /// Draws on a plain ground and counts the pixels that no rectangle of the region meets.
    Result drawn(const DirtyRegion& region, const std::function<void(Canvas&)>& paint) {
        const RECT all{0, 0, footprintSize.width, footprintSize.height};
        SetDCBrushColor(buffer_.context(), footprintGround);
        FillRect(buffer_.context(), &all, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
        {
            GdiCanvas canvas(buffer_.context(), area, fonts_);
            paint(canvas);
        }
        const PixelMap map = readPixels(buffer_.context(), footprintSize);
        Result result;
        for (int y = 0; y < footprintSize.height; ++y) {
            for (int x = 0; x < footprintSize.width; ++x) {
                if (map.at(x, y) != footprintGround) {
                    ++result.painted;
                    result.outside += region.meets({x, y, x + 1, y + 1}) ? 0 : 1;
                }
            }
        }
        return result;
    }

    GdiFonts fonts_{96};
    BackBuffer buffer_;
};

TEST_F(GdiFootprint, HoldsAStrokeOfEveryPenInEveryDirection) {
    std::mt19937 random(23);
    std::uniform_real_distribution<double> place(-60, 300);
    std::uniform_real_distribution<double> exponent(3, 12);
    int painted = 0;
    for (int i = 0; i < 300; ++i) {
        const Point from{place(random), place(random)};
        Point to{place(random), place(random)};
        if (i % 5 == 0) {
            to = {to.x * std::pow(10, exponent(random)), to.y * std::pow(10, exponent(random))};
        }
        // A pixel or two far, or not at all: a dot of the pen's width.
        if (i % 7 == 0) {
            to = {from.x + i % 2, from.y + i % 3};
        }
        for (const int code : lineCodes) {
            const Pen pen{footprintInk, code};
            DirtyRegion region;
            region.addStroke(pen, from, to, area);
            const Result result =
                drawn(region, [&](Canvas& canvas) { DrawSegment(canvas, pen, from, to); });
            painted += result.painted;
            EXPECT_EQ(result.outside, 0)
                << from.x << ' ' << from.y << " to " << to.x << ' ' << to.y << " code " << code;
        }
    }
    EXPECT_GT(painted, 100000);
}

TEST_F(GdiFootprint, HoldsEveryPatternWithEveryPen) {
    constexpr Rect places[] = {{30, 40, 210, 170}, {100.5, 20, 101.5, 190}, {-150, -90, 130, 110}};
    for (int pattern = 0; pattern < PatternTable::count(); ++pattern) {
        int painted = 0;
        for (const Rect& bound : places) {
            for (const double angle : {0.0, 0.7, halfPi}) {
                StencilState state;
                state.RectBound = bound;
                state.RotationAngle = angle;
                state.PatternList[0].Pattern = pattern;
                for (const int code : lineCodes) {
                    const Pen pen{footprintInk, code};
                    DirtyRegion region;
                    addPatternsTo(region, state, pen, true, area);
                    const Result result = drawn(
                        region, [&](Canvas& canvas) { drawPatterns(canvas, state, pen, true); });
                    painted += result.painted;
                    EXPECT_EQ(result.outside, 0)
                        << "pattern " << pattern << " angle " << angle << " code " << code;
                }
            }
        }
        EXPECT_GT(painted, 1000) << pattern;
    }
}

TEST_F(GdiFootprint, HoldsEveryShapeWithEveryBorder) {
    constexpr PixelRect boxes[] = {
        {40, 30, 44, 34}, {40, 30, 61, 51}, {20, 30, 220, 60}, {-100, -60, 200, 240}};
    for (const PixelRect& box : boxes) {
        for (const ShapeKind kind :
             {ShapeKind::rectangle, ShapeKind::roundedRectangle, ShapeKind::oval}) {
            for (int border = 1; border <= 4; ++border) {
                DirtyRegion region;
                region.add(box);
                const ShapeFace face{kind, box, footprintInk, border, rgb(1, 2, 3)};
                const Result result = drawn(region, [&](Canvas& canvas) { canvas.shape(face); });
                EXPECT_EQ(result.outside, 0) << box.width() << " border " << border;
                EXPECT_GT(result.painted, 0) << box.width() << " border " << border;
            }
        }
    }
}

TEST_F(GdiFootprint, HoldsTheOutlineOfAnOvalInEitherDivision) {
    for (const int side : {1, 2, 3, 21, 61, 200, 500, 3000}) {
        // Its left side or its middle is in sight.
        for (const int left : {10, 130 - side / 2}) {
            const PixelRect box{left, 110 - side / 2, left + side, 110 - side / 2 + side};
            DirtyRegion coarse;
            coarse.addOutline(box, 1);
            DirtyRegion close;
            close.addOutlineClosely(box, 1);
            const auto oval = [&](Canvas& canvas) {
                canvas.shape({ShapeKind::oval, box, footprintInk, 1, std::nullopt});
            };
            EXPECT_EQ(drawn(coarse, oval).outside, 0) << side;
            EXPECT_EQ(drawn(close, oval).outside, 0) << side;
        }
    }
}

TEST_F(GdiFootprint, HoldsALabelWithItsHalo) {
    for (const char* caption : {"", "I", "123 x 456", "µ = 45.0°\r\nWWW", "fjÄ|"}) {
        ctlLabel label;
        label.setCaption(caption);
        label.setForeColor(footprintInk);
        label.setBackColor(rgb(255, 255, 255));
        label.setVisible(true);
        label.fit(fonts_);
        label.moveTo(50, 60);
        DirtyRegion region;
        label.addTo(region);
        const Result result = drawn(region, [&](Canvas& canvas) { label.draw(canvas); });
        EXPECT_EQ(result.outside, 0) << caption;
        EXPECT_EQ(result.painted > 0, *caption != '\0') << caption;
    }
}

TEST_F(GdiFootprint, HoldsTheTextsAndTheCircleOfAMeasurement) {
    MeasureSigns signs;
    signs.ColorA = footprintInk;
    for (const bool connected : {true, false}) {
        for (const Point end : {Point{250, 30}, Point{30, 110}, Point{131, 215}}) {
            const MeasureState state{
                connected, {end.x, end.y, 130, 110}, {60, 20, 130, connected ? 110.0 : 140.0}};
            MeasureLabels labels;
            labels.arrange(state, signs, true, {}, fonts_);
            DirtyRegion region;
            labels.addTo(region);
            const Result result = drawn(region, [&](Canvas& canvas) { labels.draw(canvas); });
            EXPECT_EQ(result.outside, 0) << connected << ' ' << end.x << ' ' << end.y;
            EXPECT_GT(result.painted, 100);
        }
    }
}

}  // namespace
}  // namespace ormala
