#include "magnifier/LensLayout.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace ormala {
namespace {

constexpr PerScale<bool> allScales{true, true, true, true};
constexpr PixelRect screen{0, 0, 1920, 1080};

class Numbers {
  public:
    int pick(int from, int to) { return std::uniform_int_distribution<int>(from, to)(random_); }
    bool flip() { return pick(0, 1) == 1; }

  private:
    std::mt19937 random_{20};
};

PixelRect placeOf(const LensLayout& layout, LensScale scale) {
    return layout.scales[indexOf(scale)];
}

TEST(LensLayout, FirstWindowShowsAnImageOf300PixelsWithAllScales) {
    EXPECT_EQ(firstLensClient(96), (PixelSize{366, 342}));
    const LensLayout layout = layOutLens({firstLensClient(96), 4, false, allScales, 96});
    EXPECT_EQ(layout.LensWidth, 300);
    EXPECT_EQ(layout.LensHeight, 300);
    EXPECT_EQ(layout.picLens, (PixelRect{33, 21, 333, 321}));
    EXPECT_EQ(placeOf(layout, LensScale::left), (PixelRect{5, 21, 33, 321}));
    EXPECT_EQ(placeOf(layout, LensScale::right), (PixelRect{333, 21, 361, 321}));
    EXPECT_EQ(placeOf(layout, LensScale::top), (PixelRect{5, 5, 361, 21}));
    EXPECT_EQ(placeOf(layout, LensScale::bottom), (PixelRect{5, 321, 361, 337}));
}

TEST(LensLayout, GridCutsOffTheLastRowAndColumn) {
    const LensLayout layout = layOutLens({{366, 342}, 4, true, allScales, 96});
    EXPECT_EQ(layout.GridTrim, 1);
    EXPECT_EQ(layout.LensWidth, 300);
    EXPECT_EQ(layout.picLens, (PixelRect{33, 21, 332, 320}));
    EXPECT_EQ(placeOf(layout, LensScale::right).left, 332);
    EXPECT_EQ(placeOf(layout, LensScale::bottom).top, 320);
}

TEST(LensLayout, AtFactor1SourceAndImageHaveOneSizeAndNoGridCutsThem) {
    const LensLayout layout = layOutLens({{366, 342}, 1, true, allScales, 96});
    EXPECT_EQ(layout.GridTrim, 0);
    EXPECT_EQ(layout.SourceWidth, layout.LensWidth);
    EXPECT_EQ(layout.SourceHeight, layout.LensHeight);
    EXPECT_EQ(layout.picLens.width(), layout.LensWidth);
}

TEST(LensLayout, WindowNarrowerThanItsMarginsShowsOneEnlargedPixel) {
    for (const int width : {0, 30, 66, 72}) {
        const LensLayout layout = layOutLens({{width, 10}, 7, false, allScales, 96});
        EXPECT_EQ(layout.LensWidth, 7) << width;
        EXPECT_EQ(layout.SourceWidth, 1);
        EXPECT_EQ(layout.LensHeight, 7);
        EXPECT_EQ(layout.SourceHeight, 1);
    }
}

TEST(LensLayout, HiddenScalesLeaveTheirRoomToTheImage) {
    const LensLayout bare = layOutLens({{310, 210}, 1, false, {}, 96});
    EXPECT_EQ(bare.picLens, (PixelRect{5, 5, 305, 205}));
    EXPECT_TRUE(placeOf(bare, LensScale::top).empty());
    const LensLayout topOnly = layOutLens({{310, 210}, 1, false, {true, false, false, false}, 96});
    EXPECT_EQ(topOnly.picLens, (PixelRect{5, 21, 305, 205}));
    EXPECT_FALSE(placeOf(topOnly, LensScale::top).empty());
}

TEST(LensLayout, StripsAndMarginsGrowWithTheResolutionAndTheFactorDoesNot) {
    const LensLayout layout = layOutLens({{732, 684}, 4, false, allScales, 192});
    EXPECT_EQ(placeOf(layout, LensScale::top).height(), 32);
    EXPECT_EQ(placeOf(layout, LensScale::left).width(), 56);
    EXPECT_EQ(layout.picLens, (PixelRect{66, 42, 666, 642}));
    EXPECT_EQ(layout.SourceWidth, 150);
    EXPECT_EQ(leastLensSize(96), (PixelSize{64, 64}));
    EXPECT_EQ(leastLensSize(192), (PixelSize{128, 128}));
}

TEST(LensLayout, ImageIsAlwaysTheLargestMultipleOfTheFactor) {
    Numbers numbers;
    for (int i = 0; i < 5000; ++i) {
        LensFace face{{numbers.pick(-20, 2000), numbers.pick(-20, 1500)}, numbers.pick(1, 10)};
        face.gridOn = numbers.flip();
        face.visible = {numbers.flip(), numbers.flip(), numbers.flip(), numbers.flip()};
        const LensLayout layout = layOutLens(face);
        const int columns = (face.visible[indexOf(LensScale::left)] ? 28 : 0) +
                            (face.visible[indexOf(LensScale::right)] ? 28 : 0);
        const double room = (face.client.width - 10.0 - columns) / face.factor;
        EXPECT_EQ(layout.LensWidth, std::max(static_cast<int>(std::floor(room)), 1) * face.factor);
        EXPECT_EQ(layout.LensHeight % face.factor, 0);
        EXPECT_EQ(layout.SourceWidth * face.factor, layout.LensWidth);
        EXPECT_EQ(layout.picLens.width(), layout.LensWidth - layout.GridTrim);
    }
}

TEST(LensSource, LiesAroundTheMouseRoundedDown) {
    EXPECT_EQ(lensSourceAt({100, 100}, {75, 75}, screen), (PixelPoint{63, 63}));
    EXPECT_EQ(lensSourceAt({100, 100}, {74, 74}, screen), (PixelPoint{63, 63}));
    Numbers numbers;
    constexpr PixelRect wide{-100000, -100000, 100000, 100000};
    for (int i = 0; i < 5000; ++i) {
        const PixelPoint cursor{numbers.pick(-9000, 9000), numbers.pick(-9000, 9000)};
        const PixelSize size{numbers.pick(1, 800), numbers.pick(1, 800)};
        const PixelPoint source = lensSourceAt(cursor, size, wide);
        EXPECT_EQ(source.x, static_cast<int>(std::floor(cursor.x - (size.width - 1) / 2.0)));
        EXPECT_EQ(source.y, static_cast<int>(std::floor(cursor.y - (size.height - 1) / 2.0)));
    }
}

TEST(LensSource, StaysInsideTheScreenWithThePointerAtItsLeftEdge) {
    EXPECT_EQ(lensSourceAt({0, 500}, {75, 75}, screen), (PixelPoint{0, 463}));
    EXPECT_EQ(lensSourceAt({0, 0}, {75, 75}, screen), (PixelPoint{0, 0}));
    EXPECT_EQ(lensSourceAt({1919, 1079}, {75, 75}, screen), (PixelPoint{1845, 1005}));
}

TEST(LensSource, LargerThanTheScreenKeepsToItsRightAndLowerSides) {
    EXPECT_EQ(lensSourceAt({10, 10}, {2000, 1100}, screen), (PixelPoint{-80, -20}));
}

TEST(LensSource, CountsBelowZeroOnScreensLeftOfAndAboveThePrimaryOne) {
    constexpr PixelRect bounds{-1280, -1024, 1920, 1080};
    EXPECT_EQ(lensSourceAt({-640, -500}, {75, 75}, bounds), (PixelPoint{-677, -537}));
    EXPECT_EQ(lensSourceAt({-640, -500}, {74, 74}, bounds), (PixelPoint{-677, -537}));
    EXPECT_EQ(lensSourceAt({-1280, -1024}, {75, 75}, bounds), (PixelPoint{-1280, -1024}));
}

TEST(LensBesideMouse, StandsRightOfAndBelowIt) {
    EXPECT_EQ(lensBesideMouse({300, 200}, {400, 300}, screen, 96), (PixelPoint{324, 232}));
    EXPECT_EQ(lensBesideMouse({300, 200}, {400, 300}, screen, 192), (PixelPoint{348, 264}));
}

TEST(LensBesideMouse, SlidesAlongTheLowerAndTheRightEdge) {
    EXPECT_EQ(lensBesideMouse({300, 900}, {400, 300}, screen, 96), (PixelPoint{324, 780}));
    EXPECT_EQ(lensBesideMouse({1800, 200}, {400, 300}, screen, 96), (PixelPoint{1520, 232}));
}

TEST(LensBesideMouse, FlipsAboveThePointerInTheLowerRightCorner) {
    EXPECT_EQ(lensBesideMouse({1900, 1070}, {400, 300}, screen, 96), (PixelPoint{1520, 746}));
    // Just within an edge is no corner.
    EXPECT_EQ(lensBesideMouse({1496, 1070}, {400, 300}, screen, 96), (PixelPoint{1520, 780}));
    EXPECT_EQ(lensBesideMouse({1900, 748}, {400, 300}, screen, 96), (PixelPoint{1520, 780}));
}

TEST(LensBesideMouse, IsNeverCutByTheRightOrLowerEdge) {
    Numbers numbers;
    for (int i = 0; i < 5000; ++i) {
        const PixelRect bounds{numbers.pick(-3000, 0), numbers.pick(-3000, 0),
                               numbers.pick(1500, 4000), numbers.pick(1500, 4000)};
        const PixelSize window{numbers.pick(64, 700), numbers.pick(64, 700)};
        const PixelPoint cursor{numbers.pick(bounds.left, bounds.right - 1),
                                numbers.pick(bounds.top, bounds.bottom - 1)};
        const PixelPoint place = lensBesideMouse(cursor, window, bounds, 96);
        EXPECT_LE(place.x + window.width, bounds.right);
        EXPECT_LE(place.y + window.height, bounds.bottom);
    }
}

}  // namespace
}  // namespace ormala
