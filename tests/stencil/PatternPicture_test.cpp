#include "stencil/PatternPicture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>
#include <string>

#include "modAPI/constants.h"
#include "stencil/PatternTable.h"

namespace ormala {
namespace {

constexpr Color back = rgb(104, 104, 104);
constexpr Color ink = rgb(255, 230, 0);
constexpr std::uint32_t backPixel = 0xFF686868U;
constexpr std::uint32_t inkPixel = 0xFFFFE600U;

PatternList only(int pattern, double preRotation = 0) {
    PatternList patterns;
    patterns[0] = {pattern, preRotation};
    return patterns;
}

PixelImage pictureOf(const PatternList& patterns, PixelSize size = {41, 41}) {
    return GetPatternPicture(patterns, size, back, ink);
}

std::uint32_t at(const PixelImage& image, int x, int y) {
    return image.argb.at(static_cast<std::size_t>(y) * static_cast<std::size_t>(image.size.width) +
                         static_cast<std::size_t>(x));
}

/// The picture as text: '#' ink, '.' ground, '+' something between.
std::string row(const PixelImage& image, int y) {
    std::string text;
    for (int x = 0; x < image.size.width; ++x) {
        const std::uint32_t pixel = at(image, x, y);
        text += pixel == inkPixel ? '#' : pixel == backPixel ? '.' : '+';
    }
    return text;
}

/// Whether the line through the middle of the pixel is seen there.
bool isInked(const PixelImage& image, int x, int y) {
    return at(image, x, y) != backPixel;
}

TEST(PatternPicture, AnEmptySelectionIsBlank) {
    const PixelImage image = pictureOf({});
    EXPECT_EQ(image.size, (PixelSize{41, 41}));
    EXPECT_EQ(image.argb.size(), 41U * 41U);
    EXPECT_TRUE(std::ranges::all_of(image.argb, [](auto pixel) { return pixel == backPixel; }));
}

TEST(PatternPicture, APictureWithoutPixelsIsEmpty) {
    EXPECT_TRUE(pictureOf(only(0), {0, 20}).argb.empty());
    EXPECT_TRUE(pictureOf(only(0), {20, -1}).argb.empty());
    EXPECT_EQ(pictureOf(only(0), {-5, -5}).size, (PixelSize{0, 0}));
}

TEST(PatternPicture, OnePixelHoldsAnyPattern) {
    for (int pattern = 0; pattern < PatternTable::count(); ++pattern) {
        EXPECT_EQ(pictureOf(only(pattern, 0.7), {1, 1}).argb.size(), 1U);
    }
}

TEST(PatternPicture, TheBoundaryIsTheOutermostPixels) {
    const PixelImage image = pictureOf(only(0), {7, 5});
    EXPECT_EQ(row(image, 0), "#######");
    EXPECT_EQ(row(image, 1), "#.....#");
    EXPECT_EQ(row(image, 3), "#.....#");
    EXPECT_EQ(row(image, 4), "#######");
}

TEST(PatternPicture, HalvesLieOnTheMiddlePixels) {
    const PixelImage image = pictureOf(only(1), {7, 5});
    EXPECT_EQ(row(image, 1), "#..#..#");
    EXPECT_EQ(row(image, 2), "#######");
}

TEST(PatternPicture, SectionsLieOnTheNearestPixels) {
    const PixelImage image = pictureOf(only(5));
    const int first = static_cast<int>(std::lround((1 - G) * 40));
    const int second = static_cast<int>(std::lround(G * 40));
    std::string expected = "#" + std::string(39, '.') + "#";
    expected[static_cast<std::size_t>(first)] = '#';
    expected[static_cast<std::size_t>(second)] = '#';
    EXPECT_EQ(row(image, 5), expected);
    EXPECT_EQ(row(image, first), std::string(41, '#'));
}

TEST(PatternPicture, DiagonalsMeetInTheMiddleAndReachTheCorners) {
    const PixelImage image = pictureOf(only(18));
    for (int i = 0; i < 41; ++i) {
        EXPECT_TRUE(isInked(image, i, i)) << i;
        EXPECT_TRUE(isInked(image, 40 - i, i)) << i;
    }
    EXPECT_EQ(at(image, 20, 20), inkPixel);
    EXPECT_FALSE(isInked(image, 20, 10));
}

TEST(PatternPicture, TurnedDiagonalsFillThePictureAsACross) {
    // By an eighth of a turn they are as long as the diagonal of the unit square.
    const PixelImage image = pictureOf(only(18, preRotations()[1]));
    EXPECT_EQ(row(image, 20), std::string(41, '#'));
    EXPECT_EQ(row(image, 0), std::string(20, '.') + "#" + std::string(20, '.'));
}

TEST(PatternPicture, ATurnedFrameFillsThePicture) {
    const PixelImage image = pictureOf(only(0, preRotations()[1]));
    EXPECT_TRUE(isInked(image, 20, 0));
    EXPECT_TRUE(isInked(image, 0, 20));
    EXPECT_TRUE(isInked(image, 40, 20));
    EXPECT_TRUE(isInked(image, 20, 40));
    EXPECT_FALSE(isInked(image, 1, 1));
}

TEST(PatternPicture, AQuarterTurnSwapsTheSidesOfALineSection) {
    const PixelImage image = pictureOf(only(4, preRotations()[2]));
    const int down = static_cast<int>(std::lround(G * 40));
    EXPECT_EQ(row(image, down), std::string(41, '#'));
}

TEST(PatternPicture, EllipsesAloneFillThePicture) {
    for (const PixelSize size : {PixelSize{41, 41}, PixelSize{61, 31}}) {
        const PixelImage image = pictureOf(only(12), size);
        const int middleX = size.width / 2;
        const int middleY = size.height / 2;
        EXPECT_TRUE(isInked(image, middleX, 0));
        EXPECT_TRUE(isInked(image, middleX, size.height - 1));
        EXPECT_TRUE(isInked(image, 0, middleY));
        EXPECT_TRUE(isInked(image, size.width - 1, middleY));
        EXPECT_FALSE(isInked(image, 0, 0));
        EXPECT_FALSE(isInked(image, middleX, middleY));
    }
}

TEST(PatternPicture, EllipsesFollowTheExtentOfTheSegments) {
    // The frame, turned by an eighth, is larger than the unit square, and the circle inside it
    // touches the middles of its sides.
    PatternList patterns = only(0, preRotations()[1]);
    patterns[1] = {12, 0};
    const PixelImage image = pictureOf(patterns);
    const double radius = 40 / std::sqrt(2.0) / 2;
    EXPECT_TRUE(isInked(image, 20, static_cast<int>(std::lround(20 - radius))));
    EXPECT_FALSE(isInked(image, 20, 3));
}

TEST(PatternPicture, EmptySlotsAreSkipped) {
    PatternList patterns;
    patterns[3] = {1, 0};
    EXPECT_EQ(pictureOf(patterns).argb, pictureOf(only(1)).argb);
}

TEST(PatternPicture, SlotsLieOverEachOther) {
    PatternList patterns = only(1);
    patterns[4] = {18, 0};
    const PixelImage both = pictureOf(patterns);
    const PixelImage halves = pictureOf(only(1));
    const PixelImage diagonals = pictureOf(only(18));
    for (int y = 0; y < 41; ++y) {
        for (int x = 0; x < 41; ++x) {
            EXPECT_EQ(isInked(both, x, y), isInked(halves, x, y) || isInked(diagonals, x, y));
        }
    }
}

TEST(PatternPicture, EveryPatternHasItsOwnPicture) {
    std::set<std::vector<std::uint32_t>> pictures;
    for (int pattern = 0; pattern < PatternTable::count(); ++pattern) {
        pictures.insert(pictureOf(only(pattern), {48, 48}).argb);
    }
    EXPECT_EQ(pictures.size(), 19U);
}

TEST(PatternPicture, EveryPixelIsOpaqueAndBetweenTheTwoColours) {
    const PixelImage image = pictureOf(only(7));
    EXPECT_TRUE(std::ranges::all_of(image.argb, [](std::uint32_t pixel) {
        const std::uint32_t green = (pixel >> 8) & 0xFF;
        return (pixel >> 24) == 0xFF && green >= 104 && green <= 230 && (pixel & 0xFF) <= 104;
    }));
}

TEST(PatternPicture, TheSpiralIsOneThinRunningLine) {
    const PixelImage image = pictureOf(only(7), {97, 97});
    const auto inked = std::ranges::count_if(image.argb, [](auto p) { return p != backPixel; });
    // Its length is some three times the side of the picture.
    EXPECT_GT(inked, 300);
    EXPECT_LT(inked, 900);
}

TEST(PatternPicture, WiderLinesLieInsideToo) {
    const PixelImage image = GetPatternPicture(only(1), {14, 10}, back, ink, 2);
    EXPECT_EQ(row(image, 1), "##############");
    EXPECT_EQ(row(image, 2), "##....##....##");
    EXPECT_EQ(row(image, 3), "##....##....##");
    EXPECT_EQ(row(image, 4), "##############");
    EXPECT_EQ(row(image, 5), "##############");
    EXPECT_EQ(row(image, 7), "##....##....##");
    EXPECT_EQ(row(image, 9), "##############");
}

TEST(PatternPicture, WiderCurvesLieInsideToo) {
    const PixelImage image = GetPatternPicture(only(12), {60, 60}, back, ink, 3);
    for (int line = 0; line < 3; ++line) {
        EXPECT_EQ(at(image, 30, line), inkPixel);
        EXPECT_EQ(at(image, 30, 59 - line), inkPixel);
        EXPECT_EQ(at(image, line, 30), inkPixel);
    }
    EXPECT_EQ(at(image, 30, 4), backPixel);
}

TEST(PatternLines, AreTheInkOfThePictureOnATransparentGround) {
    const PixelImage lines = patternLines(only(15), {41, 41}, ink);
    const PixelImage picture = pictureOf(only(15));
    for (std::size_t i = 0; i < lines.argb.size(); ++i) {
        const std::uint32_t alpha = lines.argb[i] >> 24;
        EXPECT_EQ(alpha == 0, picture.argb[i] == backPixel);
        EXPECT_EQ(alpha == 255, picture.argb[i] == inkPixel);
        EXPECT_EQ(lines.argb[i] & 0xFFFFFFU, alpha == 0 ? 0U : inkPixel & 0xFFFFFFU);
    }
}

TEST(PictureRect, TheExtentOfTheSegmentsFillsThePicture) {
    const Rect whole = pictureRect({0, 0, 1, 1}, {41, 21}, 1);
    EXPECT_EQ(whole, (Rect{0, 0, 40, 20}));
    const Rect twice = pictureRect({0.25, 0.25, 0.75, 0.75}, {41, 21}, 1);
    EXPECT_EQ(twice, (Rect{-20, -10, 60, 30}));
}

TEST(PictureRect, AnExtentOfZeroCountsAsOneAndLiesInTheMiddle) {
    // Segments on one vertical line at a quarter of the square.
    const Rect rect = pictureRect({0.25, 0, 0.25, 1}, {41, 41}, 1);
    EXPECT_EQ(rect.right - rect.left, 40);
    EXPECT_EQ(rect.left + 0.25 * (rect.right - rect.left), 20);
    EXPECT_EQ(rect.top, 0);
    EXPECT_EQ(rect.bottom, 40);
}

}  // namespace
}  // namespace ormala
