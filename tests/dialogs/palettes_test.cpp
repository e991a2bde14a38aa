#include "dialogs/palettes.h"

#include <algorithm>
#include <cstddef>
#include <set>

#include <gtest/gtest.h>

#include "scene/pixelImages.h"

namespace ormala {
namespace {

constexpr Color black = rgb(0, 0, 0);
constexpr Color white = rgb(255, 255, 255);

int spread(Color color) {
    const int red = color & 0xFF;
    const int green = (color >> 8) & 0xFF;
    const int blue = (color >> 16) & 0xFF;
    return std::max({red, green, blue}) - std::min({red, green, blue});
}

TEST(Palettes, EachHasTheSizeItIsDescribedWith) {
    EXPECT_EQ(paletteOf(palette::hues).size, (PixelSize{25, 12}));
    EXPECT_EQ(paletteOf(palette::pure).size, (PixelSize{12, 4}));
    EXPECT_EQ(paletteOf(palette::muted).size, (PixelSize{13, 8}));
    for (int index = 0; index < paletteCount; ++index) {
        const Palette& palette = paletteOf(index);
        EXPECT_EQ(palette.colors.size(),
                  static_cast<std::size_t>(palette.size.width * palette.size.height));
    }
}

TEST(Palettes, NoTwoFieldsHaveTheSameColor) {
    for (int index = 0; index < paletteCount; ++index) {
        const auto& colors = paletteOf(index).colors;
        EXPECT_EQ(std::set<Color>(colors.begin(), colors.end()).size(), colors.size()) << index;
    }
}

TEST(Palettes, EveryColorIsAPlainOne) {
    for (int index = 0; index < paletteCount; ++index) {
        for (const Color color : paletteOf(index).colors) {
            EXPECT_GE(color, black);
            EXPECT_LE(color, white);
        }
    }
}

TEST(Palettes, BothLargeOnesHoldBlackAndWhite) {
    for (const int index : {palette::hues, palette::pure}) {
        EXPECT_TRUE(paletteOf(index).holds(black));
        EXPECT_TRUE(paletteOf(index).holds(white));
    }
}

TEST(Palettes, TheHuesGrowDarkerDownwards) {
    const Palette& palette = paletteOf(palette::hues);
    for (int x = 0; x < palette.size.width; ++x) {
        for (int y = 1; y < palette.size.height; ++y) {
            EXPECT_LT(Luminance(palette.at({x, y})), Luminance(palette.at({x, y - 1})));
        }
    }
}

TEST(Palettes, TheHuesHaveARowOfPureOnes) {
    const Palette& palette = paletteOf(palette::hues);
    EXPECT_EQ(palette.at({0, 6}), rgb(255, 0, 0));
    EXPECT_EQ(palette.at({4, 6}), rgb(255, 255, 0));
    EXPECT_EQ(palette.at({8, 6}), rgb(0, 255, 0));
    EXPECT_EQ(palette.at({16, 6}), rgb(0, 0, 255));
}

TEST(Palettes, ThePureOneHasTheSixPureColorsInTheirOrder) {
    const Palette& palette = paletteOf(palette::pure);
    EXPECT_EQ(palette.at({0, 1}), rgb(255, 0, 0));
    EXPECT_EQ(palette.at({2, 1}), rgb(255, 255, 0));
    EXPECT_EQ(palette.at({4, 1}), rgb(0, 255, 0));
    EXPECT_EQ(palette.at({6, 1}), rgb(0, 255, 255));
    EXPECT_EQ(palette.at({8, 1}), rgb(0, 0, 255));
    EXPECT_EQ(palette.at({10, 1}), rgb(255, 0, 255));
}

TEST(Palettes, GreysHaveNoHue) {
    for (int x = 0; x < 12; ++x) {
        EXPECT_EQ(spread(paletteOf(palette::pure).at({x, 0})), 0);
        EXPECT_EQ(spread(paletteOf(palette::hues).at({24, x})), 0);
    }
}

TEST(Palettes, TheMutedOneShoutsNowhere) {
    for (const Color color : paletteOf(palette::muted).colors) {
        EXPECT_LE(spread(color), 80);
    }
}

TEST(Palettes, AColorIsFoundWhereItStandsFirstAndElseWhereItsDistanceIsLeast) {
    const Palette palette{{2, 2}, {0, rgb(90, 0, 0), rgb(90, 0, 0), rgb(0, 90, 90)}};
    EXPECT_EQ(palette.nearest(rgb(90, 0, 0)), (PixelPoint{1, 0}));
    EXPECT_EQ(palette.nearest(rgb(0, 90, 90)), (PixelPoint{1, 1}));
    EXPECT_EQ(palette.nearest(rgb(40, 0, 0)), (PixelPoint{0, 0}));
    EXPECT_EQ(palette.nearest(rgb(50, 0, 0)), (PixelPoint{1, 0}));
    // All three parts count, so that one great difference outweighs two small ones.
    EXPECT_EQ(palette.nearest(rgb(60, 60, 60)), (PixelPoint{1, 1}));
    EXPECT_TRUE(palette.holds(rgb(0, 90, 90)));
    EXPECT_FALSE(palette.holds(rgb(0, 90, 91)));
}

TEST(Palettes, TheOneForAColorHoldsIt) {
    EXPECT_EQ(paletteFor(rgb(255, 0, 0)), palette::hues);
    EXPECT_EQ(paletteFor(paletteOf(palette::pure).at({0, 3})), palette::pure);
    EXPECT_EQ(paletteFor(0x4F4F4F), palette::muted);
    EXPECT_EQ(paletteFor(rgb(1, 2, 3)), palette::hues);
}

TEST(Palettes, APictureShowsEachFieldInItsPlace) {
    const PixelImage picture = palettePicture(palette::pure, {24, 8});
    for (int x = 0; x < 12; ++x) {
        for (int y = 0; y < 4; ++y) {
            EXPECT_EQ(pixelAt(picture, {2 * x + 1, 2 * y + 1}),
                      opaquePixel(paletteOf(palette::pure).at({x, y})));
        }
    }
}

TEST(Palettes, AnIndexBeyondAnEndTakesThePaletteThere) {
    EXPECT_EQ(&paletteOf(-1), &paletteOf(0));
    EXPECT_EQ(&paletteOf(3), &paletteOf(2));
}

}  // namespace
}  // namespace ormala
