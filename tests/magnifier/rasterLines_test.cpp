#include "magnifier/rasterLines.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

#include "magnifier/PixelSheet.h"

namespace ormala {
namespace {

constexpr std::uint32_t pen = 0xFF3355CCU;
constexpr std::uint32_t picture = 0x120F5533U;

std::uint32_t left(int mode) {
    return RasterPen(pen, mode).over(picture);
}

TEST(RasterPen, LeavesWhatItsDrawModeSays) {
    EXPECT_EQ(left(drawMode::inverted), 0x12F0AACCU);
    EXPECT_EQ(left(drawMode::exclusive), 0x123C00FFU);
    EXPECT_EQ(left(drawMode::restrained), 0x12035500U);
    EXPECT_EQ(left(drawMode::color), 0x123355CCU);
    EXPECT_EQ(left(drawMode::brightened), 0x123F55FFU);
}

TEST(RasterPen, KnowsAllSixteenModesOfTheSystem) {
    const auto expect = [](int mode, std::uint32_t colors) {
        EXPECT_EQ(left(mode), 0x12000000U | (colors & 0xFFFFFFU)) << mode;
    };
    expect(1, 0);
    expect(2, ~(pen | picture));
    expect(3, ~pen & picture);
    expect(4, ~pen);
    expect(5, pen & ~picture);
    expect(8, ~(pen & picture));
    expect(10, ~(pen ^ picture));
    expect(11, picture);
    expect(12, ~pen | picture);
    expect(14, pen | ~picture);
    expect(16, ~0U);
}

TEST(RasterPen, OfANumberThatIsNoDrawModeLeavesThePicture) {
    for (const int mode : {0, -1, 17, 1000000, -2147483647 - 1, 2147483647}) {
        EXPECT_EQ(left(mode), picture) << mode;
    }
}

TEST(DrawLine, LeavesOutItsLastPoint) {
    PixelSheet sheet({10, 10});
    drawLine(sheet.view(), RasterPen(pen), {{2, 3}, {5, 3}});
    EXPECT_EQ(sheet.at(2, 3), pen & 0xFFFFFFU);
    EXPECT_EQ(sheet.at(4, 3), pen & 0xFFFFFFU);
    EXPECT_EQ(sheet.at(5, 3), 0U);
    EXPECT_EQ(sheet.at(1, 3), 0U);
}

TEST(DrawLine, WithoutALengthDrawsNothing) {
    PixelSheet sheet({10, 10});
    drawLine(sheet.view(), RasterPen(pen), {{2, 3}, {2, 3}});
    EXPECT_EQ(sheet, PixelSheet({10, 10}));
}

TEST(DrawLine, DrawsWhatOfItLiesInThePictureInAllEightDirections) {
    constexpr PixelSize size{23, 17};
    std::mt19937 numbers(3);
    const auto pick = [&numbers](int from, int to) {
        return std::uniform_int_distribution<int>(from, to)(numbers);
    };
    for (int i = 0; i < 20000; ++i) {
        const int dx = pick(-1, 1);
        const int dy = pick(-1, 1);
        const int length = pick(0, 60);
        const PixelPoint from{pick(-30, 50), pick(-30, 50)};
        PixelSheet drawn(size);
        drawLine(drawn.view(), RasterPen(pen, drawMode::inverted),
                 {from, {from.x + dx * length, from.y + dy * length}});
        PixelSheet expected(size);
        for (int step = 0; step < (dx == 0 && dy == 0 ? 0 : length); ++step) {
            const PixelPoint place{from.x + dx * step, from.y + dy * step};
            if (expected.contains(place)) {
                expected.view().row(place.y)[place.x] ^= 0xFFFFFFU;
            }
        }
        ASSERT_EQ(drawn, expected) << from.x << "," << from.y << " by " << dx << "," << dy;
    }
}

}  // namespace
}  // namespace ormala
