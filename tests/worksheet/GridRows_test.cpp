#include "worksheet/GridRows.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <random>
#include <string>

namespace ormala {
namespace {

constexpr std::uint32_t ground = 0x112233;
constexpr std::uint32_t ink = 0xAABBCC;

BackgroundGrid gridOf(int style, int lineWidth, const Grid& steps) {
    return {true, style, lineWidth, 0x7D7D7D, steps};
}

/// Rows of '#' and '.', parted by line breaks.
std::string picture(const BackgroundGrid& grid, PixelSize size) {
    const GridRows rows(grid, size, {ground, ink});
    std::string drawn;
    for (int y = 0; y < size.height; ++y) {
        for (const std::uint32_t pixel : rows.row(y)) {
            drawn += pixel == ink ? '#' : pixel == ground ? '.' : '?';
        }
        drawn += '\n';
    }
    return drawn;
}

int countOf(const std::string& drawn) {
    return static_cast<int>(std::ranges::count(drawn, '#'));
}

TEST(GridRows, PointsStandAtTheOriginAndInSteps) {
    EXPECT_EQ(picture(gridOf(1, 2, {3, 2, 1, 1}), {8, 6}),
              "........\n"
              ".#..#..#\n"
              "........\n"
              ".#..#..#\n"
              "........\n"
              ".#..#..#\n");
}

TEST(GridRows, LinesRunThroughTheWholeArea) {
    EXPECT_EQ(picture(gridOf(2, 2, {4, 3, 1, 1}), {7, 6}),
              ".#...#.\n"
              "#######\n"
              ".#...#.\n"
              ".#...#.\n"
              "#######\n"
              ".#...#.\n");
}

TEST(GridRows, DottedStyleOfWidth0HasNoEffectOnPoints) {
    const Grid steps{3, 2, 1, 1};
    EXPECT_EQ(picture(gridOf(1, 0, steps), {30, 30}), picture(gridOf(1, 2, steps), {30, 30}));
}

TEST(GridRows, PointsAreSinglePixelsWhateverTheWidth) {
    const Grid steps{7, 9, 1, 1};
    EXPECT_EQ(picture(gridOf(1, 6, steps), {30, 30}), picture(gridOf(1, 2, steps), {30, 30}));
}

TEST(GridRows, EnabledGridOfStyle0DrawsNothing) {
    const BackgroundGrid grid = gridOf(0, 2, {3, 3, 0, 0});
    EXPECT_FALSE(GridRows::shows(grid));
    EXPECT_EQ(countOf(picture(grid, {20, 20})), 0);
    EXPECT_TRUE(grid.enabled) << "the toggle still reads on";
}

TEST(GridRows, UnknownStyleDrawsNothing) {
    for (const int style : {-1, 3, 77}) {
        EXPECT_FALSE(GridRows::shows(gridOf(style, 2, {3, 3, 0, 0}))) << style;
    }
}

TEST(GridRows, DisabledGridDrawsNothing) {
    BackgroundGrid grid = gridOf(2, 2, {3, 3, 0, 0});
    grid.enabled = false;
    EXPECT_FALSE(GridRows::shows(grid));
    EXPECT_EQ(countOf(picture(grid, {20, 20})), 0);
}

TEST(GridRows, DottedLinesHaveThreePixelsAndThreeOfGap) {
    const std::string drawn = picture(gridOf(2, 0, {100, 100, 0, 0}), {14, 2});
    EXPECT_EQ(drawn.substr(0, 14), "###...###...##");
    EXPECT_EQ(picture(gridOf(2, 0, {100, 100, 0, 100}), {1, 8}), "#\n#\n#\n.\n.\n.\n#\n#\n");
}

TEST(GridRows, DashedLinesHaveEighteenPixelsAndSixOfGap) {
    const std::string drawn = picture(gridOf(2, 1, {100, 100, 100, 0}), {30, 1});
    EXPECT_EQ(drawn, std::string(18, '#') + std::string(6, '.') + std::string(6, '#') + "\n");
}

TEST(GridRows, WideLinesLieAboutTheirPlace) {
    // Code 4 is three pixels wide, code 3 two.
    EXPECT_EQ(picture(gridOf(2, 4, {6, 100, 4, 50}), {12, 1}), "...###...###\n");
    EXPECT_EQ(picture(gridOf(2, 3, {6, 100, 4, 50}), {12, 1}), "...##....##.\n");
}

TEST(GridRows, ALineOnEachBoundOfTheAreaShowsItsHalfInside) {
    EXPECT_EQ(picture(gridOf(2, 4, {10, 100, 0, 50}), {10, 1}), "##.......#\n");
    EXPECT_EQ(picture(gridOf(2, 2, {10, 100, 0, 50}), {10, 1}), "#.........\n");
}

TEST(GridRows, NothingStandsBeforeTheOrigin) {
    EXPECT_EQ(picture(gridOf(2, 2, {3, 100, 5, 50}), {12, 1}), ".....#..#..#\n");
    EXPECT_EQ(picture(gridOf(2, 2, {3, 100, -4, 50}), {9, 1}), "..#..#..#\n");
}

TEST(GridRows, AStepBelow1HasNoLinesAndEndsAllTheSame) {
    for (const int step : {0, -1, std::numeric_limits<int>::min()}) {
        EXPECT_EQ(countOf(picture(gridOf(2, 2, {step, step, 0, 0}), {20, 20})), 0) << step;
        EXPECT_EQ(countOf(picture(gridOf(1, 2, {step, 5, 0, 0}), {20, 20})), 0) << step;
        EXPECT_EQ(countOf(picture(gridOf(2, 2, {step, 5, 0, 0}), {20, 20})), 4 * 20) << step;
    }
}

TEST(GridRows, ExtremeValuesDoNoHarm) {
    constexpr int most = std::numeric_limits<int>::max();
    constexpr int least = std::numeric_limits<int>::min();
    for (const int origin : {least, -1, most}) {
        for (const int step : {1, 7, most}) {
            for (const int width : {least, most}) {
                picture(gridOf(2, width, {step, step, origin, origin}), {40, 30});
            }
        }
    }
    EXPECT_EQ(countOf(picture(gridOf(2, most, {50, 50, 0, 0}), {40, 30})), 40 * 30);
    EXPECT_EQ(picture(gridOf(2, 2, {2, 2, 0, 0}), {0, 0}), "");
}

/// Every pixel asked of every line, which stand at a number of places before the area and in it.
bool standsInLine(int place, int origin, int step, int width, int extent) {
    for (int at = origin; at <= extent; at += step) {
        if (place >= at - width / 2 && place < at - width / 2 + width) {
            return true;
        }
    }
    return false;
}

TEST(GridRows, IsTheSameAsAskingEachPixelOfEachLine) {
    std::mt19937 random(20261121);
    const auto pick = [&](int from, int to) {
        return from + static_cast<int>(random() % static_cast<unsigned>(to - from + 1));
    };
    for (int run = 0; run < 60; ++run) {
        const Grid steps{pick(1, 20), pick(1, 20), pick(-40, 40), pick(-40, 40)};
        const int width = pick(1, 9);
        const PixelSize size{pick(1, 70), pick(1, 70)};
        std::string expected;
        for (int y = 0; y < size.height; ++y) {
            for (int x = 0; x < size.width; ++x) {
                const bool set = standsInLine(x, steps.originX, steps.stepX, width, size.width) ||
                                 standsInLine(y, steps.originY, steps.stepY, width, size.height);
                expected += set ? '#' : '.';
            }
            expected += '\n';
        }
        EXPECT_EQ(picture(gridOf(2, width + 1, steps), size), expected) << run;
    }
}

}  // namespace
}  // namespace ormala
