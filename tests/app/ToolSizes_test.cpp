#include "app/ToolSizes.h"

#include <gtest/gtest.h>

namespace ormala {
namespace {

TEST(NextToolSize, GrowsByTwentyFourPixels) {
    ToolSizes sizes;
    EXPECT_EQ(sizes.NextToolSize({1000, 800}), 24);
    EXPECT_EQ(sizes.NextToolSize({1000, 800}), 48);
    EXPECT_EQ(sizes.NextToolSize({1000, 800}), 72);
}

TEST(NextToolSize, StopsAtTheSmallerSideByTwoPointThree) {
    for (const PixelSize sheet : {PixelSize{1000, 230}, PixelSize{230, 1000}}) {
        ToolSizes sizes;
        for (int i = 1; i <= 4; ++i) {
            EXPECT_EQ(sizes.NextToolSize(sheet), 24 * i);
        }
        EXPECT_NEAR(sizes.NextToolSize(sheet), 100, 1e-9);
        EXPECT_NEAR(sizes.NextToolSize(sheet), 100, 1e-9);
    }
}

TEST(NextToolSize, GoesOnFromWhereItIsOnALargerSheet) {
    ToolSizes sizes;
    EXPECT_NEAR(sizes.NextToolSize({23, 23}), 10, 1e-9);
    EXPECT_NEAR(sizes.NextToolSize({1000, 800}), 34, 1e-9);
}

}  // namespace
}  // namespace ormala
