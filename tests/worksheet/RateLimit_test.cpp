#include "worksheet/RateLimit.h"

#include <gtest/gtest.h>

namespace ormala {
namespace {

constexpr float noon = 12 * 60 * 60;
constexpr float lastSecondOfTheDay = 24 * 60 * 60 - 1;

TEST(RateLimit, TheFirstPollOfADayPasses) {
    RateLimit poll(0.1F);
    EXPECT_TRUE(poll.due(noon));
}

TEST(RateLimit, PassesAgainOnlyAfterATenthOfASecond) {
    RateLimit poll(0.1F);
    ASSERT_TRUE(poll.due(1));
    EXPECT_FALSE(poll.due(1));
    EXPECT_FALSE(poll.due(1.09F));
    EXPECT_TRUE(poll.due(1.11F));
}

TEST(RateLimit, ARefusedPollDoesNotPutTheNextOneOff) {
    RateLimit poll(0.1F);
    ASSERT_TRUE(poll.due(1));
    EXPECT_FALSE(poll.due(1.05F));
    EXPECT_TRUE(poll.due(1.125F));
}

TEST(RateLimit, AClockOfTwentyMillisecondsGivesAboutTenPollsInASecond) {
    RateLimit poll(0.1F);
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

TEST(RateLimit, TellsWhetherTheLastQuestionCameTooEarly) {
    RateLimit poll(0.1F);
    ASSERT_TRUE(poll.due(1));
    EXPECT_FALSE(poll.refused());
    ASSERT_FALSE(poll.due(1.05F));
    EXPECT_TRUE(poll.refused());
    ASSERT_TRUE(poll.due(1.11F));
    EXPECT_FALSE(poll.refused());
}

TEST(RateLimit, TwentyMillisecondsAllowAtMostFiftyMovesInASecond) {
    RateLimit moves(0.02F);
    int passed = 0;
    for (int millisecond = 0; millisecond < 1000; ++millisecond) {
        passed += moves.due(noon + static_cast<float>(millisecond) / 1000) ? 1 : 0;
    }
    EXPECT_LE(passed, 50);
    EXPECT_GE(passed, 40);
}

TEST(RateLimit, PassesJustAfterMidnightThoughTheStoredTimeIsLarger) {
    RateLimit poll(0.1F);
    ASSERT_TRUE(poll.due(lastSecondOfTheDay));
    EXPECT_TRUE(poll.due(0.01F));
    EXPECT_FALSE(poll.due(0.05F));
}

}  // namespace
}  // namespace ormala
