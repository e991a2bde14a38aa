#include "scene/WheelNotches.h"

#include <gtest/gtest.h>

#include <span>
#include <vector>

namespace ormala {
namespace {

std::vector<int> notchesOf(std::span<const int> turns) {
    WheelNotches wheel;
    std::vector<int> notches;
    for (const int turn : turns) {
        notches.push_back(wheel.add(turn));
    }
    return notches;
}

TEST(WheelNotches, EachNotchOfAPlainWheelCountsAtOnce) {
    EXPECT_EQ(notchesOf(std::vector{120, 120, -120, -120}), (std::vector{1, 1, -1, -1}));
}

TEST(WheelNotches, SeveralNotchesInOneMessageAllCount) {
    EXPECT_EQ(notchesOf(std::vector{360, -240}), (std::vector{3, -2}));
}

TEST(WheelNotches, PartsCountOnceTheyMakeAWholeNotch) {
    EXPECT_EQ(notchesOf(std::vector{30, 30, 30, 30, 30}), (std::vector{0, 0, 0, 1, 0}));
    EXPECT_EQ(notchesOf(std::vector{-50, -50, -50, -50, -50}), (std::vector{0, 0, -1, 0, -1}));
}

TEST(WheelNotches, WhatExceedsANotchCountsForTheNextOne) {
    EXPECT_EQ(notchesOf(std::vector{200, 40, 119, 1}), (std::vector{1, 1, 0, 1}));
}

TEST(WheelNotches, ATurnOfDirectionStartsAnew) {
    EXPECT_EQ(notchesOf(std::vector{110, -30, -30, -30, -30}), (std::vector{0, 0, 0, 0, -1}));
    EXPECT_EQ(notchesOf(std::vector{-110, 120, -10}), (std::vector{0, 1, 0}));
}

TEST(WheelNotches, NoTurnChangesNothing) {
    EXPECT_EQ(notchesOf(std::vector{60, 0, 60}), (std::vector{0, 0, 1}));
}

}  // namespace
}  // namespace ormala
