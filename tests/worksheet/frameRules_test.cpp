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

}  // namespace
}  // namespace ormala
