#include "app/PressGuard.h"

#include <gtest/gtest.h>

namespace ormala {
namespace {

constexpr PixelPoint place{200, 100};
constexpr std::uint32_t time = 5000;

class PressGuardTest : public testing::Test {
  protected:
    PressGuard guard_{{{4, 6}, 500}};
};

TEST_F(PressGuardTest, PressesAreTakenAsLongAsNothingIsRemoved) {
    EXPECT_TRUE(guard_.takesPress(place, time));
}

TEST_F(PressGuardTest, ThePressesOfADoubleClickAreNotTaken) {
    guard_.removed(place, time);
    EXPECT_FALSE(guard_.takesPress(place, time + 10));
    EXPECT_FALSE(guard_.takesPress({202, 103}, time + 499));
    EXPECT_FALSE(guard_.takesPress({198, 97}, time + 499));
}

TEST_F(PressGuardTest, APressIsTakenOnceTheTimeIsOver) {
    guard_.removed(place, time);
    EXPECT_TRUE(guard_.takesPress(place, time + 500));
}

TEST_F(PressGuardTest, APressBesideTheRectangleOfADoubleClickIsTaken) {
    for (const PixelPoint away : {PixelPoint{203, 100}, {197, 100}, {200, 104}, {200, 96}}) {
        guard_.removed(place, time);
        EXPECT_TRUE(guard_.takesPress(away, time + 10)) << away.x << ", " << away.y;
    }
}

TEST_F(PressGuardTest, AMoveAwayAndBackEndsItToo) {
    guard_.removed(place, time);
    guard_.mouseMoved({202, 100});
    EXPECT_FALSE(guard_.takesPress(place, time + 10));
    guard_.mouseMoved({203, 100});
    guard_.mouseMoved(place);
    EXPECT_TRUE(guard_.takesPress(place, time + 10));
}

TEST_F(PressGuardTest, APressThatHasWaitedForTheRemovalIsNotTaken) {
    guard_.removed(place, time);
    EXPECT_FALSE(guard_.takesPress(place, time - 300));
}

TEST_F(PressGuardTest, TheClockMayBeginAnew) {
    guard_.removed(place, 0xFFFFFF00U);
    EXPECT_FALSE(guard_.takesPress(place, 0x40));
    guard_.removed(place, 0xFFFFFF00U);
    EXPECT_TRUE(guard_.takesPress(place, 0x400));
}

TEST_F(PressGuardTest, EachRemovalBeginsAnew) {
    guard_.removed(place, time);
    EXPECT_TRUE(guard_.takesPress(place, time + 500));
    guard_.removed(place, time + 500);
    EXPECT_FALSE(guard_.takesPress(place, time + 600));
}

}  // namespace
}  // namespace ormala
