#include "modAPI/constants.h"

#include <gtest/gtest.h>

#include <cmath>

namespace ormala {
namespace {

TEST(Constants, IrrationalRatiosEqualTheirFormulas) {
    EXPECT_EQ(G, (std::sqrt(5.0) - 1) / 2);
    EXPECT_EQ(R, 1 / std::sqrt(2.0));
}

TEST(Constants, AnglesAreFifteenDigitLiterals) {
    EXPECT_EQ(pi, 3.14159265358979);
    EXPECT_NE(pi, std::acos(-1.0));
    EXPECT_EQ(halfPi, 1.570796326794895);
    EXPECT_EQ(threeHalvesPi, 4.712388980384685);
    EXPECT_EQ(twoPi, 6.28318530717958);
}

TEST(Constants, InfinityIsFinite) {
    EXPECT_TRUE(std::isfinite(infinite));
    EXPECT_EQ(minusInfinite, -infinite);
}

}  // namespace
}  // namespace ormala
