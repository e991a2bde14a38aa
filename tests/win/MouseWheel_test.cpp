#include <gtest/gtest.h>

#include <vector>

#include "app/win/tools/PanelList.h"
#include "platform/win/MouseWheelHook.h"
#include "support/win/Wait.h"
#include "win/TestWindow.h"

// The wheel, turned by input as the system has it from a mouse or a touchpad.

namespace ormala {
namespace {

class MouseWheel : public testing::Test {
  protected:
    MouseWheel() {
        SetCursorPos(500, 350);
        test::pause(test::milliseconds{100});
    }

    /// Queues the turns; nothing hears of them before the messages are handled.
    static void turn(const std::vector<int>& turns, DWORD wheel = MOUSEEVENTF_WHEEL) {
        for (const int turn : turns) {
            INPUT record{};
            record.type = INPUT_MOUSE;
            record.mi.dwFlags = wheel;
            record.mi.mouseData = static_cast<DWORD>(turn);
            SendInput(1, &record, sizeof(record));
        }
    }

    /// Plays turns that end in a notch which is heard, and returns what was heard up to there.
    static std::vector<int> heard(const std::vector<int>& turns) {
        std::vector<int> notches;
        const MouseWheelHook hook([&notches](int count) { notches.push_back(count); });
        turn(turns);
        EXPECT_TRUE(test::waitUntil([&] { return !notches.empty() && notches.back() == end; }));
        return notches;
    }

    static constexpr int end = 5;
    static constexpr int endTurn = end * WHEEL_DELTA;

    TestWindow window_;
};

TEST_F(MouseWheel, IsHeardInWholeNotches) {
    EXPECT_EQ(heard({120, -240, endTurn}), (std::vector{1, -2, end}));
}

TEST_F(MouseWheel, OfFineResolutionIsHeardOnceItsPartsMakeANotch) {
    EXPECT_EQ(heard({-30, -30, -30, -30, -30, endTurn}), (std::vector{-1, end}));
    EXPECT_EQ(heard({90, -90, -20, -20, endTurn}), (std::vector{-1, end}));
}

TEST_F(MouseWheel, ThatIsTiltedIsNotHeard) {
    std::vector<int> notches;
    const MouseWheelHook hook([&notches](int count) { notches.push_back(count); });
    turn({120, -240}, MOUSEEVENTF_HWHEEL);
    turn({endTurn});
    EXPECT_TRUE(test::waitUntil([&] { return !notches.empty(); }));
    EXPECT_EQ(notches, std::vector{end});
}

/// The list in the window, with more content than shows.
class ListGlide : public MouseWheel {
  protected:
    ListGlide() {
        list_.resize({0, 0, 200, 200});
        list_.setContentHeight(5000);
        shown_ = 0;
    }

    Clock clock_{[](bool) {}};
    PanelList list_{window_.handle(), 1, clock_};
    int shown_ = 0;
    const Subscription counting_ = list_.viewChanged.subscribe([this] { ++shown_; });
};

TEST_F(ListGlide, ShowsItsEightStepsWhileTheWheelRests) {
    list_.Scroll(-1);
    EXPECT_EQ(shown_, 8);
    const int oneNotch = list_.contentTop();
    EXPECT_LT(oneNotch, 0);
    list_.Scroll(-2);
    EXPECT_EQ(shown_, 16);
    EXPECT_EQ(list_.contentTop(), 3 * oneNotch);
}

TEST_F(ListGlide, GoesToItsEndAtOnceWhileMoreOfTheWheelWaits) {
    list_.Scroll(-1);
    const int oneNotch = list_.contentTop();
    shown_ = 0;
    turn({30});
    list_.Scroll(-1);
    EXPECT_EQ(shown_, 1);
    EXPECT_EQ(list_.contentTop(), 2 * oneNotch);
    test::pause(test::milliseconds{50});
    list_.Scroll(-1);
    EXPECT_EQ(shown_, 9);
}

}  // namespace
}  // namespace ormala
