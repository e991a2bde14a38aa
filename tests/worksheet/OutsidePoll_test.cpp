#include "worksheet/OutsidePoll.h"

#include <gtest/gtest.h>

namespace ormala {
namespace {

constexpr float noon = 12 * 60 * 60;
constexpr float lastSecondOfTheDay = 24 * 60 * 60 - 1;

TEST(OutsidePoll, TheFirstPollOfADayPasses) {
    OutsidePoll poll;
    EXPECT_TRUE(poll.due(noon));
}

TEST(OutsidePoll, PassesAgainOnlyAfterATenthOfASecond) {
    OutsidePoll poll;
    ASSERT_TRUE(poll.due(1));
    EXPECT_FALSE(poll.due(1));
    EXPECT_FALSE(poll.due(1.09F));
    EXPECT_TRUE(poll.due(1.11F));
}

TEST(OutsidePoll, ARefusedPollDoesNotPutTheNextOneOff) {
    OutsidePoll poll;
    ASSERT_TRUE(poll.due(1));
    EXPECT_FALSE(poll.due(1.05F));
    EXPECT_TRUE(poll.due(1.125F));
}

TEST(OutsidePoll, AClockOfTwentyMillisecondsGivesAboutTenPollsInASecond) {
    OutsidePoll poll;
    ASSERT_TRUE(poll.due(noon));
    int passed = 0;
    for (int tick = 1; tick <= 50; ++tick) {
        if (poll.due(noon + static_cast<float>(tick) * 0.02F)) {
            ++passed;
        }
    }
    EXPECT_GE(passed, 8);
    EXPECT_LE(passed, 10);
}

TEST(OutsidePoll, PassesJustAfterMidnightThoughTheStoredTimeIsLarger) {
    OutsidePoll poll;
    ASSERT_TRUE(poll.due(lastSecondOfTheDay));
    EXPECT_TRUE(poll.due(0.01F));
    EXPECT_FALSE(poll.due(0.05F));
}

}  // namespace
}  // namespace ormala
