#include "app/AutoSave.h"

#include <gtest/gtest.h>

#include <vector>

namespace ormala {
namespace {

/// A program whose time is played, in milliseconds.
class FakeAutoSavePort : public AutoSavePort {
  public:
    int present = 0;
    int written = 0;
    int looks = 0;
    bool halfDone = false;
    bool held = false;
    bool fails = false;
    int failures = 0;
    unsigned now = 0;
    unsigned due = 0;
    std::vector<unsigned> saves;
    std::vector<std::function<void()>> calls;

    bool differs() override {
        ++looks;
        return present != written;
    }
    bool saveChanges() override {
        if (fails) {
            return present == written;
        }
        if (present != written) {
            saves.push_back(now);
        }
        written = present;
        return true;
    }
    bool isHalfDone() const override { return halfDone; }
    bool isMouseHeld() const override { return held; }
    void runTimer(unsigned milliseconds) override {
        due = milliseconds == 0 ? 0 : now + milliseconds;
    }
    void later(std::function<void()> call) override { calls.push_back(std::move(call)); }
    void tellFailure() override { ++failures; }
};

class AutoSaveTest : public testing::Test {
  protected:
    AutoSaveTest() { autoSave_.begin(); }

    void change() {
        ++port_.present;
        tell();
    }
    void tell() {
        autoSave_.changed();
        for (const auto& call : std::exchange(port_.calls, {})) {
            call();
        }
    }
    void runTo(unsigned time) {
        while (port_.due != 0 && port_.due <= time) {
            port_.now = std::exchange(port_.due, 0);
            autoSave_.tick();
        }
        port_.now = time;
    }
    [[nodiscard]] bool timerRuns() const { return port_.due != 0; }
    using Times = std::vector<unsigned>;

    FakeAutoSavePort port_;
    AutoSave autoSave_{port_};
};

TEST_F(AutoSaveTest, AChangeIsWrittenWithinThreeSeconds) {
    change();
    runTo(AutoSave::delay - 1);
    EXPECT_EQ(port_.saves, Times{});
    runTo(3000);
    EXPECT_EQ(port_.saves, Times{AutoSave::delay});
    EXPECT_FALSE(timerRuns());
}

TEST_F(AutoSaveTest, NoChangeIsOlderThanThreeSecondsWhoeverGoesOn) {
    for (unsigned time = 0; time <= 20000; time += 50) {
        runTo(time);
        change();
        const unsigned last = port_.saves.empty() ? 0 : port_.saves.back();
        EXPECT_LE(time - last, 3000U);
    }
    runTo(30000);
    EXPECT_EQ(port_.written, port_.present);
    EXPECT_FALSE(timerRuns());
}

TEST_F(AutoSaveTest, WhereNothingDiffersThereIsNoTimer) {
    tell();
    EXPECT_EQ(port_.looks, 1);
    EXPECT_FALSE(timerRuns());
}

TEST_F(AutoSaveTest, OneEventIsLookedAtOnce) {
    for (int i = 0; i < 10; ++i) {
        autoSave_.changed();
    }
    EXPECT_EQ(port_.calls.size(), 1U);
    tell();
    change();
    const int looks = port_.looks;
    for (int i = 0; i < 10; ++i) {
        change();
    }
    EXPECT_EQ(port_.looks, looks) << "it waits for the timer already";
}

TEST_F(AutoSaveTest, AChangeThatIsTakenBackIsNotWritten) {
    change();
    --port_.present;
    runTo(10000);
    EXPECT_EQ(port_.saves, Times{});
    EXPECT_FALSE(timerRuns());
}

TEST_F(AutoSaveTest, WaitsForTheMouseButtonToBeReleased) {
    change();
    port_.held = true;
    runTo(8000);
    EXPECT_EQ(port_.saves, Times{});
    port_.held = false;
    runTo(8000 + AutoSave::interval);
    EXPECT_EQ(port_.saves.size(), 1U);
}

TEST_F(AutoSaveTest, WritesNoSetThatIsJustBeingLoaded) {
    port_.halfDone = true;
    change();
    autoSave_.saveNow();
    runTo(8000);
    EXPECT_EQ(port_.saves, Times{});
    port_.halfDone = false;
    runTo(8000 + AutoSave::interval);
    EXPECT_EQ(port_.saves.size(), 1U);
}

TEST_F(AutoSaveTest, WritesAtOnceWhereItMayComeToNothingLater) {
    change();
    port_.held = true;
    autoSave_.saveNow();
    EXPECT_EQ(port_.saves, Times{0});
    EXPECT_FALSE(timerRuns());
    autoSave_.saveNow();
    EXPECT_EQ(port_.saves.size(), 1U);
}

TEST_F(AutoSaveTest, AFailureIsToldOnceAndTriedAgainByItself) {
    port_.fails = true;
    change();
    runTo(3000);
    EXPECT_EQ(port_.failures, 1);
    EXPECT_TRUE(timerRuns());
    runTo(20000);
    EXPECT_EQ(port_.failures, 1);
    port_.fails = false;
    runTo(60000);
    EXPECT_EQ(port_.written, port_.present);
    EXPECT_FALSE(timerRuns());
    port_.fails = true;
    change();
    runTo(70000);
    EXPECT_EQ(port_.failures, 2) << "a new one";
}

TEST_F(AutoSaveTest, FailuresAreTriedLessAndLessOften) {
    port_.fails = true;
    std::vector<unsigned> delays;
    change();
    for (int i = 0; i < 7; ++i) {
        delays.push_back(port_.due - port_.now);
        runTo(port_.due);
    }
    EXPECT_EQ(delays, (Times{2800, 5600, 11200, 22400, 44800, 60000, 60000}));
    port_.fails = false;
    autoSave_.saveNow();
    change();
    EXPECT_EQ(port_.due - port_.now, AutoSave::delay);
}

TEST(AutoSave, BeforeTheStartIsOverNothingIsWritten) {
    FakeAutoSavePort port;
    AutoSave autoSave(port);
    port.present = 1;
    autoSave.changed();
    autoSave.saveNow();
    EXPECT_TRUE(port.calls.empty());
    EXPECT_TRUE(port.saves.empty());
}

}  // namespace
}  // namespace ormala
