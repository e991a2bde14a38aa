#include "stencil/MouseActionPreview.h"

#include <gtest/gtest.h>

#include <cmath>

#include "support/RasterCanvas.h"
#include "support/RecordingCanvas.h"

namespace ormala {
namespace {

constexpr Rect rect{200, 150, 500, 350};

MouseActionPreview started() {
    MouseActionPreview preview;
    preview.start(rect);
    return preview;
}

void tickTo(MouseActionPreview& preview, int from, int to) {
    for (int n = from; n <= to; ++n) {
        preview.tick(rect);
    }
}

TEST(MouseActionPreview, ArrowRunsFromTheTopLeftToTheBottomRight) {
    MouseActionPreview preview;
    preview.arrange(rect, true);
    EXPECT_EQ(preview.lines()[0], (Line{200, 150, 500, 350}));
    EXPECT_TRUE(preview.linesVisible());
    EXPECT_FALSE(preview.mouseVisible());
    EXPECT_FALSE(preview.running());
}

TEST(MouseActionPreview, BarbsLieTwentyTwoDegreesBesideTheArrow) {
    MouseActionPreview preview;
    preview.arrange(rect, true);
    const double back = std::atan2(200, -300);  // up is positive
    for (const int barb : {1, 2}) {
        const Line& line = preview.lines()[static_cast<std::size_t>(barb)];
        EXPECT_EQ(line.x1, 500);
        EXPECT_EQ(line.y1, 350);
        const double away = back + (barb == 1 ? -1 : 1) * std::acos(-1.0) / 8;
        EXPECT_NEAR(line.x2, 500 + 20 * std::cos(away), 1e-9);
        EXPECT_NEAR(line.y2, 350 - 20 * std::sin(away), 1e-9);
    }
}

TEST(MouseActionPreview, StartsWithTheMouseBeforeTheTopLeftCorner) {
    const MouseActionPreview preview = started();
    EXPECT_EQ(preview.picture(), (Point{200 - 34, 150 - 44}));
    EXPECT_TRUE(preview.running());
    EXPECT_TRUE(preview.mouseVisible());
    EXPECT_TRUE(preview.linesVisible());
    EXPECT_FALSE(preview.buttonDown());
}

TEST(MouseActionPreview, ButtonGoesDownAtTheSeventhStep) {
    MouseActionPreview preview = started();
    tickTo(preview, 1, 6);
    EXPECT_FALSE(preview.buttonDown());
    tickTo(preview, 7, 7);
    EXPECT_TRUE(preview.buttonDown());
    tickTo(preview, 8, 9);
    EXPECT_EQ(preview.picture(), (Point{166, 106}));
}

TEST(MouseActionPreview, RunsAlongWithGrowingSteps) {
    MouseActionPreview preview = started();
    tickTo(preview, 1, 9);
    double x = 166;
    double y = 106;
    for (int n = 10; n < 22; ++n) {
        const double q = 18 - ((n - 9) - 0.5);
        x += (34 + 300) / q;
        y += (44 + 200) / q;
        preview.tick(rect);
        EXPECT_NEAR(preview.picture().x, x, 1e-9) << n;
        EXPECT_NEAR(preview.picture().y, y, 1e-9) << n;
    }
    const Point arrived = preview.picture();
    tickTo(preview, 22, 32);
    EXPECT_EQ(preview.picture(), arrived);
}

TEST(MouseActionPreview, ButtonGoesUpAfterTheTwentySixthStep) {
    MouseActionPreview preview = started();
    tickTo(preview, 1, 26);
    EXPECT_TRUE(preview.buttonDown());
    tickTo(preview, 27, 27);
    EXPECT_FALSE(preview.buttonDown());
}

TEST(MouseActionPreview, EndsAtTheThirtyThirdStep) {
    MouseActionPreview preview = started();
    tickTo(preview, 1, 32);
    EXPECT_TRUE(preview.running());
    EXPECT_TRUE(preview.mouseVisible());
    tickTo(preview, 33, 33);
    EXPECT_FALSE(preview.running());
    EXPECT_FALSE(preview.mouseVisible());
    EXPECT_FALSE(preview.linesVisible());
}

TEST(MouseActionPreview, CanRunAgain) {
    MouseActionPreview preview = started();
    tickTo(preview, 1, 33);
    preview.start(rect);
    EXPECT_EQ(preview.picture(), (Point{166, 106}));
    tickTo(preview, 1, 32);
    EXPECT_TRUE(preview.running());
}

TEST(MouseActionPreview, DrawsOnlyWhereItSays) {
    constexpr PixelRect area{0, 0, 600, 400};
    MouseActionPreview preview = started();
    for (int n = 0; n < 33; ++n) {
        RasterCanvas canvas({600, 400});
        preview.draw(canvas, 5);
        DirtyRegion region;
        preview.addTo(region, area);
        int outside = 0;
        for (int y = 0; y < 400; ++y) {
            for (int x = 0; x < 600; ++x) {
                const bool painted = canvas.at(x, y) != RasterCanvas::empty;
                outside += painted && !region.meets({x, y, x + 1, y + 1}) ? 1 : 0;
            }
        }
        EXPECT_EQ(outside, 0) << n;
        EXPECT_GT(canvas.painted(), 0);
        preview.tick(rect);
    }
}

TEST(MouseActionPreview, AnyRectangleStaysWithinPixels) {
    for (const double far : {1e6, 1e9, 1e300}) {
        MouseActionPreview preview;
        const Rect huge{-far, -far, far, far};
        preview.start(huge);
        for (int n = 0; n < 30; ++n) {
            RecordingCanvas canvas;
            preview.draw(canvas, 5);
            EXPECT_LT(canvas.farthest(), 40000) << far;
            preview.tick(huge);
        }
    }
}

}  // namespace
}  // namespace ormala
