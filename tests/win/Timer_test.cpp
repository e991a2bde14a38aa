#include "platform/win/Timer.h"

#include <gtest/gtest.h>
#include <wtsapi32.h>

#include <optional>

#include "platform/win/controlName.h"
#include "win/ModalPlayer.h"
#include "win/ModesStage.h"
#include "win/TestWindow.h"

// The timers, and how often they wake a program that has nothing to do.

namespace ormala {
namespace {

/// Counts the ticks of one timer.
class TickingWindow : public Window {
  public:
    TickingWindow() {
        WindowDesign design;
        design.className = L"TickingWindow";
        design.style = WS_POPUP;
        create(design);
    }
    ~TickingWindow() override { destroy(); }

    int ticks = 0;

  protected:
    std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM /*lParam*/) override {
        if (message == WM_TIMER && wParam == 5) {
            ++ticks;
            return 0;
        }
        return std::nullopt;
    }
};

TEST(Timer, TicksUntilItIsStopped) {
    TickingWindow window;
    Timer timer(5);
    EXPECT_FALSE(timer.isRunning());
    timer.start(window.handle(), 10);
    EXPECT_TRUE(timer.isRunning());
    EXPECT_TRUE(test::waitUntil([&] { return window.ticks > 2; }));
    timer.stop();
    EXPECT_FALSE(timer.isRunning());
    const int last = window.ticks;
    test::pause(test::milliseconds{60});
    EXPECT_EQ(window.ticks, last);
}

TEST(Timer, StopsAtTheEndOfItsObject) {
    TickingWindow window;
    {
        Timer timer(5);
        timer.start(window.handle(), 10);
    }
    EXPECT_FALSE(KillTimer(window.handle(), 5));
}

TEST(Timer, RestsWithAllOthersAndGoesOnAfterwards) {
    TickingWindow window;
    Timer timer(5);
    Timer stopped(6);
    timer.start(window.handle(), 10);
    stopped.start(window.handle(), 10);
    Timer::restAll(true);
    stopped.stop();
    test::pause(test::milliseconds{30});
    const int last = window.ticks;
    // Starting it anew doesn't wake it.
    timer.start(window.handle(), 20);
    test::pause(test::milliseconds{60});
    EXPECT_EQ(window.ticks, last);
    Timer::restAll(false);
    EXPECT_TRUE(test::waitUntil([&] { return window.ticks > last + 1; }));
    EXPECT_FALSE(KillTimer(window.handle(), 6));
}

TEST(Timer, TellsHowOftenAllOfThemWakeTheProgram) {
    const double before = Timer::wakeUps();
    TickingWindow window;
    Timer slow(1);
    {
        Timer fast(2);
        slow.start(window.handle(), 200);
        fast.start(window.handle(), 20);
        EXPECT_NEAR(Timer::wakeUps() - before, 55, 0.1);
        fast.start(window.handle(), 10);
        EXPECT_NEAR(Timer::wakeUps() - before, 105, 0.1);
    }
    EXPECT_NEAR(Timer::wakeUps() - before, 5, 0.1);
    slow.keep(window.handle(), 0);
    EXPECT_NEAR(Timer::wakeUps() - before, 0, 0.1);
}

/// The running program, with the mouse far from all of its windows.
class IdleProgram : public ModesStage {
  protected:
    void startWith(int tools) {
        option("Options", "LensVisible", "-1");
        start();
        constexpr int firstTools = 2;
        for (int i = firstTools; i < tools; ++i) {
            program_->execute(Command::addStencil);
        }
        moveAway();
    }
    void moveAway() {
        const RECT place = settings_->rectangle();
        SetCursorPos(place.left > 200 ? 2 : place.right + 200, GetSystemMetrics(SM_CYSCREEN) - 2);
    }
    /// A second, on all timers together, once they have come to rest.
    static bool wakeUpsAreAtMost(double most) {
        return test::waitUntil([most] { return Timer::wakeUps() <= most; });
    }
};

TEST_F(IdleProgram, InPauseAndMinimisedItIsWokenFiveTimesASecondAtMost) {
    startWith(33);
    program_->execute(Command::lens);
    program_->execute(Command::pauseAndMinimise);
    EXPECT_TRUE(test::waitUntil([&] { return IsIconic(settings_->handle()) != FALSE; }));
    EXPECT_TRUE(wakeUpsAreAtMost(5)) << Timer::wakeUps();
}

TEST_F(IdleProgram, With33PanelsAndTheMouseElsewhereItIsWokenTwentyTimesASecondAtMost) {
    startWith(33);
    program_->execute(Command::lens);
    EXPECT_TRUE(wakeUpsAreAtMost(20)) << Timer::wakeUps();
    // And it still notices the mouse: a button grows.
    const HWND button = namedChild(settings_->handle(), "cmdTemplateMin");
    RECT rest{};
    GetWindowRect(button, &rest);
    SetCursorPos((rest.left + rest.right) / 2, (rest.top + rest.bottom) / 2);
    EXPECT_TRUE(test::waitUntil([&] {
        RECT place{};
        GetWindowRect(button, &place);
        return place.right - place.left > rest.right - rest.left;
    }));
    EXPECT_GT(Timer::wakeUps(), 20);
    moveAway();
    EXPECT_TRUE(wakeUpsAreAtMost(20)) << Timer::wakeUps();
    RECT place{};
    GetWindowRect(button, &place);
    EXPECT_EQ(place.right - place.left, rest.right - rest.left);
}

TEST_F(IdleProgram, WhileTheScreenIsLockedNoTimerTicks) {
    startWith(2);
    const double unlocked = Timer::wakeUps();
    EXPECT_GT(unlocked, 60);
    const auto change = [this](WPARAM what) {
        SendMessageW(settings_->handle(), WM_WTSSESSION_CHANGE, what, 0);
    };
    change(WTS_SESSION_LOCK);
    EXPECT_EQ(Timer::wakeUps(), 0);
    // Whatever asks for a timer meanwhile gets it afterwards.
    program_->execute(Command::lens);
    program_->execute(Command::lens);
    EXPECT_EQ(Timer::wakeUps(), 0);
    change(WTS_SESSION_UNLOCK);
    EXPECT_TRUE(test::waitUntil([&] { return Timer::wakeUps() >= unlocked; })) << Timer::wakeUps();
}

TEST_F(IdleProgram, ATimerForSavingRunsOnlyWhileSomethingIsUnsaved) {
    startWith(2);
    program_->execute(Command::lens);
    program_->execute(Command::pauseMode);
    EXPECT_TRUE(wakeUpsAreAtMost(5)) << Timer::wakeUps();
    const double atRest = Timer::wakeUps();
    const auto grid = [this] {
        return test::SettingsFile::read(folder_.optionsFile()).number("Options", "GridEnabled");
    };
    EXPECT_EQ(grid(), 0);
    program_->execute(Command::grid);
    EXPECT_TRUE(test::waitUntil([&] { return Timer::wakeUps() > atRest; }));
    EXPECT_TRUE(test::waitUntil([&] { return grid() == -1; }));
    EXPECT_TRUE(wakeUpsAreAtMost(atRest)) << Timer::wakeUps();
    // What changes nothing has none.
    program_->execute(Command::grid);
    program_->execute(Command::grid);
    test::pause(test::milliseconds(50));
    EXPECT_EQ(Timer::wakeUps(), atRest);
}

TEST_F(IdleProgram, WhatIsUnsavedIsWrittenBeforeTheScreenIsLockedOrTheComputerSleeps) {
    startWith(2);
    const auto factor = [this] {
        return test::SettingsFile::read(folder_.optionsFile()).number("Options", "LensFactor");
    };
    program_->execute(commandOfLensFactor(2));
    SendMessageW(settings_->handle(), WM_WTSSESSION_CHANGE, WTS_SESSION_LOCK, 0);
    EXPECT_EQ(factor(), 2);
    SendMessageW(settings_->handle(), WM_WTSSESSION_CHANGE, WTS_SESSION_UNLOCK, 0);
    program_->execute(commandOfLensFactor(3));
    EXPECT_EQ(SendMessageW(settings_->handle(), WM_POWERBROADCAST, PBT_APMPOWERSTATUSCHANGE, 0),
              TRUE);
    EXPECT_EQ(factor(), 2);
    EXPECT_EQ(SendMessageW(settings_->handle(), WM_POWERBROADCAST, PBT_APMSUSPEND, 0), TRUE);
    EXPECT_EQ(factor(), 3);
}

TEST_F(IdleProgram, TheMagnifierHasATimerOnlyWhileItIsShown) {
    startWith(2);
    EXPECT_GT(Timer::wakeUps(), 60);
    program_->execute(Command::lens);
    EXPECT_TRUE(wakeUpsAreAtMost(20)) << Timer::wakeUps();
    program_->execute(Command::lens);
    EXPECT_GT(Timer::wakeUps(), 60);
}

}  // namespace
}  // namespace ormala
