#include "dialogs/hotSpotPicture.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "scene/pixelImages.h"

namespace ormala {
namespace {

/// "#" the mark, "." the field, " " nothing.
std::string shown(int style, PixelSize size) {
    const PixelImage image = drawHotSpotPicture(style, size);
    std::string text;
    for (int y = 0; y < size.height; ++y) {
        for (int x = 0; x < size.width; ++x) {
            const auto pixel = pixelAt(image, {x, y});
            text += pixel == 0 ? ' ' : pixel == opaquePixel(rgb(40, 40, 40)) ? '#' : '.';
        }
        text += '\n';
    }
    return text;
}

TEST(HotSpotPicture, ShowsTheSquare) {
    EXPECT_EQ(shown(0, {9, 9}),
              ".........\n"
              ".........\n"
              "..#####..\n"
              "..#...#..\n"
              "..#...#..\n"
              "..#...#..\n"
              "..#####..\n"
              ".........\n"
              ".........\n");
}

TEST(HotSpotPicture, ShowsTheFullCross) {
    EXPECT_EQ(shown(1, {5, 5}),
              "..#..\n"
              "..#..\n"
              "#####\n"
              "..#..\n"
              "..#..\n");
}

TEST(HotSpotPicture, EndsTheOpenCrossAtTheSquare) {
    EXPECT_EQ(shown(2, {9, 9}),
              "....#....\n"
              "....#....\n"
              ".........\n"
              ".........\n"
              "##.....##\n"
              ".........\n"
              ".........\n"
              "....#....\n"
              "....#....\n");
}

TEST(HotSpotPicture, ShowsTheDotInTheMiddle) {
    EXPECT_EQ(shown(4, {5, 5}),
              ".....\n"
              ".###.\n"
              ".###.\n"
              ".###.\n"
              ".....\n");
}

TEST(HotSpotPicture, ShowsTheFullDiagonals) {
    EXPECT_EQ(shown(5, {5, 5}),
              "#...#\n"
              ".#.#.\n"
              "..#..\n"
              ".#.#.\n"
              "#...#\n");
}

TEST(HotSpotPicture, AddsTheSquareToTheOpenDiagonals) {
    EXPECT_EQ(shown(7, {9, 9}),
              "#.......#\n"
              ".#.....#.\n"
              "..#####..\n"
              "..#...#..\n"
              "..#...#..\n"
              "..#...#..\n"
              "..#####..\n"
              ".#.....#.\n"
              "#.......#\n");
}

TEST(HotSpotPicture, IsAnotherOneForEachStyle) {
    std::set<std::string> pictures;
    for (int style = 0; style < 8; ++style) {
        pictures.insert(shown(style, {17, 17}));
    }
    EXPECT_EQ(pictures.size(), 8U);
}

TEST(HotSpotPicture, IsTheFieldAloneForAStyleThereIsNot) {
    for (const int style : {-1, 8}) {
        EXPECT_EQ(shown(style, {17, 17}).find('#'), std::string::npos) << style;
    }
}

TEST(HotSpotPicture, DrawsLinesOfWholePixelsInAnySize) {
    for (const int side : {16, 17, 21, 34, 40, 60}) {
        const PixelImage image = drawHotSpotPicture(1, {side, side});
        std::set<std::uint32_t> colors(image.argb.begin(), image.argb.end());
        colors.erase(0);
        EXPECT_EQ(colors.size(), 2U) << side;
        const std::string rows = shown(1, {side, side});
        const auto width = static_cast<std::size_t>(side);
        // In the second row only the upright line of the cross is seen.
        const std::string row = rows.substr(width + 1, width);
        const auto first = row.find('#');
        EXPECT_EQ(row.rfind('#') - first + 1, width / 16 > 1 ? width / 16 : 1) << side;
        EXPECT_EQ(row.find_last_of("#.") - row.rfind('#'), first - row.find_first_of("#.")) << side;
    }
}

TEST(HotSpotPicture, StandsInTheMiddleOfAnOblongField) {
    EXPECT_EQ(shown(1, {7, 3}),
              "  .#.  \n"
              "  ###  \n"
              "  .#.  \n");
}

TEST(HotSpotPicture, HasNoPixelsWithoutRoom) {
    EXPECT_TRUE(drawHotSpotPicture(3, {0, 12}).argb.empty());
    EXPECT_TRUE(drawHotSpotPicture(3, {12, 0}).argb.empty());
}

}  // namespace
}  // namespace ormala
