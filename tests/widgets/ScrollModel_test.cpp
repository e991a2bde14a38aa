#include "widgets/ScrollModel.h"

#include <gtest/gtest.h>

#include <climits>
#include <memory>
#include <random>

#include "scene/Input.h"

namespace ormala {
namespace {

constexpr int keySpace = 32;

/// A standing bar whose value is the top of a long list: 1000 pixels of which 200 are in sight.
class ScrollModelTest : public testing::Test {
  protected:
    ScrollModelTest() {
        bar_.resize({16, 200}, 96);
        bar_.setMax(-800);
        bar_.setSmallChange(10);
        bar_.setLargeChange(200);
    }

    void tick(int times) {
        for (int i = 0; i < times; ++i) {
            bar_.tick();
        }
    }
    [[nodiscard]] int thumbTop() const { return bar_.layout().cmdMove.top; }
    [[nodiscard]] int thumbBottom() const { return bar_.layout().cmdMove.bottom; }
    void press(ScrollPart part) { bar_.press(part, {8, 8}); }

    ScrollModel bar_;
    int changes_ = 0;
    Subscription counting_ = bar_.Change.subscribe([this] { ++changes_; });
};

TEST(ScrollModel, NewBarGoesFromZeroToAHundred) {
    const ScrollModel bar;
    EXPECT_TRUE(bar.Enabled());
    EXPECT_EQ(bar.Value(), 0);
    EXPECT_EQ(bar.SmallChange(), 1);
    EXPECT_EQ(bar.LargeChange(), 1);
    EXPECT_EQ(bar.Max(), 100);
    EXPECT_EQ(bar.Min(), 0);
    EXPECT_FALSE(bar.wantsTicks());
}

TEST_F(ScrollModelTest, ValueBeyondAnEndBecomesThatEnd) {
    bar_.setValue(-5000);
    EXPECT_EQ(bar_.Value(), -800);
    bar_.setValue(5000);
    EXPECT_EQ(bar_.Value(), 0);
    bar_.setMin(-800);
    bar_.setMax(0);
    bar_.setValue(-5000);
    EXPECT_EQ(bar_.Value(), -800);
}

TEST_F(ScrollModelTest, ChangeIsRaisedOnlyWhenTheValueReallyChanged) {
    bar_.setValue(0);
    bar_.setValue(900);
    EXPECT_EQ(changes_, 0);
    bar_.setValue(-100);
    EXPECT_EQ(changes_, 1);
    bar_.setValue(-100);
    EXPECT_EQ(changes_, 1);
    bar_.setValue(-9000);
    bar_.setValue(-9001);
    EXPECT_EQ(changes_, 2);
}

TEST_F(ScrollModelTest, LayoutIsNewWhenChangeIsRaised) {
    int seen = 0;
    const Subscription looking = bar_.Change.subscribe([&] { seen = thumbBottom(); });
    bar_.setValue(-800);
    EXPECT_EQ(seen, 185);
}

TEST_F(ScrollModelTest, EveryNewLayoutIsTold) {
    int layouts = 0;
    const Subscription looking = bar_.LayoutChange.subscribe([&] { ++layouts; });
    bar_.setValue(-50);
    bar_.setMax(-900);
    bar_.setMin(-10);
    bar_.setLargeChange(100);
    bar_.resize({16, 300}, 96);
    EXPECT_EQ(layouts, 5);
}

TEST_F(ScrollModelTest, ValueFollowsAnEndThatPassesIt) {
    bar_.setValue(-700);
    bar_.setMax(-300);
    EXPECT_EQ(bar_.Value(), -300);
    EXPECT_EQ(changes_, 2);
}

TEST_F(ScrollModelTest, HoldingAnArrowStepsOnceAfterTenTicksAndThenAtEveryTick) {
    press(ScrollPart::bottomRight);
    EXPECT_TRUE(bar_.wantsTicks());
    tick(10);
    EXPECT_EQ(bar_.Value(), 0);
    tick(1);
    EXPECT_EQ(bar_.Value(), -10);
    tick(1);
    EXPECT_EQ(bar_.Value(), -20);
    tick(5);
    EXPECT_EQ(bar_.Value(), -70);
    bar_.release({8, 192});
    EXPECT_FALSE(bar_.wantsTicks());
    tick(5);
    EXPECT_EQ(bar_.Value(), -70);
}

TEST_F(ScrollModelTest, UpperArrowRaisesTheValue) {
    bar_.setValue(-400);
    press(ScrollPart::topLeft);
    tick(12);
    EXPECT_EQ(bar_.Value(), -380);
}

TEST_F(ScrollModelTest, ArrowStopsAtTheEnd) {
    press(ScrollPart::bottomRight);
    tick(200);
    EXPECT_EQ(bar_.Value(), -800);
    EXPECT_EQ(changes_, 80);
}

TEST_F(ScrollModelTest, ShortClickOnAnArrowIsOneStep) {
    press(ScrollPart::bottomRight);
    tick(4);
    bar_.release({8, 192});
    EXPECT_EQ(bar_.Value(), -10);
}

TEST_F(ScrollModelTest, ArrowLetGoElsewhereTakesNoStep) {
    press(ScrollPart::bottomRight);
    bar_.release({60, 192});
    EXPECT_EQ(bar_.Value(), 0);
    EXPECT_EQ(bar_.pressed(), ScrollPart::none);
}

TEST_F(ScrollModelTest, LostButtonEndsTheAction) {
    press(ScrollPart::bottomRight);
    bar_.cancel();
    EXPECT_FALSE(bar_.wantsTicks());
    tick(20);
    bar_.release({8, 192});
    EXPECT_EQ(bar_.Value(), 0);
}

TEST_F(ScrollModelTest, PressOnTheTrackMovesByPagesUpToTheMouseAndStopsThere) {
    const int target = 150;
    bar_.press(ScrollPart::track, {8, target});
    tick(10);
    EXPECT_EQ(bar_.Value(), 0);
    tick(1);
    EXPECT_EQ(bar_.Value(), -200);
    tick(3);
    EXPECT_EQ(bar_.Value(), -200);
    tick(1);
    EXPECT_EQ(bar_.Value(), -400);
    tick(400);
    EXPECT_EQ(bar_.Value(), -600);
    EXPECT_LE(thumbTop(), target);
    EXPECT_GT(thumbBottom(), target);
}

TEST_F(ScrollModelTest, PressOnTheTrackAboveTheThumbPagesUpAndStopsToo) {
    bar_.setValue(-800);
    const int target = 60;
    bar_.press(ScrollPart::track, {8, target});
    tick(400);
    EXPECT_EQ(bar_.Value(), -200);
    EXPECT_LE(thumbTop(), target);
    EXPECT_GT(thumbBottom(), target);
}

TEST_F(ScrollModelTest, PagesNeverPassTheMouse) {
    std::mt19937 random(42);  // NOLINT(cert-msc51-cpp): the same cases in each run
    std::uniform_int_distribution<int> anyValue(-800, 0);
    std::uniform_int_distribution<int> anyPoint(17, 183);
    for (int i = 0; i < 2000; ++i) {
        bar_.setValue(anyValue(random));
        const int target = anyPoint(random);
        if (bar_.layout().partAt({8, target}) != ScrollPart::track) {
            continue;
        }
        bar_.press(ScrollPart::track, {8, target});
        tick(100);
        EXPECT_LE(thumbTop(), target);
        EXPECT_GT(thumbBottom(), target);
        bar_.release({8, target});
    }
}

TEST_F(ScrollModelTest, PagesFollowTheMouseWhileItMoves) {
    bar_.press(ScrollPart::track, {8, 60});
    tick(400);
    EXPECT_EQ(bar_.Value(), -200);
    bar_.move({8, 180});
    tick(400);
    EXPECT_EQ(bar_.Value(), -800);
    bar_.move({8, 20});
    tick(400);
    EXPECT_EQ(bar_.Value(), -800) << "the direction stays that of the press";
}

TEST_F(ScrollModelTest, ShortClickOnTheTrackIsOnePage) {
    bar_.press(ScrollPart::track, {8, 180});
    bar_.release({8, 180});
    EXPECT_EQ(bar_.Value(), -200);
    EXPECT_FALSE(bar_.wantsTicks());
}

TEST_F(ScrollModelTest, BarWithoutAThumbHasNoPages) {
    bar_.resize({16, 40}, 96);
    bar_.press(ScrollPart::track, {8, 20});
    EXPECT_FALSE(bar_.wantsTicks());
}

TEST_F(ScrollModelTest, DragKeepsTheThumbUnderItsGrip) {
    bar_.press(ScrollPart::thumb, {8, thumbTop() + 5});
    EXPECT_FALSE(bar_.wantsTicks());
    for (const int at : {40, 90, 33, 120}) {
        bar_.move({8, at});
        EXPECT_NEAR(thumbTop(), at - 5, 1);
    }
    // 84 pixels below the start of a way of 136.
    bar_.move({8, 15 + 84 + 5});
    EXPECT_EQ(bar_.Value(), -494);
}

TEST_F(ScrollModelTest, DragPastTheEndsGivesTheEnds) {
    bar_.press(ScrollPart::thumb, {8, thumbTop() + 5});
    bar_.move({8, 5000});
    EXPECT_EQ(bar_.Value(), -800);
    bar_.move({8, -5000});
    EXPECT_EQ(bar_.Value(), 0);
    bar_.move({8, 60});
    EXPECT_EQ(thumbTop(), 55);
}

TEST_F(ScrollModelTest, DragOfALyingBarDoesNothing) {
    bar_.resize({200, 16}, 96);
    bar_.press(ScrollPart::thumb, {20, 8});
    bar_.move({100, 90});
    EXPECT_EQ(bar_.Value(), 0);
}

TEST_F(ScrollModelTest, DragOfABarOfNoSizeDoesNotFail) {
    bar_.resize({0, 0}, 96);
    bar_.press(ScrollPart::thumb, {0, 0});
    bar_.move({8, 100});
    bar_.release({8, 100});
    EXPECT_EQ(bar_.Value(), 0);
}

TEST_F(ScrollModelTest, MoveWithoutAPressChangesNothing) {
    bar_.move({8, 100});
    EXPECT_EQ(bar_.Value(), 0);
}

TEST_F(ScrollModelTest, PlaceOfTheThumbGivesItsValueBack) {
    // With no more values than pixels each value has a place of its own.
    bar_.setMax(-100);
    bar_.setLargeChange(25);
    for (int value = 0; value >= -100; --value) {
        bar_.setValue(value);
        bar_.press(ScrollPart::thumb, {8, thumbTop() + 3});
        bar_.move({8, thumbTop() + 3});
        EXPECT_EQ(bar_.Value(), value);
        bar_.release({8, thumbTop() + 3});
    }
}

TEST_F(ScrollModelTest, AnyDragPutsTheThumbWhereTheMouseIs) {
    std::mt19937 random(99);  // NOLINT(cert-msc51-cpp): the same cases in each run
    std::uniform_int_distribution<int> anyLength(60, 1500);
    std::uniform_int_distribution<int> anyMax(2000, 50000);
    for (int i = 0; i < 2000; ++i) {
        bar_.resize({16, anyLength(random)}, 96);
        bar_.setValue(0);
        bar_.setMax(-anyMax(random));
        bar_.press(ScrollPart::thumb, {8, thumbTop()});
        const int way = bar_.layout().free();
        const int at = thumbTop() + std::uniform_int_distribution<int>(0, way)(random);
        bar_.move({8, at});
        ASSERT_EQ(thumbTop(), at) << i;
        bar_.release({8, at});
    }
}

TEST_F(ScrollModelTest, KeysTakeOneStepEach) {
    bar_.setValue(-400);
    for (const ScrollPart part :
         {ScrollPart::topLeft, ScrollPart::bottomRight, ScrollPart::thumb}) {
        EXPECT_TRUE(bar_.keyDown(part, key::up));
        EXPECT_EQ(bar_.Value(), -390);
        EXPECT_TRUE(bar_.keyDown(part, key::down));
        EXPECT_EQ(bar_.Value(), -400);
        EXPECT_TRUE(bar_.keyDown(part, key::pageUp));
        EXPECT_EQ(bar_.Value(), -200);
        EXPECT_TRUE(bar_.keyDown(part, key::pageDown));
        EXPECT_EQ(bar_.Value(), -400);
        EXPECT_FALSE(bar_.keyDown(part, key::left));
        EXPECT_EQ(bar_.Value(), -400);
    }
}

TEST_F(ScrollModelTest, SpaceOnAnArrowIsOneStepAtOnce) {
    bar_.setValue(-400);
    EXPECT_TRUE(bar_.keyDown(ScrollPart::topLeft, keySpace));
    EXPECT_EQ(bar_.Value(), -390);
    EXPECT_TRUE(bar_.keyDown(ScrollPart::bottomRight, keySpace));
    EXPECT_EQ(bar_.Value(), -400);
    EXPECT_FALSE(bar_.keyDown(ScrollPart::thumb, keySpace));
    EXPECT_EQ(bar_.Value(), -400);
}

TEST_F(ScrollModelTest, DisabledBarTakesNoStep) {
    bar_.setEnabled(false);
    bar_.keyDown(ScrollPart::topLeft, key::down);
    press(ScrollPart::bottomRight);
    tick(30);
    bar_.release({8, 192});
    EXPECT_EQ(bar_.Value(), 0);
    EXPECT_FALSE(bar_.wantsTicks());
}

TEST_F(ScrollModelTest, DisablingEndsWhatIsHeld) {
    press(ScrollPart::bottomRight);
    tick(11);
    bar_.setEnabled(false);
    EXPECT_FALSE(bar_.wantsTicks());
    EXPECT_EQ(bar_.pressed(), ScrollPart::none);
    bar_.setValue(-300);
    EXPECT_EQ(bar_.Value(), -300) << "the owner may still move it";
}

TEST_F(ScrollModelTest, LargestNumbersDoNotOverflow) {
    bar_.setMin(INT_MAX);
    bar_.setMax(INT_MIN);
    bar_.setSmallChange(INT_MIN);
    bar_.setLargeChange(INT_MIN);
    for (const int value : {INT_MIN, 0, INT_MAX}) {
        for (const int pressed : {key::up, key::down, key::pageUp, key::pageDown}) {
            bar_.setValue(value);
            bar_.keyDown(ScrollPart::thumb, pressed);
        }
    }
    bar_.press(ScrollPart::thumb, {8, 50});
    bar_.move({8, INT_MAX / 2});
    bar_.move({8, INT_MIN / 2});
    bar_.setValue(INT_MIN);
    EXPECT_EQ(bar_.layout().thumbEnd(), 185);
}

TEST(ScrollModel, HandlerMayDestroyTheBar) {
    auto bar = std::make_unique<ScrollModel>();
    bar->resize({16, 200}, 96);
    const Subscription ending = bar->Change.subscribe([&] { bar.reset(); });
    bar->press(ScrollPart::topLeft, {8, 8});
    for (int i = 0; i < 10; ++i) {
        bar->tick();
    }
    ASSERT_NE(bar, nullptr);
    bar->tick();
    EXPECT_EQ(bar, nullptr);
}

}  // namespace
}  // namespace ormala
