#include "toolkit/ThrottledRefresh.h"

#include <gtest/gtest.h>

namespace ormala {
namespace {

using Step = ThrottledRefresh::Step;

constexpr float start = 36000;

/// Just refreshed.
class ThrottledRefreshTest : public testing::Test {
  protected:
    ThrottledRefreshTest() { throttle_.ask(start, true, false); }

    ThrottledRefresh throttle_;
};

TEST(ThrottledRefresh, TheFirstRefreshComesAtOnceAtAnyTimeOfDay) {
    EXPECT_EQ(ThrottledRefresh().ask(0, false, false), Step::now);
    EXPECT_EQ(ThrottledRefresh().ask(start, false, false), Step::now);
}

TEST_F(ThrottledRefreshTest, LessThanATenthOfASecondLaterWaitsForTheTimer) {
    EXPECT_EQ(throttle_.ask(start, false, false), Step::startTimer);
    EXPECT_EQ(throttle_.ask(start + 0.09F, false, false), Step::startTimer);
    EXPECT_EQ(throttle_.ask(start + 0.11F, false, false), Step::now);
}

TEST_F(ThrottledRefreshTest, AWaitingRefreshDoesNotMoveTheTimeOfTheLastOne) {
    throttle_.ask(start + 0.06F, false, false);
    EXPECT_EQ(throttle_.ask(start + 0.11F, false, false), Step::now);
    EXPECT_EQ(throttle_.ask(start + 0.16F, false, false), Step::startTimer);
}

TEST_F(ThrottledRefreshTest, WhileAButtonRepeatsTheTimeIsShorter) {
    EXPECT_EQ(throttle_.ask(start + 0.03F, false, true), Step::startTimer);
    EXPECT_EQ(throttle_.ask(start + 0.05F, false, true), Step::now);
}

TEST_F(ThrottledRefreshTest, ForceNeverWaits) {
    EXPECT_EQ(throttle_.ask(start, true, false), Step::now);
}

TEST(ThrottledRefresh, MidnightHoldsNoRefreshBack) {
    ThrottledRefresh throttle;
    throttle.ask(86399.95F, true, false);
    EXPECT_EQ(throttle.ask(0.01F, false, false), Step::now);
    EXPECT_EQ(throttle.ask(0.05F, false, false), Step::startTimer);
    EXPECT_EQ(throttle.ask(0.12F, false, false), Step::now);
}

}  // namespace
}  // namespace ormala
