#include "platform/win/pixels.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>

#include "platform/win/regions.h"
#include "win/TestSheet.h"

namespace ormala {
namespace {

constexpr PixelSize mapSize{20, 10};
constexpr COLORREF redPixel = RGB(255, 0, 0);
constexpr COLORREF blue = RGB(0, 0, 255);

TEST(CopyRow, PutsItsPixelsIntoOneRowFromTheLeftOn) {
    BackBuffer picture;
    picture.resize(mapSize);
    copyRow(picture.context(), {5, 3}, std::array<std::uint32_t, 2>{0xFF0000, 0x0000FF});
    const PixelMap map = readPixels(picture.context(), mapSize);
    EXPECT_EQ(map.at(5, 3), redPixel);
    EXPECT_EQ(map.at(6, 3), blue);
    EXPECT_EQ(std::ranges::count(map.pixels, RGB(0, 0, 0)), 20 * 10 - 2);
}

TEST(BackBuffer, RowsAreThePixelsOfItsPictureAlsoInABitmapThatIsWider) {
    BackBuffer picture;
    picture.resize({40, 30});
    picture.resize(mapSize);
    const PixelView view = picture.view();
    ASSERT_EQ(view.size, mapSize);
    std::fill_n(view.row(7), mapSize.width, 0xFF0000U);
    const PixelMap map = readPixels(picture.context(), mapSize);
    EXPECT_EQ(std::ranges::count(map.pixels, redPixel), 20);
    EXPECT_EQ(map.at(0, 7), redPixel);
    EXPECT_EQ(map.at(19, 7), redPixel);
}

TEST(RectsOfARegion, CoverItOnceEach) {
    const std::array<PixelRect, 2> parts{PixelRect{0, 0, 10, 10}, PixelRect{5, 5, 15, 20}};
    const RegionHandle region = regionOf(parts);
    int area = 0;
    for (const PixelRect& rect : rectsOf(region.get())) {
        area += rect.width() * rect.height();
    }
    EXPECT_EQ(area, 100 + 150 - 25);
    EXPECT_TRUE(rectsOf(regionOf(std::span<const PixelRect>{}).get()).empty());
}

}  // namespace
}  // namespace ormala
