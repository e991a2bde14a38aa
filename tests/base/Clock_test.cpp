#include "base/Clock.h"

#include <gtest/gtest.h>

#include <vector>

namespace ormala {
namespace {

class ClockTest : public testing::Test {
  protected:
    std::vector<bool> runs_;
    Clock clock_{[this](bool running) { runs_.push_back(running); }};
};

TEST_F(ClockTest, RunsFromTheFirstListenerToTheTickThatNobodyHears) {
    int ticks = 0;
    EXPECT_TRUE(runs_.empty());
    Subscription first = clock_.subscribe([&] { ++ticks; });
    Subscription second = clock_.subscribe([&] { ++ticks; });
    EXPECT_EQ(runs_, std::vector<bool>{true});
    clock_.tick();
    EXPECT_EQ(ticks, 2);
    first.reset();
    clock_.tick();
    EXPECT_EQ(ticks, 3);
    EXPECT_EQ(runs_, std::vector<bool>{true});
    second.reset();
    clock_.tick();
    EXPECT_EQ(ticks, 3);
    EXPECT_EQ(runs_, (std::vector<bool>{true, false}));
}

TEST_F(ClockTest, RunsOnForAListenerThatComesBetweenTwoTicks) {
    Subscription listening = clock_.subscribe([] {});
    listening = clock_.subscribe([] {});
    clock_.tick();
    EXPECT_EQ(runs_, std::vector<bool>{true});
    listening.reset();
    clock_.tick();
    listening = clock_.subscribe([] {});
    EXPECT_EQ(runs_, (std::vector<bool>{true, false, true}));
}

TEST_F(ClockTest, AListenerMayLeaveAtItsTick) {
    Subscription listening;
    int ticks = 0;
    listening = clock_.subscribe([&] {
        ++ticks;
        listening.reset();
    });
    clock_.tick();
    EXPECT_EQ(ticks, 1);
    EXPECT_EQ(runs_, (std::vector<bool>{true, false}));
}

}  // namespace
}  // namespace ormala
