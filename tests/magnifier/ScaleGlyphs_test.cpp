#include "magnifier/ScaleGlyphs.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "magnifier/PixelSheet.h"

namespace ormala {
namespace {

std::string spelled(int value) {
    std::string text;
    for (const std::size_t sign : NumberText(value)) {
        text += "0123456789-"[sign];
    }
    return text;
}

/// Signs of full coverage, each wider than the one before.
ScaleGlyphs blocks() {
    ScaleGlyphs glyphs;
    glyphs.height = 3;
    for (std::size_t i = 0; i < ScaleGlyphs::count; ++i) {
        glyphs.glyphs.at(i) = {static_cast<int>(i) + 1,
                               std::vector<std::uint8_t>((i + 1) * 3, 255)};
    }
    return glyphs;
}

TEST(NumberText, IsWrittenInDecimalDigits) {
    for (const int value : {0, 7, 10, 1234, -1, -50, 1000000, std::numeric_limits<int>::max(),
                            std::numeric_limits<int>::min()}) {
        EXPECT_EQ(spelled(value), std::to_string(value));
    }
}

TEST(NumberText, IsAsWideAsItsSigns) {
    EXPECT_EQ(NumberText(0).width(blocks()), 1);
    EXPECT_EQ(NumberText(-12).width(blocks()), 11 + 2 + 3);
}

TEST(DrawNumber, CoversTheGroundBySignsSideBySide) {
    PixelSheet sheet({12, 5});
    drawNumber(sheet.view(), blocks(), {1, 1}, NumberText(21), 0xFFFFE600U);
    for (int y = 0; y < 5; ++y) {
        for (int x = 0; x < 12; ++x) {
            const bool inside = y >= 1 && y < 4 && x >= 1 && x < 6;
            EXPECT_EQ(sheet.at(x, y), inside ? 0xFFFFE600U : 0U) << x << "," << y;
        }
    }
}

TEST(DrawNumber, BlendsWhereASignCoversPartOfAPixel) {
    ScaleGlyphs glyphs = blocks();
    glyphs.glyphs[0].coverage = {0, 128, 255};
    PixelSheet sheet({1, 3}, 0xFF4A4A4AU);
    drawNumber(sheet.view(), glyphs, {0, 0}, NumberText(0), 0xFFFFE600U);
    EXPECT_EQ(sheet.at(0, 0), 0xFF4A4A4AU);
    EXPECT_EQ(sheet.at(0, 1), 0xFFA59825U);
    EXPECT_EQ(sheet.at(0, 2), 0xFFFFE600U);
}

TEST(DrawNumber, IsCutAtTheEdges) {
    for (const PixelPoint place :
         {PixelPoint{-3, -2}, PixelPoint{10, 4}, PixelPoint{-100, 0}, PixelPoint{0, 100}}) {
        PixelSheet sheet({12, 5});
        drawNumber(sheet.view(), blocks(), place, NumberText(98765), 0xFFFFE600U);
        const bool outside = place.x < -50 || place.y > 50;
        EXPECT_EQ(sheet == PixelSheet({12, 5}), outside);
    }
}

}  // namespace
}  // namespace ormala
