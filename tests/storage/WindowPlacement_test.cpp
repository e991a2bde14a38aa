#include "storage/WindowPlacement.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "support/MemoryINIFile.h"

namespace ormala {

namespace {

constexpr PixelRect workArea{0, 0, 1920, 1040};
constexpr ScreenAreas oneScreen{workArea, {0, 0, 1920, 1080}};
constexpr ScreenAreas twoScreens{workArea, {0, 0, 3840, 1080}};
constexpr WindowPlacement present{1, {100, 100, 500, 400}};

PixelRect kept(PixelRect rect, const PixelRect& bounds = workArea) {
    WindowPlacement placement{1, rect};
    KeepRectInBounds(placement, bounds);
    return placement.rcNormalPosition;
}

TEST(KeepRectInBounds, LeavesARectangleInside) {
    EXPECT_EQ(kept({10, 20, 1910, 1030}), (PixelRect{10, 20, 1910, 1030}));
    EXPECT_EQ(kept(workArea), workArea);
}

TEST(KeepRectInBounds, MovesARectangleFlushWithTheSideItCrosses) {
    EXPECT_EQ(kept({1800, 900, 2000, 1100}), (PixelRect{1720, 840, 1920, 1040}));
    EXPECT_EQ(kept({-50, -60, 150, 140}), (PixelRect{0, 0, 200, 200}));
}

TEST(KeepRectInBounds, CutsARectangleBiggerThanTheBounds) {
    EXPECT_EQ(kept({-10, 50, 3000, 150}), (PixelRect{0, 50, 1920, 150}));
    EXPECT_EQ(kept({50, -10, 150, 3000}), (PixelRect{50, 0, 150, 1040}));
    EXPECT_EQ(kept({-10, -10, 3000, 3000}), workArea);
}

TEST(KeepRectInBounds, WorksWithBoundsAwayFromTheOrigin) {
    EXPECT_EQ(kept({0, 0, 100, 100}, {-1280, 200, 0, 1224}), (PixelRect{-100, 200, 0, 300}));
}

TEST(KeepRectInBounds, SurvivesTheNumbersOfADamagedFile) {
    constexpr std::int32_t max = std::numeric_limits<std::int32_t>::max();
    constexpr std::int32_t min = std::numeric_limits<std::int32_t>::min();
    EXPECT_EQ(kept({min, min, max, max}), workArea);
    EXPECT_EQ(kept({max, 0, min, 10}), (PixelRect{max, 0, min, 10}));
    EXPECT_EQ(kept({max, 0, max, 10}), (PixelRect{1920, 0, 1920, 10}));
}

TEST(KeptOnScreens, PutsAWindowOfTheMainScreenIntoItsWorkArea) {
    EXPECT_EQ(keptOnScreens({1900, 500, 2200, 700}, twoScreens), (PixelRect{1620, 500, 1920, 700}));
}

TEST(KeptOnScreens, LeavesAWindowOfAnotherScreenThere) {
    EXPECT_EQ(keptOnScreens({2000, 500, 2300, 700}, twoScreens), (PixelRect{2000, 500, 2300, 700}));
}

TEST(KeptOnScreens, PullsAWindowBackWhoseScreenIsGone) {
    EXPECT_EQ(keptOnScreens({2000, 500, 2300, 700}, oneScreen), (PixelRect{1620, 500, 1920, 700}));
    EXPECT_EQ(keptOnScreens({-900, -500, -600, -300}, oneScreen), (PixelRect{0, 0, 300, 200}));
}

TEST(KeptOnScreens, LeavesAWindowAtNegativeCoordinatesOnTheScreenLeftOfTheMainOne) {
    constexpr ScreenAreas leftScreen{workArea, {-1280, 0, 1920, 1080}};
    EXPECT_EQ(keptOnScreens({-1250, 180, -63, 847}, leftScreen), (PixelRect{-1250, 180, -63, 847}));
    EXPECT_EQ(keptOnScreens({-1400, 180, -213, 847}, leftScreen),
              (PixelRect{-1280, 180, -93, 847}));
    EXPECT_EQ(keptOnScreens({-1250, 180, -63, 847}, oneScreen), (PixelRect{0, 180, 1187, 847}));
}

class PlacementTest : public testing::Test {
  protected:
    void store(const PixelRect& rect, std::int32_t state = 1) {
        storePlacement(ini_.file, "frmLens", {state, rect});
    }
    RestoredPlacement restored(const ScreenAreas& screens, Sizable sizable = Sizable::both,
                               bool cascade = false) {
        return restoredPlacement(ini_.file, "frmLens", cascade, present, sizable, screens);
    }

