#include "toolkit/RepeatButton.h"

#include <gtest/gtest.h>

#include <memory>

#include "scene/Input.h"

namespace ormala {
namespace {

class RepeatButtonTest : public testing::Test {
  protected:
    void press(int shift = 0) {
        button_->press(shift, [this] { ++steps_; });
    }
    void key() {
        button_->pressKey([this] { ++steps_; });
    }
    void tick(int times = 1) {
        for (int i = 0; i < times; ++i) {
            clock_.tick();
        }
    }

    int steps_ = 0;
    int runs_ = 0;
    Clock clock_{[](bool) {}};
    std::unique_ptr<RepeatButton> button_ =
        std::make_unique<RepeatButton>(clock_, [this] { ++runs_; });
};

TEST_F(RepeatButtonTest, ThePressIsAStepAtOnce) {
    press();
    EXPECT_EQ(steps_, 1);
    button_->release();
    EXPECT_EQ(runs_, 1);
    tick(20);
    EXPECT_EQ(steps_, 1);
}

TEST_F(RepeatButtonTest, TenTicksPassBeforeEachTickIsAStep) {
    press();
    tick(10);
    EXPECT_EQ(steps_, 1);
    tick();
    EXPECT_EQ(steps_, 2);
    tick(5);
    EXPECT_EQ(steps_, 7);
    EXPECT_EQ(runs_, 0);
}

TEST_F(RepeatButtonTest, WithAModifierOneTickInThreeIsAStep) {
    for (const int shift : {modifier::shift, modifier::ctrl, modifier::alt}) {
        steps_ = 0;
        press(shift);
        tick(10);
        EXPECT_EQ(steps_, 1);
        tick();
        EXPECT_EQ(steps_, 2);
        tick(2);
        EXPECT_EQ(steps_, 2);
        tick();
        EXPECT_EQ(steps_, 3);
        tick(3);
        EXPECT_EQ(steps_, 4);
        button_->release();
    }
}

TEST_F(RepeatButtonTest, ARunEndsOnce) {
    press();
    tick(15);
    button_->release();
    button_->release();
    EXPECT_EQ(runs_, 1);
    EXPECT_FALSE(button_->heldByMouse());
}

TEST_F(RepeatButtonTest, AReleaseWithoutAPressEndsNothing) {
    button_->release();
    EXPECT_EQ(runs_, 0);
}

TEST_F(RepeatButtonTest, ASecondPressEndsTheFirstRun) {
    press();
    press();
    EXPECT_EQ(runs_, 1);
    tick(11);
    EXPECT_EQ(steps_, 3);
}

TEST_F(RepeatButtonTest, EachKeyDownIsAStepAndTheKeyUpEndsTheRun) {
    key();
    key();
    tick(20);
    EXPECT_EQ(steps_, 2);
    EXPECT_EQ(runs_, 0);
    button_->releaseKey();
    EXPECT_EQ(runs_, 1);
}

TEST_F(RepeatButtonTest, AKeyMeansNothingWhileTheMouseHoldsTheButton) {
    press();
    key();
    button_->releaseKey();
    EXPECT_EQ(steps_, 1);
    EXPECT_EQ(runs_, 0);
    tick(11);
    EXPECT_EQ(steps_, 2);
}

TEST_F(RepeatButtonTest, AReleaseOfTheMouseLeavesTheRunOfTheKey) {
    key();
    button_->release();
    EXPECT_EQ(runs_, 0);
    button_->releaseKey();
    EXPECT_EQ(runs_, 1);
}

TEST_F(RepeatButtonTest, ThePressOfTheMouseEndsTheRunOfTheKey) {
    key();
    press();
    EXPECT_EQ(runs_, 1);
    button_->releaseKey();
    EXPECT_TRUE(button_->heldByMouse());
}

TEST_F(RepeatButtonTest, AStopEndsTheRunOfEither) {
    press();
    button_->stop();
    key();
    button_->stop();
    button_->stop();
    EXPECT_EQ(runs_, 2);
}

TEST_F(RepeatButtonTest, AStepMayEndTheRun) {
    button_->press(0, [this] {
        ++steps_;
        button_->release();
    });
    tick(20);
    EXPECT_EQ(steps_, 1);
    EXPECT_EQ(runs_, 1);
}

TEST_F(RepeatButtonTest, AStepMayDestroyTheButton) {
    button_->press(0, [this] {
        if (++steps_ == 3) {
            button_.reset();
        }
    });
    tick(30);
    EXPECT_EQ(steps_, 3);
    EXPECT_EQ(runs_, 0);
}

TEST_F(RepeatButtonTest, ADestroyedButtonStepsNoMore) {
    press();
    tick(15);
    button_.reset();
    steps_ = 0;
    tick(15);
    EXPECT_EQ(steps_, 0);
}

}  // namespace
}  // namespace ormala
