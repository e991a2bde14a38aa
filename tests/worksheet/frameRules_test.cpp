#include "worksheet/frameRules.h"

#include <gtest/gtest.h>

namespace ormala {
namespace {

TEST(DefaultFramePlace, IsTheGoldenSectionOfTheScreen) {
    const PixelRect place = defaultFramePlace({1920, 1080});
    EXPECT_EQ(place.width(), 1187);
    EXPECT_EQ(place.height(), 667);
}

TEST(DefaultFramePlace, IsCentred) {
    for (const PixelSize screen : {PixelSize{1920, 1080}, {1280, 1024}, {3840, 2160}, {800, 600}}) {
        const PixelRect place = defaultFramePlace(screen);
        EXPECT_NEAR(place.left, screen.width - place.right, 1) << screen.width;
        EXPECT_NEAR(place.top, screen.height - place.bottom, 1) << screen.height;
    }
}

TEST(WorksheetInFrame, LiesExactlyFivePixelsInsideTheClientArea) {
    EXPECT_EQ(worksheetInFrame({1171, 628}), (PixelRect{5, 5, 1166, 623}));
}

TEST(WorksheetInFrame, StaysPositiveInTheLeastFrame) {
    const PixelSize least = leastFrameSize(96);
    constexpr int thickestFrame = 40;
    EXPECT_FALSE(
        worksheetInFrame({least.width - thickestFrame, least.height - thickestFrame}).empty());
}

TEST(LeastFrameSize, Is200By124) {
    EXPECT_EQ(leastFrameSize(96), (PixelSize{200, 124}));
}

TEST(LeastFrameSize, GrowsWithTheResolution) {
    EXPECT_EQ(leastFrameSize(144), (PixelSize{300, 186}));
    EXPECT_EQ(leastFrameSize(192), (PixelSize{400, 248}));
    EXPECT_EQ(leastFrameSize(120), (PixelSize{250, 155}));
}

TEST(FrameSizeMemory, AFirstSizeIsAChange) {
    FrameSizeMemory memory;
    EXPECT_TRUE(memory.changedTo({1187, 667}));
}

TEST(FrameSizeMemory, AMoveOfTheSameSizeIsNone) {
    FrameSizeMemory memory;
    memory.changedTo({1187, 667});
    EXPECT_FALSE(memory.changedTo({1187, 667}));
}

TEST(FrameSizeMemory, AChangeInOneDirectionIsEnough) {
    FrameSizeMemory memory;
    memory.changedTo({1187, 667});
    EXPECT_TRUE(memory.changedTo({1188, 667}));
    EXPECT_TRUE(memory.changedTo({1188, 668}));
    EXPECT_FALSE(memory.changedTo({1188, 668}));
}

TEST(FullScreenPlace, IsWhatTheTaskBarLeavesFree) {
    EXPECT_EQ(fullScreenPlace({0, 0, 1920, 1080}, {0, 0, 1920, 1040}),
              (PixelRect{0, 0, 1920, 1040}));
    EXPECT_EQ(fullScreenPlace({-1280, 0, 0, 1024}, {-1220, 0, 0, 1024}),
              (PixelRect{-1220, 0, 0, 1024}));
}

TEST(FullScreenPlace, LeavesARowOfAMonitorWithoutATaskBar) {
    EXPECT_EQ(fullScreenPlace({0, 0, 1920, 1080}, {0, 0, 1920, 1080}),
              (PixelRect{0, 0, 1920, 1079}));
    EXPECT_EQ(fullScreenPlace({-1280, -50, 0, 974}, {-1280, -50, 0, 974}),
              (PixelRect{-1280, -50, 0, 973}));
}

TEST(FullScreenPlace, LeavesThePixelByWhichAHiddenBarIsCalled) {
    constexpr PixelRect monitor{-1280, -50, 0, 974};
    EXPECT_EQ(fullScreenPlace(monitor, monitor, {true, false, false, false}),
              (PixelRect{-1279, -50, 0, 974}));
    EXPECT_EQ(fullScreenPlace(monitor, monitor, {false, true, false, false}),
              (PixelRect{-1280, -49, 0, 974}));
    EXPECT_EQ(fullScreenPlace(monitor, monitor, {false, false, true, false}),
              (PixelRect{-1280, -50, -1, 974}));
    EXPECT_EQ(fullScreenPlace(monitor, monitor, {false, false, false, true}),
              (PixelRect{-1280, -50, 0, 973}));
}

TEST(FullScreenPlace, NeedsNoPixelWhereAnotherBarHasTheEdgeAnyway) {
    EXPECT_EQ(fullScreenPlace({0, 0, 1920, 1080}, {0, 0, 1920, 1040}, {false, false, false, true}),
              (PixelRect{0, 0, 1920, 1040}));
    EXPECT_EQ(fullScreenPlace({0, 0, 1920, 1080}, {0, 0, 1920, 1040}, {false, true, false, false}),
              (PixelRect{0, 1, 1920, 1040}));
}

using Step = HoleKeeper::Step;

TEST(HoleKeeper, LeavesAWorksheetAloneThatLiesInTheHole) {
    HoleKeeper keeper;
    for (int i = 0; i < 100; ++i) {
        EXPECT_EQ(keeper.next({10, 20, 300, 400}, {10, 20, 300, 400}), Step::rest);
    }
}

TEST(HoleKeeper, PutsBackAWorksheetThatIsAPixelTooWideOrElsewhere) {
    HoleKeeper keeper;
    EXPECT_EQ(keeper.next({10, 20, 301, 400}, {10, 20, 300, 400}), Step::putNow);
    EXPECT_EQ(keeper.next({0, 20, 290, 400}, {10, 20, 300, 400}), Step::putNow);
    EXPECT_EQ(keeper.next({10, 20, 300, 400}, {10, 20, 300, 400}), Step::rest);
    EXPECT_EQ(keeper.next({10, 19, 300, 399}, {10, 20, 300, 400}), Step::putNow);
}

TEST(HoleKeeper, WaitsForASystemThatIsNotAtRestAndGivesInToOneThatWillNotHaveItThere) {
    constexpr PixelRect elsewhere{0, 20, 290, 400};
    constexpr PixelRect hole{-50, 20, 240, 400};
    HoleKeeper keeper;
    int atOnce = 0;
    int later = 0;
    for (int i = 0; i < 100; ++i) {
        const Step step = keeper.next(elsewhere, hole);
        atOnce += step == Step::putNow ? 1 : 0;
        later += step == Step::putLater ? 1 : 0;
        // None at once after the first one later.
        EXPECT_FALSE(step == Step::putNow && later > 0);
    }
    EXPECT_EQ(atOnce, 8);
    EXPECT_EQ(later, 12);
    EXPECT_EQ(keeper.next(elsewhere, hole), Step::rest);
    // Another hole is another matter.
    EXPECT_EQ(keeper.next(elsewhere, {-49, 20, 241, 400}), Step::putNow);
    EXPECT_EQ(keeper.next(elsewhere, hole), Step::putNow);
}

}  // namespace
}  // namespace ormala