    MemoryINIFile ini_;
};

TEST_F(PlacementTest, StoresTheKeysInTheirOrder) {
    store({-10, 20, 300, 400}, 3);
    EXPECT_EQ(
        ini_.bytes(),
        "[frmLens]\r\nLeft=-10\r\nTop= 20\r\nRight= 300\r\nBottom= 400\r\nWindowState= 3\r\n");
}

TEST_F(PlacementTest, KeepsTheCurrentSection) {
    store({0, 0, 10, 10});
    EXPECT_EQ(ini_.file.CurrentSection(), "S");
    restored(oneScreen);
    EXPECT_EQ(ini_.file.CurrentSection(), "S");
}

TEST_F(PlacementTest, ComesBackWhereItWas) {
    store({300, 200, 700, 600});
    EXPECT_EQ(restored(oneScreen).rect, (PixelRect{300, 200, 700, 600}));
}

TEST_F(PlacementTest, MissingSectionLeavesTheWindowWhereItIs) {
    const RestoredPlacement placement = restored(oneScreen);
    EXPECT_EQ(placement.rect, present.rcNormalPosition);
    EXPECT_FALSE(placement.maximise);
    EXPECT_EQ(ini_.file.LastError(), "");
    EXPECT_EQ(ini_.store.writes, 0);
}

TEST_F(PlacementTest, MaximisesOnlyForTheStoredStateThree) {
    store({300, 200, 700, 600}, 3);
    const RestoredPlacement placement = restored(oneScreen);
    EXPECT_TRUE(placement.maximise);
    EXPECT_EQ(placement.rect, (PixelRect{300, 200, 700, 600}));
    store({300, 200, 700, 600}, 2);
    EXPECT_FALSE(restored(oneScreen).maximise);
}

TEST_F(PlacementTest, BeyondTheRightEdgeComesBackFlushWithItsSizeKept) {
    store({1900, 100, 2300, 500});
    EXPECT_EQ(restored(oneScreen).rect, (PixelRect{1520, 100, 1920, 500}));
    store({2500, 100, 2900, 500});
    EXPECT_EQ(restored(oneScreen).rect, (PixelRect{1520, 100, 1920, 500}));
}

TEST_F(PlacementTest, BiggerThanTheWorkAreaIsCutToIt) {
    store({-100, -100, 2500, 1500});
    EXPECT_EQ(restored(oneScreen).rect, workArea);
}

TEST_F(PlacementTest, StaysOnASecondMonitor) {
    store({2000, 100, 2400, 500});
    EXPECT_EQ(restored(twoScreens).rect, (PixelRect{2000, 100, 2400, 500}));
}

TEST_F(PlacementTest, IsPulledBackFromAMonitorThatIsGone) {
    store({2000, 700, 2400, 1075});
    EXPECT_EQ(restored(oneScreen).rect, (PixelRect{1520, 700, 1920, 1075}));
}

TEST_F(PlacementTest, AStripOfElevenPixelsHoldsItOnThePrimaryScreen) {
    store({1909, 100, 2309, 105});
    EXPECT_EQ(restored(twoScreens).rect, (PixelRect{1520, 100, 1920, 105}));
    store({1919, 100, 2319, 111});
    EXPECT_EQ(restored(twoScreens).rect, (PixelRect{1520, 100, 1920, 111}));
}

TEST_F(PlacementTest, ASmallerCornerDoesNotHoldIt) {
    store({1910, 1030, 2310, 1060});
    EXPECT_EQ(restored(twoScreens).rect, (PixelRect{1910, 1030, 2310, 1060}));
}

TEST_F(PlacementTest, TouchingThePrimaryScreenIsNotLyingOnIt) {
    store({1920, 100, 2320, 500});
    EXPECT_EQ(restored(twoScreens).rect, (PixelRect{1920, 100, 2320, 500}));
}

TEST_F(PlacementTest, FixedWindowIgnoresTheStoredSize) {
    store({300, 200, 1300, 900});
    EXPECT_EQ(restored(oneScreen, Sizable::nothing).rect, (PixelRect{300, 200, 700, 500}));
}

TEST_F(PlacementTest, AWidthOfAnotherResolutionIsLeftBeforeTheWindowIsBroughtOntoTheScreen) {
    // Flush with the right edge, at half the resolution of now.
    store({1720, 200, 1920, 900});
    EXPECT_EQ(restored(oneScreen, Sizable::height).rect, (PixelRect{1520, 200, 1920, 900}));
    store({300, 200, 1300, 900});
    EXPECT_EQ(restored(oneScreen, Sizable::height).rect, (PixelRect{300, 200, 700, 900}));
}

TEST_F(PlacementTest, CascadeMovesTheWindowAndStoresItAtOnce) {
    store({300, 200, 700, 600}, 3);
    EXPECT_EQ(restored(oneScreen, Sizable::both, true).rect, (PixelRect{320, 220, 720, 620}));
    EXPECT_EQ(ini_.bytes(),
              "[frmLens]\r\nLeft= 320\r\nTop= 220\r\nRight= 720\r\nBottom= 620\r\n"
              "WindowState= 3\r\n");
    EXPECT_EQ(restored(oneScreen, Sizable::both, true).rect, (PixelRect{340, 240, 740, 640}));
}

TEST_F(PlacementTest, CascadeStoresThePlaceBeforeItIsKeptInBounds) {
    store({1500, 100, 1910, 500});
    EXPECT_EQ(restored(oneScreen, Sizable::both, true).rect, (PixelRect{1510, 120, 1920, 520}));
    EXPECT_NE(ini_.bytes().find("Right= 1930\r\n"), std::string::npos);
}

TEST_F(PlacementTest, DamagedNumbersOfAFixedWindowStillGiveAPlaceOnTheScreen) {
    ini_.bytes() = "[frmLens]\r\nLeft=2147483647\r\nTop=-2147483648\r\n";
    EXPECT_EQ(restored(oneScreen, Sizable::nothing, true).rect, (PixelRect{1920, 0, 1920, 300}));
    ini_.bytes() = "[frmLens]\r\nLeft=1e999\r\nTop=x\r\n";
    EXPECT_EQ(restored(oneScreen, Sizable::nothing).rect, (PixelRect{100, 0, 500, 300}));
}

}  // namespace
}  // namespace ormala
