#include "platform/win/GdiCanvas.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "modAPI/constants.h"
#include "stencil/StencilPainter.h"
#include "toolkit/ctlLabel.h"
#include "win/TestSheet.h"

namespace ormala {
namespace {

constexpr COLORREF canvasGround = RGB(79, 79, 79);
constexpr COLORREF canvasInk = RGB(255, 159, 0);
const Color inkColor = static_cast<Color>(canvasInk);

class GdiCanvasTest : public testing::Test {
  protected:
    GdiCanvasTest() : size_{200, 160}, fonts_(96) {
        buffer_.resize(size_);
        const RECT all{0, 0, size_.width, size_.height};
        SetDCBrushColor(buffer_.context(), canvasGround);
        FillRect(buffer_.context(), &all, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
    }

    PixelMap draw(const std::function<void(Canvas&)>& paint) {
        {
            GdiCanvas canvas(buffer_.context(), {0, 0, size_.width, size_.height}, fonts_);
            paint(canvas);
        }
        return readPixels(buffer_.context(), size_);
    }

    static int countInRow(const PixelMap& map, int y, COLORREF color) {
        int count = 0;
        for (int x = 0; x < map.size.width; ++x) {
            count += map.at(x, y) == color ? 1 : 0;
        }
        return count;
    }

    PixelSize size_;
    GdiFonts fonts_;
    BackBuffer buffer_;
};

StencilState halvesAt(double left, double top, double right, double bottom) {
    StencilState state;
    state.RectBound = {left, top, right, bottom};
    state.PatternList[0].Pattern = PatternIndexFromId(2);
    return state;
}

TEST_F(GdiCanvasTest, HalvesOnA101PixelStencilHasItsMiddleLinesOnPixel50) {
    const PixelMap map = draw([](Canvas& canvas) {
        drawPatterns(canvas, halvesAt(0, 0, 100, 100), {inkColor, 2}, true);
    });
    for (int i = 0; i <= 100; ++i) {
        EXPECT_EQ(map.at(50, i), canvasInk) << i;
        EXPECT_EQ(map.at(i, 50), canvasInk) << i;
        EXPECT_EQ(map.at(0, i), canvasInk) << i;
        EXPECT_EQ(map.at(100, i), canvasInk) << i;
        EXPECT_EQ(map.at(i, 0), canvasInk) << i;
        EXPECT_EQ(map.at(i, 100), canvasInk) << i;
    }
    EXPECT_EQ(std::ranges::count(map.pixels, canvasInk), 101 * 6 - 9);
}

TEST_F(GdiCanvasTest, SolidPenIsOnePixelLessWideThanItsCode) {
    for (const int code : {2, 3, 4, 6}) {
        const PixelMap map = draw([&](Canvas& canvas) {
            canvas.shape({ShapeKind::rectangle,
                          {0, 0, 200, 160},
                          static_cast<Color>(canvasGround),
                          1,
                          static_cast<Color>(canvasGround)});
            canvas.line({inkColor, code}, {10, 80}, {190, 80});
        });
        int width = 0;
        for (int y = 0; y < 160; ++y) {
            width += map.at(100, y) == canvasInk ? 1 : 0;
        }
        EXPECT_EQ(width, code - 1);
    }
}

TEST_F(GdiCanvasTest, DottedAndDashedLinesDifferFromSolidAndFromEachOther) {
    const PixelMap map = draw([](Canvas& canvas) {
        canvas.line({inkColor, 0}, {0, 10}, {200, 10});
        canvas.line({inkColor, 1}, {0, 20}, {200, 20});
        canvas.line({inkColor, 2}, {0, 30}, {200, 30});
    });
    const int dotted = countInRow(map, 10, canvasInk);
    const int dashed = countInRow(map, 20, canvasInk);
    EXPECT_EQ(countInRow(map, 30, canvasInk), 200);
    EXPECT_GT(dotted, 50);
    EXPECT_LT(dotted, dashed);
    EXPECT_LT(dashed, 200);
    EXPECT_EQ(countInRow(map, 10, canvasGround) + dotted, 200) << "gaps show the ground";
}

TEST_F(GdiCanvasTest, DottedSpiralRunsOnFromSegmentToSegment) {
    StencilState state;
    state.RectBound = {0, 0, 150, 150};
    state.PatternList[0].Pattern = PatternIndexFromId(14);
    const PixelMap dotted = draw([&](Canvas& canvas) {
        drawPatterns(canvas, state, {inkColor, 0}, true);
    });
    const auto dottedCount = std::ranges::count(dotted.pixels, canvasInk);
    const PixelMap solid = draw([&](Canvas& canvas) {
        drawPatterns(canvas, state, {inkColor, 2}, true);
    });
    const auto solidCount = std::ranges::count(solid.pixels, canvasInk);
    // A style that began anew at each short segment would fill nearly all of the curve.
    EXPECT_LT(dottedCount, solidCount * 7 / 10);
    EXPECT_GT(dottedCount, solidCount * 3 / 10);
}

TEST_F(GdiCanvasTest, NothingIsSmoothed) {
    StencilState state;
    state.RectBound = {20, 10, 170, 120};
    state.RotationAngle = 0.7;
    for (int slot = 0; slot < patternSlots; ++slot) {
        state.PatternList[static_cast<std::size_t>(slot)].Pattern = 3 + slot * 3;
    }
    const PixelMap map = draw([&](Canvas& canvas) {
        drawPatterns(canvas, state, {inkColor, 3}, true);
        ctlLabel label;
        label.setCaption("123 x 456");
        label.setForeColor(inkColor);
        label.setBackColor(inkColor);
        label.setVisible(true);
        label.fit(fonts_);
        label.draw(canvas);
    });
    for (const COLORREF pixel : map.pixels) {
        EXPECT_TRUE(pixel == canvasGround || pixel == canvasInk);
    }
}

TEST_F(GdiCanvasTest, HugeRectangleShowsItsSideOnTheExactPixel) {
    for (const double distance : {1.0e5, 1.0e9, 1.0e300}) {
        for (const int code : {0, 1, 2, 3}) {
            const PixelMap map = draw([&](Canvas& canvas) {
                canvas.shape({ShapeKind::rectangle,
                              {0, 0, 200, 160},
                              static_cast<Color>(canvasGround),
                              1,
                              static_cast<Color>(canvasGround)});
                StencilState state;
                state.RectBound = {70, -distance, 470, distance};
                state.PatternList[0].Pattern = 0;
                drawPatterns(canvas, state, {inkColor, code}, true);
            });
            int inColumn = 0;
            for (int y = 0; y < 160; ++y) {
                inColumn += map.at(70, y) == canvasInk ? 1 : 0;
            }
            EXPECT_GT(inColumn, 50) << distance << " code " << code;
            EXPECT_EQ(map.at(60, 80), canvasGround);
            EXPECT_EQ(map.at(90, 80), canvasGround);
        }
    }
}

TEST_F(GdiCanvasTest, EveryPatternOfAnySizeAndTurnIsDrawnWithoutStalling) {
    const ULONGLONG start = GetTickCount64();
    for (int pattern = 0; pattern < PatternTable::count(); ++pattern) {
        for (const double size : {1.0e4, 1.0e7, 1.0e12, 1.0e300}) {
            StencilState state;
            state.RectBound = {100 - size, 80 - size / 2, 100 + size, 80 + size / 3};
            state.RotationAngle = 0.3;
            state.PatternList[0] = {pattern, 1.1};
            draw([&](Canvas& canvas) {
                for (const int code : {0, 1, 4}) {
                    drawPatterns(canvas, state, {inkColor, code}, true);
                }
            });
        }
    }
    EXPECT_LT(GetTickCount64() - start, 60000U);
}

TEST_F(GdiCanvasTest, ShapeCoversExactlyItsBoxWithItsBorderInside) {
    for (const int border : {1, 3}) {
        const PixelMap map = draw([&](Canvas& canvas) {
            canvas.shape({ShapeKind::rectangle, {40, 30, 61, 51}, inkColor, border, rgb(1, 2, 3)});
        });
        EXPECT_EQ(map.at(40, 30), canvasInk);
        EXPECT_EQ(map.at(60, 50), canvasInk);
        EXPECT_EQ(map.at(39, 40), canvasGround);
        EXPECT_EQ(map.at(61, 40), canvasGround);
        EXPECT_EQ(map.at(40 + border - 1, 40), canvasInk);
        EXPECT_EQ(map.at(40 + border, 40), RGB(1, 2, 3));
    }
}

TEST_F(GdiCanvasTest, ShapeWithoutFillLeavesItsInside) {
    const PixelMap map = draw([&](Canvas& canvas) {
        canvas.shape({ShapeKind::oval, {40, 30, 100, 90}, inkColor, 1, std::nullopt});
    });
    EXPECT_EQ(map.at(70, 60), canvasGround);
    EXPECT_EQ(map.at(70, 30), canvasInk);
}

TEST_F(GdiCanvasTest, LabelHasItsHaloOnEverySide) {
    const Color white = rgb(255, 255, 255);
    ctlLabel label;
    label.setCaption("I");
    label.setForeColor(inkColor);
    label.setBackColor(white);
    label.setVisible(true);
    label.fit(fonts_);
    label.moveTo(50, 50);
    const PixelMap map = draw([&](Canvas& canvas) { label.draw(canvas); });
    int checked = 0;
    for (int y = 1; y + 1 < map.size.height; ++y) {
        for (int x = 2; x + 2 < map.size.width; ++x) {
            if (map.at(x, y) == canvasInk) {
                ++checked;
                for (const POINT beside : {POINT{x - 1, y}, POINT{x + 1, y}, POINT{x, y - 1},
                                           POINT{x, y + 1}, POINT{x - 2, y}, POINT{x + 2, y}}) {
                    EXPECT_NE(map.at(beside.x, beside.y), canvasGround);
                }
            }
        }
    }
    EXPECT_GT(checked, 4);
}

TEST_F(GdiCanvasTest, EmptyTextIsAsHighAsALineAndHasNoWidth) {
    const PixelSize empty = fonts_.measure("", 8);
    EXPECT_EQ(empty.width, 0);
    EXPECT_EQ(empty.height, fonts_.measure("X", 8).height);
    EXPECT_EQ(fonts_.measure("X\r\nX", 8).height, 2 * empty.height);
}

TEST_F(GdiCanvasTest, SystemColorIsLookedUp) {
    const auto systemColor = static_cast<Color>(0x80000000U | COLOR_HIGHLIGHT);
    EXPECT_EQ(colorRef(systemColor), GetSysColor(COLOR_HIGHLIGHT));
    EXPECT_EQ(colorRef(0x123456), 0x123456U);
}

}  // namespace
}  // namespace ormala
