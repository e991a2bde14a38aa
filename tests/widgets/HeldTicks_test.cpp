#include "widgets/HeldTicks.h"

#include <gtest/gtest.h>

#include <string>

namespace ormala {
namespace {

/// A "s" for each tick at which a step is due, a "." for each other one.
std::string ticks(HeldTicks& held, int count) {
    std::string text;
    for (int i = 0; i < count; ++i) {
        text += held.tick() ? 's' : '.';
    }
    return text;
}

TEST(HeldTicks, WaitTenTicksAndThenRepeatAtEachOne) {
    HeldTicks held;
    held.begin(0);
    EXPECT_EQ(ticks(held, 13), "..........sss");
}

TEST(HeldTicks, LeaveTicksOutBetweenSteps) {
    HeldTicks held;
    held.begin(2);
    EXPECT_EQ(ticks(held, 17), "..........s..s..s");
}

TEST(HeldTicks, APressBeginsAnew) {
    HeldTicks held;
    held.begin(3);
    ticks(held, 12);
    held.begin(0);
    EXPECT_EQ(ticks(held, 12), "..........ss");
}

}  // namespace
}  // namespace ormala
