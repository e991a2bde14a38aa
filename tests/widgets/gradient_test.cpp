#include "widgets/gradient.h"

#include <gtest/gtest.h>

#include "scene/pixelImages.h"

namespace ormala {
namespace {

Color greyOfIndex(int index) {
    return rgb(index, index, index);
}

PixelImage drawn(PixelSize size, int orientation = 1) {
    GradientDesign design;
    design.ColorTopLeft = rgb(10, 0, 0);
    design.ColorBottomRight = rgb(50, 0, 200);
    design.Orientation = orientation;
    return gradientImage(design, size, &greyOfIndex);
}

TEST(gradientImage, PanelOneLineHighShowsColorTopLeftAlone) {
    EXPECT_EQ(drawn({3, 1}).argb, std::vector<std::uint32_t>(3, 0xFF0A0000U));
    EXPECT_EQ(drawn({1, 3}, 0).argb, std::vector<std::uint32_t>(3, 0xFF0A0000U));
}

TEST(gradientImage, FallsFromTheFirstRowToTheLast) {
    const PixelImage image = drawn({2, 5});
    EXPECT_EQ(pixelAt(image, {0, 0}), 0xFF0A0000U);
    EXPECT_EQ(pixelAt(image, {1, 2}), 0xFF1E0064U);
    EXPECT_EQ(pixelAt(image, {0, 4}), 0xFF3200C8U);
    EXPECT_EQ(pixelAt(image, {0, 3}), pixelAt(image, {1, 3}));
}

TEST(gradientImage, AnyOtherOrientationRunsFromLeftToRight) {
    for (const int orientation : {0, 2, -1}) {
        const PixelImage image = drawn({5, 2}, orientation);
        EXPECT_EQ(pixelAt(image, {0, 1}), 0xFF0A0000U);
        EXPECT_EQ(pixelAt(image, {2, 0}), 0xFF1E0064U);
        EXPECT_EQ(pixelAt(image, {4, 1}), 0xFF3200C8U);
    }
}

TEST(gradientImage, StartsWithHighlightAndShadowOfTheSystem) {
    const PixelImage image = gradientImage({}, {1, 2}, &greyOfIndex);
    EXPECT_EQ(image.argb, (std::vector<std::uint32_t>{0xFF141414U, 0xFF101010U}));
}

TEST(gradientImage, ReduceStrengthensTheFirstColour) {
    GradientDesign design;
    design.ColorTopLeft = rgb(100, 100, 100);
    design.ColorBottomRight = rgb(200, 200, 200);
    design.Reduce = 50;
    EXPECT_EQ(gradientImage(design, {1, 2}, &greyOfIndex).argb,
              (std::vector<std::uint32_t>{0xFFC8C8C8U, 0xFF646464U}));
}

TEST(gradientImage, NoSizeIsEmpty) {
    EXPECT_TRUE(drawn({0, 0}).argb.empty());
}

}  // namespace
}  // namespace ormala
