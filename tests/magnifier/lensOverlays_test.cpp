#include "magnifier/lensOverlays.h"

#include <gtest/gtest.h>

#include <limits>

#include "magnifier/PixelSheet.h"

namespace ormala {
namespace {

constexpr std::uint32_t mark = 0x0000FFU;

Color systemGrey(int /*index*/) {
    return rgb(1, 2, 3);
}

/// An image of 20 x 16 screen pixels with the hot spot on one of them.
LensImageLook lookAt(int factor, bool gridOn, PixelPoint hotSpot = {5, 7}) {
    LensImageLook look;
    look.options.factor = factor;
    look.options.gridOn = gridOn;
    look.layout = layOutLens({{10 + 20 * factor, 10 + 16 * factor}, factor, gridOn, {}, 96});
    look.hotSpot = hotSpot;
    return look;
}

PixelSize sizeOf(const LensImageLook& look) {
    return {look.layout.picLens.width(), look.layout.picLens.height()};
}

/// The image with nothing on it but a mark of that style, on black.
PixelSheet marked(const LensImageLook& look, int style) {
    PixelSheet sheet(sizeOf(look));
    DrawHotSpotAt(sheet.view(), look, look.hotSpot, RasterPen(mark), style);
    return sheet;
}

std::vector<PixelPoint> placesOf(const PixelSheet& sheet) {
    std::vector<PixelPoint> places;
    for (int y = 0; y < sheet.size().height; ++y) {
        for (int x = 0; x < sheet.size().width; ++x) {
            if (sheet.at(x, y) != 0) {
                places.push_back({x, y});
            }
        }
    }
    return places;
}

/// Draws both overlays in the order of a frame.
PixelSheet overlaid(PixelSheet sheet, const LensImageLook& look) {
    DrawGrid(sheet.view(), look, &systemGrey);
    DrawHotSpot(sheet.view(), look, &systemGrey);
    return sheet;
}

TEST(LensGrid, TakesTheLastRowAndColumnOfEachEnlargedPixel) {
    for (int factor = 2; factor <= 10; ++factor) {
        LensImageLook look = lookAt(factor, true);
        look.options.hotSpotOn = false;
        look.options.gridDrawMode = drawMode::color;
        look.options.gridColor = rgb(255, 0, 0);
        const PixelSheet sheet = overlaid(PixelSheet(sizeOf(look)), look);
        for (int y = 0; y < sheet.size().height; ++y) {
            for (int x = 0; x < sheet.size().width; ++x) {
                const bool line = x % factor == factor - 1 || y % factor == factor - 1;
                ASSERT_EQ(sheet.at(x, y), line ? 0xFF0000U : 0U) << x << "," << y;
            }
        }
    }
}

TEST(LensGrid, IsNotDrawnAtFactor1EvenIfItIsSwitchedOn) {
    LensImageLook look = lookAt(1, true);
    look.options.hotSpotOn = false;
    const PixelSheet plain = PixelSheet::random(sizeOf(look), 1);
    EXPECT_EQ(overlaid(plain, look), plain);
}

TEST(LensGrid, InvertsACrossingTwice) {
    LensImageLook look = lookAt(4, true);
    look.options.hotSpotOn = false;
    look.options.gridDrawMode = drawMode::inverted;
    const PixelSheet plain = PixelSheet::random(sizeOf(look), 2);
    const PixelSheet sheet = overlaid(plain, look);
    EXPECT_EQ(sheet.at(3, 3), plain.at(3, 3));
    EXPECT_EQ(sheet.at(3, 4), plain.at(3, 4) ^ 0xFFFFFFU);
}

TEST(LensPens, FollowTheTableOfDrawModes) {
    const Color chosen = rgb(10, 20, 30);
    const std::uint32_t picture = 0x00345678U;
    const auto left = [&](LensOverlay overlay, int mode) {
        return overlayPen(overlay, mode, chosen, &systemGrey).over(picture);
    };
    for (const LensOverlay overlay : {LensOverlay::grid, LensOverlay::mark}) {
        EXPECT_EQ(left(overlay, 6), picture ^ 0xFFFFFFU);
        EXPECT_EQ(left(overlay, 7), picture ^ 0x1F1F1FU);
        EXPECT_EQ(left(overlay, 13), 0x0A141EU);
        EXPECT_EQ(left(overlay, 15), picture | 0x3F3F3FU);
        EXPECT_EQ(left(overlay, 0), picture);
        EXPECT_EQ(left(overlay, 99), picture);
    }
    EXPECT_EQ(left(LensOverlay::mark, 9), picture & 0xC0C0C0U);
    EXPECT_EQ(left(LensOverlay::grid, 9), picture & 0xEFEFEFU);
}

TEST(LensPens, ResolveColorsOfTheSystem) {
    const auto system = static_cast<Color>(0x80000005U);
    EXPECT_EQ(overlayPen(LensOverlay::mark, 13, system, &systemGrey).over(0), 0x010203U);
}

TEST(LensPens, ChosenColorsHaveNoEffectInRestrainedMode) {
    LensImageLook look = lookAt(4, true);
    const PixelSheet plain = PixelSheet::random(sizeOf(look), 3);
    const PixelSheet before = overlaid(plain, look);
    look.options.gridColor = rgb(255, 0, 0);
    look.options.hotSpotColor = rgb(0, 255, 0);
    EXPECT_EQ(overlaid(plain, look), before);
    EXPECT_NE(before, plain);
}

TEST(LensMark, SquareCoincidesWithTheGridLinesOfItsPixel) {
    for (int factor = 2; factor <= 10; ++factor) {
        const LensImageLook look = lookAt(factor, true);
        const int left = 5 * factor - 1;
        const int top = 7 * factor - 1;
        const auto places = placesOf(marked(look, 0));
        EXPECT_EQ(places.size(), static_cast<std::size_t>(4 * factor));
        for (const PixelPoint place : places) {
            EXPECT_TRUE(place.x == left || place.x == left + factor || place.y == top ||
                        place.y == top + factor);
        }
    }
}

TEST(LensMark, SquareWithoutAGridFramesThePixelFromOutside) {
    for (int factor = 1; factor <= 10; ++factor) {
        const PixelSheet sheet = marked(lookAt(factor, false), 0);
        const PixelRect pixel{5 * factor, 7 * factor, 6 * factor, 8 * factor};
        for (const PixelPoint place : placesOf(sheet)) {
            EXPECT_FALSE(pixel.contains(place));
            EXPECT_TRUE(pixel.grown(1).contains(place));
        }
        EXPECT_EQ(placesOf(sheet).size(), static_cast<std::size_t>(4 * (factor + 1)));
    }
}

TEST(LensMark, CrossesGoThroughTheMiddleOfThePixel) {
    for (const bool grid : {false, true}) {
        const LensImageLook look = lookAt(8, grid);
        constexpr int middle = 4;
        const int x = 5 * 8 - 1 + middle;
        const int y = 7 * 8 - 1 + middle;
        const PixelSheet full = marked(look, 1);
        EXPECT_EQ(placesOf(full).size(),
                  static_cast<std::size_t>(full.size().width + full.size().height - 1));
        EXPECT_EQ(full.at(0, y), mark);
        EXPECT_EQ(full.at(x, 0), mark);
        const PixelSheet open = marked(look, 2);
        EXPECT_EQ(open.at(x, y), 0U);
        EXPECT_EQ(open.at(5 * 8 - 2, y), mark);
        EXPECT_EQ(open.at(5 * 8 - 1, y), 0U) << "the last point is left out";
        EXPECT_EQ(open.at(full.size().width - 1, y), mark);
        EXPECT_EQ(open.at(x, full.size().height - 1), mark);
        EXPECT_EQ(open.at(x, 0), mark);
        EXPECT_EQ(open.at(0, y), mark);
    }
}

TEST(LensMark, MiddleOfAnOddFactorIsItsMiddlePixel) {
    const auto dot = [](int factor, bool grid) {
        return placesOf(marked(lookAt(factor, grid), 4));
    };
    EXPECT_EQ(dot(5, false), (std::vector<PixelPoint>{{27, 37}}));
    EXPECT_EQ(dot(5, true), (std::vector<PixelPoint>{{26, 36}}));
    EXPECT_EQ(dot(4, false), (std::vector<PixelPoint>{{21, 29}}));
    EXPECT_EQ(dot(1, false), (std::vector<PixelPoint>{{5, 7}}));
}

TEST(LensMark, CombinedStylesAddTheSquare) {
    const LensImageLook look = lookAt(6, false);
    const auto united = [&look](int style) {
        PixelSheet sheet = marked(look, style);
        DrawHotSpotAt(sheet.view(), look, look.hotSpot, RasterPen(mark), 0);
        return sheet;
    };
    EXPECT_EQ(marked(look, 3), united(2));
    EXPECT_EQ(marked(look, 7), united(6));
}

TEST(LensMark, DiagonalsRunAt45DegreesThroughThePixel) {
    for (int factor = 1; factor <= 10; ++factor) {
        for (const bool grid : {false, true}) {
            const LensImageLook look = lookAt(factor, grid);
            const PixelPoint middle = placesOf(marked(look, 4)).front();
            for (const PixelPoint place : placesOf(marked(look, 5))) {
                const int dx = place.x - middle.x;
                const int dy = place.y - middle.y;
                EXPECT_TRUE(dx == dy || dx == -dy) << factor << ": " << place.x << "," << place.y;
            }
        }
    }
}

TEST(LensMark, OpenDiagonalsEndAtTheCornersOfTheSquare) {
    for (int factor = 1; factor <= 10; ++factor) {
        const LensImageLook look = lookAt(factor, false);
        const PixelRect square = PixelRect{5 * factor, 7 * factor, 6 * factor, 8 * factor}.grown(1);
        const PixelSheet sheet = marked(look, 6);
        for (const PixelPoint corner :
             {PixelPoint{square.left - 1, square.top - 1}, PixelPoint{square.right, square.top - 1},
              PixelPoint{square.left - 1, square.bottom},
              PixelPoint{square.right, square.bottom}}) {
            EXPECT_EQ(sheet.at(corner.x, corner.y), mark) << factor;
        }
        for (const PixelPoint place : placesOf(sheet)) {
            EXPECT_FALSE(square.contains(place)) << factor;
        }
    }
}

TEST(LensMark, OfAnUnknownStyleDrawsNothing) {
    const LensImageLook look = lookAt(4, false);
    for (const int style :
         {-1, 8, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
        EXPECT_TRUE(placesOf(marked(look, style)).empty()) << style;
    }
}

TEST(LensMark, FollowsTheHotSpotToTheEdgesOfTheImage) {
    for (const PixelPoint corner : {PixelPoint{0, 0}, PixelPoint{19, 15}, PixelPoint{-5, 40}}) {
        for (int style = 0; style < 8; ++style) {
            for (int factor = 1; factor <= 10; ++factor) {
                marked(lookAt(factor, true, corner), style);
            }
        }
    }
    EXPECT_EQ(placesOf(marked(lookAt(4, false, {0, 0}), 4)), (std::vector<PixelPoint>{{1, 1}}));
}

TEST(LensMark, InvertedOverAnInvertedGridRestoresThePicture) {
    LensImageLook look = lookAt(8, true);
    look.options.gridDrawMode = drawMode::inverted;
    look.options.hotSpotDrawMode = drawMode::inverted;
    look.options.hotSpotStyle = 1;
    const PixelSheet plain = PixelSheet::random(sizeOf(look), 4);
    const PixelSheet sheet = overlaid(plain, look);
    const int row = 7 * 8 - 1 + 4;
    EXPECT_EQ(sheet.at(7, row), plain.at(7, row)) << "the mark crosses a grid line";
    EXPECT_EQ(sheet.at(8, row), plain.at(8, row) ^ 0xFFFFFFU) << "the mark alone";
    EXPECT_EQ(sheet.at(7, row + 1), plain.at(7, row + 1) ^ 0xFFFFFFU) << "the grid alone";
}

TEST(LensMark, IsDrawnOnlyIfItIsSwitchedOn) {
    LensImageLook look = lookAt(4, false);
    const PixelSheet plain = PixelSheet::random(sizeOf(look), 5);
    EXPECT_NE(overlaid(plain, look), plain);
    look.options.hotSpotOn = false;
    EXPECT_EQ(overlaid(plain, look), plain);
}

}  // namespace
}  // namespace ormala
