#include "worksheet/seeThrough.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <string_view>

namespace ormala {
namespace {

constexpr std::uint32_t key = 0x4F4F4F;
constexpr std::uint32_t inkPixel = 0xFF9F00;

/// A picture of its own pixels: '.' is the key, anything else ink.
class Drawn {
  public:
    Drawn(int width, std::string_view rows)
        : Drawn(PixelSize{width, static_cast<int>(rows.size()) / width}) {
        std::ranges::transform(rows, pixels_.begin(),
                               [](char drawn) { return drawn == '.' ? key : inkPixel; });
    }
    explicit Drawn(PixelSize size)
        : size_(size),
          pixels_(static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height)) {}

    PixelView view() { return {pixels_.data(), size_.width, size_}; }
    std::vector<std::uint32_t>& pixels() { return pixels_; }

  private:
    PixelSize size_;
    std::vector<std::uint32_t> pixels_;
};

VisibleRuns runsOf(int width, std::string_view rows) {
    return visibleRunsOf(Drawn(width, rows).view(), key);
}

/// What becomes of it: 'o' is the ink, ' ' clear, ',' all but clear.
std::string madeOf(int width, std::string_view rows, const SeeThrough& how) {
    Drawn from(width, rows);
    Drawn to(from.view().size);
    makeSeeThrough(from.view(), to.view(), 0, to.view().size.height, how);
    std::string made;
    for (const std::uint32_t pixel : to.pixels()) {
        made += pixel == 0                         ? ' '
                : pixel == allButClear             ? ','
                : pixel == (0xFF000000 | inkPixel) ? 'o'
                                                   : '?';
    }
    return made;
}

TEST(VisibleRuns, AreCountedInEachRow) {
    EXPECT_EQ(runsOf(6, "......").count, 0);
    EXPECT_EQ(runsOf(6, "######").count, 1);
    EXPECT_EQ(runsOf(6, "#.##.#").count, 3);
    EXPECT_EQ(runsOf(6,
                     "..##.."
                     "..##.."
                     "#....#")
                  .count,
              4);
    EXPECT_EQ(runsOf(3, "").count, 0);
}

TEST(VisibleRuns, GapsLieBetweenTwoOfARowAndNotAtItsEdges) {
    const VisibleRuns runs = runsOf(8,
                                    "..#..#.."
                                    "#.#.#..."
                                    "...#....");
    EXPECT_EQ(runs.gapsOfWidth, (std::vector<int>{0, 2, 1, 0, 0, 0, 0, 0}));
}

TEST(VisibleRuns, TheOpacityOfAPixelCountsForNothing) {
    Drawn drawn(3, "#.#");
    drawn.pixels()[1] |= 0xFF000000;
    EXPECT_EQ(visibleRunsOf(drawn.view(), 0x12000000 | key).count, 2);
}

TEST(VisibleRuns, RowsOfAWiderPictureEndWhereTheViewDoes) {
    Drawn drawn(4,
                "##.#"
                "#..#");
    PixelView narrow = drawn.view();
    narrow.size.width = 2;
    EXPECT_EQ(visibleRunsOf(narrow, key).count, 2);
}

TEST(NarrowestOpenGap, AllStayOpenWhereTheRunsAreFew) {
    EXPECT_EQ(narrowestOpenGap(runsOf(6, "#.##.#"), 3), 1);
}

TEST(NarrowestOpenGap, NoMoreIsClosedThanHasToBe) {
    const VisibleRuns runs = runsOf(12, "#.#..#...#.#");
    ASSERT_EQ(runs.count, 5);
    EXPECT_EQ(narrowestOpenGap(runs, 4), 2);
    EXPECT_EQ(narrowestOpenGap(runs, 3), 2);
    EXPECT_EQ(narrowestOpenGap(runs, 2), 3);
    EXPECT_EQ(narrowestOpenGap(runs, 1), 4);
}

TEST(NarrowestOpenGap, ARowKeepsOneRun) {
    const VisibleRuns runs = runsOf(5,
                                    "#...#"
                                    "#.#.#");
    EXPECT_EQ(narrowestOpenGap(runs, 0), 5);
}

TEST(MakeSeeThrough, TheKeyBecomesClearAndTheRestStays) {
    EXPECT_EQ(madeOf(6, ".#.##.", {key, 255, 1}), " o oo ");
}

TEST(MakeSeeThrough, ClosesNarrowGapsButNoneAtTheEdges) {
    EXPECT_EQ(madeOf(10, ".#.#..#...", {key, 255, 2}), " o,o  o   ");
    EXPECT_EQ(madeOf(10, ".#.#..#...", {key, 255, 3}), " o,o,,o   ");
    EXPECT_EQ(madeOf(10, "..........", {key, 255, 10}), "          ");
}

TEST(MakeSeeThrough, ClosesNoGapWhereEverythingIsClear) {
    EXPECT_EQ(madeOf(5, "#.#.#", {key, 0, 5}), "     ");
}

TEST(MakeSeeThrough, ColoursAreMultipliedByTheirOpacity) {
    Drawn from(1, "#");
    Drawn to(from.view().size);
    makeSeeThrough(from.view(), to.view(), 0, 1, {key, 128, 1});
    EXPECT_EQ(to.pixels()[0], 0x80805000U);
    makeSeeThrough(from.view(), to.view(), 0, 1, {key, 0, 1});
    EXPECT_EQ(to.pixels()[0], 0U);
}

TEST(MakeSeeThrough, FillsTheRowsItIsAskedFor) {
    Drawn from(2, "##..##");
    Drawn to(from.view().size);
    std::ranges::fill(to.pixels(), 7U);
    makeSeeThrough(from.view(), to.view(), 1, 2, {key, 255, 1});
    EXPECT_EQ(to.pixels(), (std::vector<std::uint32_t>{7, 7, 0, 0, 7, 7}));
}

TEST(MakeSeeThrough, LeavesNoMoreRunsThanItIsAllowedTo) {
    std::mt19937 random(5);
    for (int round = 0; round < 50; ++round) {
        Drawn from({90, 20});
        for (std::uint32_t& pixel : from.pixels()) {
            pixel = random() % 3 == 0 ? inkPixel : key;
        }
        const int most = 20 + static_cast<int>(random() % 300);
        const VisibleRuns runs = visibleRunsOf(from.view(), key);
        Drawn to(from.view().size);
        makeSeeThrough(from.view(), to.view(), 0, 20, {key, 255, narrowestOpenGap(runs, most)});
        // Of what is not clear: a pixel that is all but clear has the colour of a clear one.
        for (std::uint32_t& pixel : to.pixels()) {
            pixel = pixel >> 24U != 0 ? inkPixel : key;
        }
        EXPECT_LE(visibleRunsOf(to.view(), key).count, most);
    }
}

}  // namespace
}  // namespace ormala
