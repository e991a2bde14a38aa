#include "scene/pixelImages.h"

#include <gtest/gtest.h>

#include "modAPI/drawingColors.h"

namespace ormala {
namespace {

TEST(opaquePixel, PutsRedAboveBlue) {
    EXPECT_EQ(opaquePixel(rgb(1, 2, 3)), 0xFF010203U);
}

TEST(fillBox, StaysInsideTheImage) {
    PixelImage image = filledImage({3, 2}, 7);
    fillBox(image, {2, 1, 9, 9}, 5);
    fillBox(image, {-4, -4, 1, 1}, 6);
    EXPECT_EQ(image.argb, (std::vector<std::uint32_t>{6, 7, 7, 7, 7, 5}));
}

TEST(blendOnto, MixesByTheOpacityAndRounds) {
    PixelImage ground = filledImage({4, 1}, 0xFF000000U);
    const PixelImage picture{{4, 1}, {0x00FFFFFFU, 0x80FFFFFFU, 0xFFFF8040U, 0x01FFFFFFU}};
    blendOnto(ground, picture, {0, 0});
    EXPECT_EQ(ground.argb,
              (std::vector<std::uint32_t>{0xFF000000U, 0xFF808080U, 0xFFFF8040U, 0xFF010101U}));
}

TEST(blendOnto, CutsWhatLiesOutside) {
    PixelImage ground = filledImage({2, 2}, 0xFF000000U);
    const PixelImage picture{{2, 2}, {0xFF000001U, 0xFF000002U, 0xFF000003U, 0xFF000004U}};
    blendOnto(ground, picture, {-1, -1});
    EXPECT_EQ(pixelAt(ground, {0, 0}), 0xFF000004U);
    blendOnto(ground, picture, {1, 1});
    EXPECT_EQ(pixelAt(ground, {1, 1}), 0xFF000001U);
    EXPECT_EQ(pixelAt(ground, {1, 0}), 0xFF000000U);
    blendOnto(ground, picture, {5, 5});
    EXPECT_EQ(pixelAt(ground, {1, 1}), 0xFF000001U);
}

TEST(greyed, KeepsBrightnessAndOpacity) {
    const PixelImage image{{3, 1}, {0xFFFFFFFFU, 0x4000FF00U, 0xFF000000U}};
    EXPECT_EQ(greyed(image).argb,
              (std::vector<std::uint32_t>{0xFFFFFFFFU, 0x40B6B6B6U, 0xFF000000U}));
}

TEST(faded, TakesItsPartOfTheOpacityOnly) {
    const PixelImage image{{2, 1}, {0xFF123456U, 0x80FFFFFFU}};
    EXPECT_EQ(faded(image, 128).argb, (std::vector<std::uint32_t>{0x80123456U, 0x40FFFFFFU}));
}

TEST(InTwoColors, TakesDarkInkForOneAndAllElseForTheOther) {
    const PixelImage drawn{
        {5, 1},
        {opaquePixel(pictureInk::ink), opaquePixel(pictureInk::paper),
         opaquePixel(pictureInk::accent), opaquePixel(pictureInk::red), 0x40EBEBEBU}};
    const PixelImage two = inTwoColors(drawn, rgb(1, 2, 3), rgb(250, 251, 252));
    EXPECT_EQ(two.argb,
              (std::vector{0xFF010203U, 0xFFFAFBFCU, 0xFFFAFBFCU, 0xFFFAFBFCU, 0x40FAFBFCU}));
    // Between the inks lies what is between the colours.
    const PixelImage edge{{1, 1}, {0xFF404040U}};
    const std::uint32_t mixed = inTwoColors(edge, plain::black, plain::white).argb[0] & 0xFFU;
    EXPECT_GT(mixed, 0x20U);
    EXPECT_LT(mixed, 0xE0U);
}

}  // namespace
}  // namespace ormala
