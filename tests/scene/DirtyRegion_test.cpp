#include "scene/DirtyRegion.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "scene/strokes.h"
#include "support/RasterCanvas.h"

namespace ormala {
namespace {

constexpr PixelSize sheet{500, 400};
constexpr PixelRect area{0, 0, sheet.width, sheet.height};

TEST(DirtyRegion, KeepsNoEmptyRectangles) {
    DirtyRegion region;
    region.add(PixelRect{5, 5, 5, 9});
    EXPECT_TRUE(region.empty());
    EXPECT_TRUE(region.bounds().empty());
}

TEST(DirtyRegion, BoundsSpanAllRectangles) {
    DirtyRegion region;
    region.add(PixelRect{10, 20, 30, 40});
    DirtyRegion other;
    other.add(PixelRect{-5, 35, 12, 50});
    region.add(other);
    EXPECT_EQ(region.bounds(), (PixelRect{-5, 20, 30, 50}));
    EXPECT_TRUE(region.meets({11, 38, 12, 39}));
    EXPECT_FALSE(region.meets({-5, 20, 0, 30}));
    region.clear();
    EXPECT_TRUE(region.empty());
}

TEST(DirtyRegion, LongSlantedStrokeLeavesMostOfTheSheetOut) {
    DirtyRegion region;
    region.addStroke({0, 2}, {0, 0}, {500, 400}, area);
    double covered = 0;
    for (const PixelRect& rect : region.rects()) {
        covered += static_cast<double>(rect.width()) * rect.height();
    }
    EXPECT_LT(covered, 0.35 * sheet.width * sheet.height);
    EXPECT_FALSE(region.meets({480, 0, 500, 20}));
}

TEST(DirtyRegion, StrokeCoversWhatItsPenPaints) {
    std::mt19937 random(17);
    std::uniform_real_distribution<double> near(-300, 800);
    std::uniform_real_distribution<double> exponent(3, 14);
    for (int i = 0; i < 400; ++i) {
        Point p1{near(random), near(random)};
        Point p2{near(random), near(random)};
        if (i % 3 == 0) {
            p2 = {p2.x * std::pow(10, exponent(random)), p2.y * std::pow(10, exponent(random))};
        }
        const Pen pen{1, i % 10};
        RasterCanvas canvas(sheet);
        DrawSegment(canvas, pen, p1, p2);
        DirtyRegion region;
        region.addStroke(pen, p1, p2, area);
        EXPECT_EQ(canvas.paintedOutside(region), 0)
            << p1.x << ' ' << p1.y << ' ' << p2.x << ' ' << p2.y << " code " << pen.lineCode;
        EXPECT_LE(region.rects().size(), 10U);
    }
}

TEST(DirtyRegion, StrokeBesideTheSheetAddsNothing) {
    DirtyRegion region;
    region.addStroke({0, 2}, {-1e300, -50}, {1e300, -50}, area);
    region.addStroke({0, 2}, {600, 0}, {600, 1e9}, area);
    EXPECT_TRUE(region.empty());
}

TEST(DirtyRegion, OutlineCoversTheOvalAndNotItsInside) {
    for (const PixelRect box : {PixelRect{50, 40, 350, 340}, PixelRect{10, 10, 31, 31},
                                PixelRect{20, 100, 470, 180}, PixelRect{5, 5, 6, 6}}) {
        RasterCanvas canvas(sheet);
        canvas.shape({ShapeKind::oval, box, 1, 1, std::nullopt});
        DirtyRegion region;
        region.addOutline(box, 1);
        EXPECT_EQ(canvas.paintedOutside(region), 0) << box.width();
    }
    DirtyRegion region;
    region.addOutline({50, 40, 350, 340}, 1);
    EXPECT_FALSE(region.meets({190, 180, 210, 200}));
    region.clear();
    region.addOutline({}, 1);
    EXPECT_TRUE(region.empty());
}

TEST(DirtyRegion, CloseOutlineCoversTheOvalInSmallPieces) {
    for (const PixelRect box :
         {PixelRect{10, 10, 890, 890}, PixelRect{0, 300, 899, 420}, PixelRect{400, 3, 410, 893},
          PixelRect{-700, 40, 850, 1500}, PixelRect{100, 100, 485, 485}, PixelRect{10, 10, 31, 31},
          PixelRect{5, 5, 6, 6}}) {
        for (const int width : {1, 6}) {
            RasterCanvas canvas({900, 900});
            canvas.shape({ShapeKind::oval, box, 1, width, std::nullopt});
            DirtyRegion region;
            region.addOutlineClosely(box, width);
            EXPECT_EQ(canvas.paintedOutside(region), 0) << box.width() << ", " << width;
        }
    }
    DirtyRegion region;
    region.addOutlineClosely({0, 0, 2001, 2001}, 1);
    EXPECT_FALSE(region.meets({200, 960, 1800, 1040})) << "the strip within";
    EXPECT_FALSE(region.dense());
}

}  // namespace
}  // namespace ormala
