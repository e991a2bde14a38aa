#include "toolkit/SnapRing.h"

#include <gtest/gtest.h>

#include <limits>

#include "support/RasterCanvas.h"

namespace ormala {
namespace {

constexpr Color ringColor = rgb(255, 0, 0);

TEST(SnapRing, SurroundsItsPlaceWiderThanAGrownGrip) {
    SnapRing ring;
    ring.show(Point{100, 80}, ringColor, SheetScale(96));
    EXPECT_EQ(ring.face()->box, (PixelRect{84, 64, 117, 97}));
    EXPECT_EQ(ring.face()->borderWidth, 2);
    ring.show(Point{99.6, 80.4}, ringColor, SheetScale(192));
    EXPECT_EQ(ring.face()->box, (PixelRect{67, 47, 134, 114}).intersected(ring.face()->box));
    EXPECT_EQ(ring.face()->borderWidth, 4);
    EXPECT_GT(ring.face()->box.width(), 50);
}

TEST(SnapRing, CoversWhatItDraws) {
    SnapRing ring;
    ring.show(Point{50, 50}, ringColor, SheetScale(96));
    RasterCanvas canvas({100, 100});
    ring.draw(canvas);
    EXPECT_GT(canvas.painted(), 0);
    EXPECT_EQ(canvas.at(50, 50), RasterCanvas::empty) << "the place itself stays open";
    DirtyRegion region;
    ring.addTo(region);
    EXPECT_EQ(canvas.paintedOutside(region), 0);
}

TEST(SnapRing, WithoutAPlaceOrFarFromEveryScreenThereIsNone) {
    SnapRing ring;
    DirtyRegion region;
    for (const std::optional<Point> place :
         {std::optional<Point>(), std::optional(Point{2.0e6, 0}),
          std::optional(Point{0, std::numeric_limits<double>::quiet_NaN()})}) {
        ring.show(Point{5, 5}, ringColor, SheetScale());
        ring.show(place, ringColor, SheetScale());
        ring.addTo(region);
        EXPECT_FALSE(ring.face().has_value());
        EXPECT_TRUE(region.empty());
    }
}

}  // namespace
}  // namespace ormala
