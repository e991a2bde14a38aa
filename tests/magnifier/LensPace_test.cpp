#include "magnifier/LensPace.h"

#include <gtest/gtest.h>

namespace ormala {
namespace {

constexpr std::uint64_t first = 5000;
constexpr std::uint64_t pause = LensPace::longEnough;

TEST(LensPace, IsHalvedAfterASecondWithoutAChange) {
    LensPace pace;
    EXPECT_EQ(pace.interval(), 15U);
    pace.saw(false, first);
    EXPECT_EQ(pace.interval(), 15U);
    pace.saw(false, first + pause - 1);
    EXPECT_EQ(pace.interval(), 15U);
    pace.saw(false, first + pause);
    EXPECT_EQ(pace.interval(), 30U);
    pace.saw(false, first + 60 * pause);
    EXPECT_EQ(pace.interval(), 30U);
}

TEST(LensPace, IsTheUsualOneWithTheFirstChangeAndForASecondAfterIt) {
    LensPace pace;
    pace.saw(false, first);
    pace.saw(false, first + 2 * pause);
    ASSERT_EQ(pace.interval(), 30U);
    pace.saw(true, first + 3 * pause);
    EXPECT_EQ(pace.interval(), 15U);
    pace.saw(false, first + 4 * pause - 1);
    EXPECT_EQ(pace.interval(), 15U);
    pace.saw(false, first + 4 * pause);
    EXPECT_EQ(pace.interval(), 30U);
}

TEST(LensPace, StaysTheUsualOneWhileEachFrameDiffers) {
    LensPace pace;
    for (std::uint64_t time = first; time < first + 3 * pause; time += 15) {
        pace.saw(true, time);
        EXPECT_EQ(pace.interval(), 15U);
    }
}

}  // namespace
}  // namespace ormala
