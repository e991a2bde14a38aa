#include "magnifier/PointerPicture.h"

#include <gtest/gtest.h>

#include "magnifier/PixelSheet.h"

namespace ormala {
namespace {

constexpr std::uint32_t black = 0;
constexpr std::uint32_t white = 0xFFFFFFU;

/// The pixel of a pointer that makes those of black and of white.
PointerPicture::Pixel making(std::uint32_t onBlack, std::uint32_t onWhite) {
    return {{0, 0}, onBlack, onWhite};
}

TEST(PointerPicture, CoversBlendsAndInvertsItsGround) {
    const std::uint32_t ground = 0x204060U;
    EXPECT_EQ(pixelUnder(making(0xFFE600U, 0xFFE600U), ground), 0xFFE600U);
    EXPECT_EQ(pixelUnder(making(white, black), ground), white - ground);
    // Half opaque red.
    EXPECT_EQ(pixelUnder(making(0x800000U, 0xFF7F7FU), ground), 0x902030U);
}

TEST(PointerPicture, HoldsOnlyThePixelsThatChangeTheGround) {
    PixelSheet onBlack({4, 2}, black);
    PixelSheet onWhite({4, 2}, white);
    onBlack.view().row(1)[2] = 0xFF123456U;
    onWhite.view().row(1)[2] = 0xFF123456U;
    onWhite.view().row(0)[3] = black;
    const PointerPicture picture = pointerPicture(onBlack.view(), onWhite.view(), {1, 1});
    ASSERT_EQ(picture.pixels.size(), 2U);
    EXPECT_EQ(picture.pixels[0].place, (PixelPoint{3, 0}));
    EXPECT_EQ(picture.pixels[1].place, (PixelPoint{2, 1}));
    EXPECT_EQ(picture.pixels[1].onBlack, 0x123456U);
}

TEST(DrawPointer, PutsItsHotSpotOnTheEnlargedPixelItPointsTo) {
    PointerPicture picture{{{{1, 0}, 0xAABBCCU, 0xAABBCCU}, {{2, 3}, 0x112233U, 0x112233U}},
                           {1, 0}};
    for (const int factor : {1, 4, 10}) {
        PixelSheet sheet({80, 80});
        drawPointer(sheet.view(), picture, {3, 2}, factor);
        for (int y = 0; y < 80; ++y) {
            for (int x = 0; x < 80; ++x) {
                std::uint32_t expected = 0;
                if (x / factor == 3 && y / factor == 2) {
                    expected = 0xAABBCCU;
                } else if (x / factor == 4 && y / factor == 5) {
                    expected = 0x112233U;
                }
                ASSERT_EQ(sheet.at(x, y), expected) << x << "," << y << " at " << factor;
            }
        }
    }
}

TEST(DrawPointer, IsCutAtTheEdgesOfTheImage) {
    PointerPicture picture{{{{0, 0}, white, white}, {{31, 31}, white, white}}, {16, 16}};
    PixelSheet sheet({20, 20});
    drawPointer(sheet.view(), picture, {0, 0}, 5);
    drawPointer(sheet.view(), picture, {-1000, 1000}, 10);
    EXPECT_EQ(sheet, PixelSheet({20, 20}));
    drawPointer(sheet.view(), picture, {-14, -14}, 7);
    EXPECT_EQ(sheet.at(19, 19), black);
    EXPECT_EQ(sheet.at(7, 7), white);
    EXPECT_EQ(sheet.at(13, 13), white);
    EXPECT_EQ(sheet.at(14, 14), black);
}

}  // namespace
}  // namespace ormala
