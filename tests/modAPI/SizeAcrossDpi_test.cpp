#include "modAPI/SizeAcrossDpi.h"

#include <gtest/gtest.h>

namespace ormala {
namespace {

constexpr PixelSize odd{701, 503};

/// As the system scales.
PixelSize scaled(PixelSize size, int from, int to) {
    return {(size.width * to + from / 2) / from, (size.height * to + from / 2) / from};
}

/// Brings a window from one resolution to another.
PixelSize brought(SizeAcrossDpi& memory, PixelSize size, int from, int to) {
    const PixelSize next = memory.at(to, scaled(size, from, to), from, size);
    memory.took(next);
    return next;
}

TEST(SizeAcrossDpi, TakesTheSuggestedSizeOnTheWayThere) {
    SizeAcrossDpi memory;
    EXPECT_EQ(memory.at(192, {1402, 1006}, 96, odd), (PixelSize{1402, 1006}));
}

TEST(SizeAcrossDpi, IsTheFormerOneBackAgain) {
    for (const int other : {48, 96, 120, 144, 168, 192, 240}) {
        SizeAcrossDpi memory;
        const PixelSize there = brought(memory, odd, 144, other);
        EXPECT_EQ(brought(memory, there, other, 144), odd) << other;
    }
}

TEST(SizeAcrossDpi, IsTheFormerOneBackAgainByAThirdMonitor) {
    SizeAcrossDpi memory;
    const PixelSize second = brought(memory, odd, 192, 96);
    const PixelSize third = brought(memory, second, 96, 144);
    EXPECT_EQ(brought(memory, third, 144, 192), odd);
}

TEST(SizeAcrossDpi, NeverDriftsHoweverOftenItGoes) {
    SizeAcrossDpi memory;
    PixelSize size = odd;
    for (int times = 0; times < 100; ++times) {
        size = brought(memory, brought(memory, size, 192, 96), 96, 192);
    }
    EXPECT_EQ(size, odd);
}

TEST(SizeAcrossDpi, WhoeverWasSizedThereComesBackWithThatSize) {
    SizeAcrossDpi memory;
    brought(memory, odd, 96, 192);
    const PixelSize pulled{1000, 800};
    EXPECT_EQ(brought(memory, pulled, 192, 96), (PixelSize{500, 400}));
    EXPECT_EQ(brought(memory, {500, 400}, 96, 192), pulled);
}

TEST(SizeAcrossDpi, SizeThatTheWindowCouldNotTakeIsNoNewOne) {
    SizeAcrossDpi memory;
    EXPECT_EQ(memory.at(96, {350, 251}, 192, odd), (PixelSize{350, 251}));
    constexpr PixelSize least{400, 300};
    memory.took(least);
    EXPECT_EQ(memory.at(192, {800, 600}, 96, least), odd);
}

}  // namespace
}  // namespace ormala
