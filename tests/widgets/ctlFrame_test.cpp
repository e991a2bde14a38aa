#include "widgets/ctlFrame.h"

#include <gtest/gtest.h>

#include "support/RasterCanvas.h"

namespace ormala {
namespace {

constexpr PixelSize panel{60, 40};
constexpr Color goldBright = roleColor(rgb(255, 234, 32), ColorRole::window);
constexpr Color goldDark = roleColor(rgb(144, 115, 0), ColorRole::window);
constexpr Color brown = roleColor(rgb(43, 34, 0), ColorRole::windowText);

RasterCanvas drawn(int style, const PixelRect& box = {0, 0, panel.width, panel.height}) {
    ctlFrame frame;
    frame.setFrameStyle(style);
    frame.resize(box);
    RasterCanvas canvas(panel);
    frame.draw(canvas);
    return canvas;
}

/// How many of the pixels from the left edge on are painted, at half the height.
int depth(const RasterCanvas& canvas) {
    int x = 0;
    while (x < panel.width && canvas.at(x, panel.height / 2) != RasterCanvas::empty) {
        ++x;
    }
    return x;
}

TEST(ctlFrame, DefaultStyleShowsTheOuterRectangleAndNotTheInnerOne) {
    EXPECT_EQ(ctlFrame().FrameStyle(), 0);
    const RasterCanvas canvas = drawn(0);
    EXPECT_NE(canvas.at(0, 0), RasterCanvas::empty);
    EXPECT_NE(canvas.at(panel.width - 1, panel.height - 1), RasterCanvas::empty);
    EXPECT_EQ(canvas.at(4, panel.height / 2), RasterCanvas::empty);
}

TEST(ctlFrame, Style1IsABorderOfTwoPixelsAlone) {
    const RasterCanvas canvas = drawn(1);
    const int middle = panel.height / 2;
    EXPECT_EQ(canvas.at(0, middle), RasterCanvas::empty);
    EXPECT_EQ(canvas.at(1, middle), RasterCanvas::empty);
    EXPECT_NE(canvas.at(2, middle), RasterCanvas::empty);
    EXPECT_EQ(canvas.at(3, middle), canvas.at(2, middle));
    EXPECT_EQ(canvas.at(4, middle), RasterCanvas::empty);
}

TEST(ctlFrame, Style2IsBrownWithAGoldenBevel) {
    const RasterCanvas canvas = drawn(2);
    const int middle = panel.height / 2;
    EXPECT_EQ(canvas.at(0, middle), RasterCanvas::empty);
    EXPECT_EQ(canvas.at(1, middle), goldBright);
    EXPECT_EQ(canvas.at(panel.width / 2, 1), goldBright);
    EXPECT_EQ(canvas.at(2, middle), brown);
    EXPECT_EQ(canvas.at(3, middle), brown);
    EXPECT_EQ(canvas.at(panel.width - 2, middle), goldDark);
    EXPECT_EQ(canvas.at(panel.width / 2, panel.height - 2), goldDark);
}

TEST(ctlFrame, Style3LeavesNoGapInItsFivePixels) {
    const RasterCanvas canvas = drawn(3);
    EXPECT_EQ(depth(canvas), 5);
    EXPECT_EQ(canvas.painted(),
              panel.width * panel.height - (panel.width - 10) * (panel.height - 10));
}

TEST(ctlFrame, UpperLeftEdgeIsBrighterThanTheLowerRightOne) {
    for (const int style : {0, 2, 3}) {
        const RasterCanvas canvas = drawn(style);
        const int middle = panel.height / 2;
        EXPECT_GT(Luminance(canvas.at(1, middle)), Luminance(canvas.at(panel.width - 2, middle)))
            << style;
    }
}

TEST(ctlFrame, NeverPaintsOutsideItsBox) {
    const PixelRect box{10, 8, 40, 30};
    for (const int style : {0, 1, 2, 3}) {
        const RasterCanvas canvas = drawn(style, box);
        for (int y = 0; y < panel.height; ++y) {
            for (int x = 0; x < panel.width; ++x) {
                if (!box.contains({x, y})) {
                    EXPECT_EQ(canvas.at(x, y), RasterCanvas::empty)
                        << style << ' ' << x << ' ' << y;
                }
            }
        }
    }
}

TEST(ctlFrame, ABoxTooSmallForARectangleLeavesItOut) {
    for (const int side : {0, 1, 2, 4, 7, 9}) {
        const PixelRect box{20, 20, 20 + side, 20 + side};
        EXPECT_LE(drawn(3, box).painted(), side * side) << side;
    }
}

}  // namespace
}  // namespace ormala
