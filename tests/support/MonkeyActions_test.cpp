#include "support/MonkeyActions.h"

#include <gtest/gtest.h>

#include <set>
#include <vector>

namespace ormala::test {
namespace {

std::vector<MonkeyAction> actionsOf(std::uint32_t seed, int count) {
    MonkeyActions actions(seed);
    std::vector<MonkeyAction> list;
    list.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        list.push_back(actions.next());
    }
    return list;
}

TEST(MonkeyActions, AreTheSameForTheSameSeed) {
    EXPECT_EQ(actionsOf(7, 500), actionsOf(7, 500));
    EXPECT_NE(actionsOf(7, 500), actionsOf(8, 500));
}

TEST(MonkeyActions, AreTheSameOnEverySystem) {
    EXPECT_EQ(textOf(actionsOf(1, 3).back()),
              "drag in front window at 346 204 by -121 3, modifiers 0, key 2, 3 times");
}

TEST(MonkeyActions, DoEverythingEverywhere) {
    std::set<MonkeyAction::Deed> deeds;
    std::set<MonkeyAction::Target> targets;
    std::set<unsigned> modifiers;
    for (const MonkeyAction& action : actionsOf(3, 1000)) {
        deeds.insert(action.deed);
        targets.insert(action.target);
        modifiers.insert(action.modifiers);
    }
    EXPECT_EQ(deeds.size(), 11U);
    EXPECT_EQ(targets.size(), 6U);
    EXPECT_EQ(modifiers.size(), 8U);
}

TEST(MonkeyActions, StayWithinTheirTargetAndLetTheProgramLive) {
    for (const MonkeyAction& action : actionsOf(11, 5000)) {
        EXPECT_TRUE(action.x >= 0 && action.x < 1000 && action.y >= 0 && action.y < 1000);
        const bool altF4 = action.deed == MonkeyAction::Deed::key && action.key == 0x73 &&
                           (action.modifiers & 4U) != 0;
        EXPECT_FALSE(altF4);
        if (action.deed == MonkeyAction::Deed::type) {
            EXPECT_NE(monkeyText(action.key), nullptr);
        }
    }
}

}  // namespace
}  // namespace ormala::test
