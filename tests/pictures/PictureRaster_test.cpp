#include "pictures/PictureRaster.h"

#include <cstddef>
#include <vector>

#include <gtest/gtest.h>

#include "modAPI/constants.h"
#include "scene/pixelImages.h"

namespace ormala {
namespace {

constexpr std::uint32_t red = 0xFFFF0000;
constexpr std::uint32_t blue = 0xFF0000FF;

std::vector<Contour> outlines(std::string_view path) {
    return readOutlines(path, Turn::none, GridFit(24, 2));
}

/// In pixels.
double coverage(const PixelImage& image) {
    double sum = 0;
    for (const std::uint32_t argb : image.argb) {
        sum += static_cast<double>(argb >> 24) / 255;
    }
    return sum;
}

PixelImage filled(std::string_view path) {
    PictureRaster raster({24, 24});
    raster.fill(outlines(path), red);
    return raster.reduced();
}

PixelImage stroked(std::string_view path, double width) {
    PictureRaster raster({24, 24});
    raster.stroke(outlines(path), width, red);
    return raster.reduced();
}

TEST(PictureRaster, APictureHasTheSizeAskedFor) {
    const PixelImage image = PictureRaster({5, 7}).reduced();
    EXPECT_EQ(image.size, (PixelSize{5, 7}));
    EXPECT_EQ(image.argb, std::vector<std::uint32_t>(35, 0));
}

TEST(PictureRaster, ASideBelowOneGivesNoPixels) {
    for (const PixelSize size : {PixelSize{0, 5}, PixelSize{5, 0}, PixelSize{-3, -4}}) {
        PictureRaster raster(size);
        raster.fill(outlines("R 0 0 24 24"), red);
        EXPECT_EQ(raster.reduced().size, PixelSize{});
        EXPECT_TRUE(raster.reduced().argb.empty());
    }
}

TEST(PictureRaster, ARectangleOnPixelBordersIsSharp) {
    const PixelImage image = filled("R 4 5 9 8");
    EXPECT_DOUBLE_EQ(coverage(image), 15);
    EXPECT_EQ(pixelAt(image, {4, 5}), red);
    EXPECT_EQ(pixelAt(image, {8, 7}), red);
    EXPECT_EQ(pixelAt(image, {9, 7}), 0U);
    EXPECT_EQ(pixelAt(image, {8, 8}), 0U);
}

TEST(PictureRaster, ATriangleCoversHalfItsBox) {
    EXPECT_NEAR(coverage(filled("M2 2L22 2L2 22Z")), 200, 4);
}

TEST(PictureRaster, ACircleCoversItsArea) {
    EXPECT_NEAR(coverage(filled("O 12 12 9")), pi * 81, 2.5);
}

TEST(PictureRaster, ContoursOfOneDirectionUniteAndOppositeOnesCutOut) {
    EXPECT_NEAR(coverage(filled("R 4 4 14 14 R 10 4 20 14")), 160, 1e-6);
    EXPECT_NEAR(coverage(filled("M4 4L20 4L20 20L4 20ZM8 8L8 16L16 16L16 8Z")), 256 - 64, 1e-6);
}

TEST(PictureRaster, ALineHasItsWidthAndRoundEnds) {
    EXPECT_NEAR(coverage(stroked("M4 12L20 12", 4)), 16 * 4 + pi * 4, 0.6);
    EXPECT_NEAR(coverage(stroked("M12 12L12 12", 6)), pi * 9, 0.6);
}

TEST(PictureRaster, AClosedLineComesBackToItsStart) {
    const PixelImage closed = stroked("R 4 4 20 20", 2);
    EXPECT_EQ(pixelAt(closed, {3, 12}), red);
    const PixelImage open = stroked("M4 4L20 4L20 20L4 20", 2);
    EXPECT_EQ(pixelAt(open, {3, 12}), 0U);
}

TEST(PictureRaster, WhatIsDrawnReplacesWhatWasThere) {
    PictureRaster raster({24, 24});
    raster.fill(outlines("R 0 0 24 24"), red);
    raster.fill(outlines("R 4 4 20 20"), blue);
    raster.fill(outlines("R 8 8 16 16"), 0);
    const PixelImage image = raster.reduced();
    EXPECT_EQ(pixelAt(image, {0, 0}), red);
    EXPECT_EQ(pixelAt(image, {5, 5}), blue);
    EXPECT_EQ(pixelAt(image, {10, 10}), 0U);
}

TEST(PictureRaster, AnEdgeKeepsItsColorAndLosesOpacity) {
    PictureRaster raster({24, 24});
    const Contour half{{{0, 0}, {4.5, 0}, {4.5, 24}, {0, 24}}, true};
    raster.fill(std::span(&half, 1), red);
    EXPECT_EQ(pixelAt(raster.reduced(), {4, 12}), 0x80FF0000U);
}

TEST(PictureRaster, WhatReachesOutIsCutOff) {
    PictureRaster raster({4, 4});
    const Contour wide{{{-100, -100}, {100, -100}, {100, 100}, {-100, 100}}, true};
    raster.fill(std::span(&wide, 1), red);
    raster.stroke(std::span(&wide, 1), 3, blue);
    EXPECT_EQ(raster.reduced().argb, std::vector<std::uint32_t>(16, red));
}

}  // namespace
}  // namespace ormala
