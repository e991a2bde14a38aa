#include "pictures/linePicture.h"

#include <algorithm>
#include <cstddef>
#include <set>
#include <string>

#include <gtest/gtest.h>

namespace ormala {
namespace {

constexpr std::uint32_t white = 0xFFFFFFFF;

/// One row, a dark pixel being '#'.
std::string row(const PixelImage& image, int y) {
    std::string text;
    for (int x = 0; x < image.size.width; ++x) {
        const auto at = static_cast<std::size_t>(y * image.size.width + x);
        text += image.argb[at] == white ? '.' : '#';
    }
    return text;
}

int darkRows(const PixelImage& image) {
    int rows = 0;
    for (int y = 0; y < image.size.height; ++y) {
        rows += row(image, y).find('#') != std::string::npos ? 1 : 0;
    }
    return rows;
}

TEST(LinePicture, ASolidLineLiesThreePixelsBelowTheTopOfASmallPicture) {
    const PixelImage image = drawLinePicture(2, {16, 7});
    EXPECT_EQ(image.size, (PixelSize{16, 7}));
    EXPECT_EQ(row(image, 3), "..############..");
    EXPECT_EQ(darkRows(image), 1);
}

TEST(LinePicture, DotsAndDashesAreToldApart) {
    EXPECT_EQ(row(drawLinePicture(0, {16, 7}), 3), "..##..##..##....");
    EXPECT_EQ(row(drawLinePicture(1, {16, 7}), 3), "..#####...####..");
}

TEST(LinePicture, ASolidLineIsOnePixelNarrowerThanItsCode) {
    for (int code = 2; code <= 6; ++code) {
        EXPECT_EQ(darkRows(drawLinePicture(code, {24, 11})), code - 1);
    }
}

TEST(LinePicture, ALineWiderThanThePictureFillsItsHeight) {
    EXPECT_EQ(darkRows(drawLinePicture(1000000, {16, 7})), 7);
}

TEST(LinePicture, ANegativeCodeIsDotted) {
    EXPECT_EQ(drawLinePicture(-7, {16, 7}).argb, drawLinePicture(0, {16, 7}).argb);
}

TEST(LinePicture, TheFiveStylesDifferAtEverySize) {
    for (const int side : {16, 20, 24, 32, 64}) {
        std::set<std::vector<std::uint32_t>> seen;
        for (int code = 0; code < 5; ++code) {
            EXPECT_TRUE(seen.insert(drawLinePicture(code, {side, side / 2}).argb).second);
        }
    }
}

TEST(LinePicture, ASideBelowOneGivesNoPixels) {
    EXPECT_TRUE(drawLinePicture(2, {0, 7}).argb.empty());
    EXPECT_TRUE(drawLinePicture(2, {16, -1}).argb.empty());
}

}  // namespace
}  // namespace ormala
