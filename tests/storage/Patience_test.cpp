#include "storage/Patience.h"

#include <gtest/gtest.h>

#include <vector>

namespace ormala {
namespace {

using std::chrono::milliseconds;

/// Time that passes only in pauses, and in each try.
class FakeClock : public WaitingClock {
  public:
    milliseconds time{12345};
    std::vector<milliseconds> pauses;

    milliseconds now() override { return time; }
    void pause(milliseconds length) override {
        pauses.push_back(length);
        time += length;
    }
};

class TryPatiently : public testing::Test {
  protected:
    /// Succeeds from this moment on.
    bool tryUntil(milliseconds success, milliseconds effort = milliseconds{0}) {
        return tryPatiently(clock_, longestWaitForFile, [&] {
            ++tries_;
            const bool succeeds = clock_.time - start_ >= success;
            clock_.time += effort;
            return succeeds;
        });
    }
    milliseconds waited() { return clock_.time - start_; }

    FakeClock clock_;
    const milliseconds start_ = clock_.time;
    int tries_ = 0;
};

TEST_F(TryPatiently, ASuccessAtOnceWaitsForNothing) {
    EXPECT_TRUE(tryUntil(milliseconds{0}));
    EXPECT_EQ(tries_, 1);
    EXPECT_TRUE(clock_.pauses.empty());
}

TEST_F(TryPatiently, AFileThatIsLetGoIsReadSoonAfter) {
    EXPECT_TRUE(tryUntil(milliseconds{300}));
    EXPECT_GE(waited(), milliseconds{300});
    EXPECT_LE(waited(), milliseconds{400});
}

TEST_F(TryPatiently, ThePausesGrow) {
    EXPECT_FALSE(tryUntil(milliseconds{100000}));
    EXPECT_LE(clock_.pauses.front(), milliseconds{10});
    for (std::size_t i = 1; i + 1 < clock_.pauses.size(); ++i) {
        EXPECT_GE(clock_.pauses[i], clock_.pauses[i - 1]);
    }
}

TEST_F(TryPatiently, GivesUpAfterExactlyTwoSeconds) {
    EXPECT_FALSE(tryUntil(milliseconds{2001}));
    EXPECT_EQ(waited(), milliseconds{2000});
}

TEST_F(TryPatiently, TheLastTryIsAtTheEndOfTheTime) {
    EXPECT_TRUE(tryUntil(milliseconds{2000}));
}

TEST_F(TryPatiently, TriesThatTakeTheirTimeCount) {
    EXPECT_FALSE(tryUntil(milliseconds{100000}, milliseconds{1200}));
    EXPECT_EQ(tries_, 2);
}

}  // namespace
}  // namespace ormala
