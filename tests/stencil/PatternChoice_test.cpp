#include "stencil/PatternChoice.h"

#include <gtest/gtest.h>

namespace ormala {
namespace {

PatternList somePatterns() {
    PatternList patterns;
    patterns[0] = {5, 0.25};
    patterns[2] = {7, 1};
    return patterns;
}

TEST(PatternChoice, OpensTheGivenTab) {
    PatternChoice choice(somePatterns(), 2);
    EXPECT_EQ(choice.tab(), 2);
    EXPECT_EQ(choice.page().Setting(), (PatternSetting{7, 1}));
    EXPECT_EQ(PatternChoice(somePatterns(), 9).tab(), 4);
    EXPECT_EQ(PatternChoice(somePatterns(), -1).tab(), 0);
}

TEST(PatternChoice, TheFirstTabCannotBeSetToNoPattern) {
    PatternChoice choice(somePatterns(), 0);
    EXPECT_FALSE(choice.page().look().noPatternVisible);
    choice.page().chooseNoPattern();
    EXPECT_EQ(choice.patterns(), somePatterns());
    for (int tab = 1; tab < patternSlots; ++tab) {
        choice.openTab(tab);
        EXPECT_TRUE(choice.page().look().noPatternVisible) << tab;
    }
    choice.openTab(2);
    choice.page().chooseNoPattern();
    EXPECT_EQ(choice.patterns()[2].Pattern, -1);
    choice.openTab(0);
    EXPECT_FALSE(choice.page().look().noPatternVisible);
}

TEST(PatternChoice, EachTabChangesItsOwnSlot) {
    PatternChoice choice({}, 0);
    for (int tab = 0; tab < patternSlots; ++tab) {
        choice.openTab(tab);
        choice.page().choosePattern(tab + 10);
    }
    for (int tab = 0; tab < patternSlots; ++tab) {
        EXPECT_EQ(choice.patterns().at(static_cast<std::size_t>(tab)).Pattern, tab + 10);
        EXPECT_EQ(choice.patternsOfTab(tab)[0].Pattern, tab + 10);
        EXPECT_EQ(choice.patternsOfTab(tab)[1].Pattern, -1);
    }
}

TEST(PatternChoice, CancellingLeavesThePatternsAndTheTab) {
    PatternList patterns = somePatterns();
    int tab = 0;
    PatternChoice choice(patterns, tab);
    choice.openTab(3);
    choice.page().choosePattern(1);
    EXPECT_TRUE(choice.Cancelled());
    EXPECT_FALSE(choice.store(patterns, tab));
    EXPECT_EQ(patterns, somePatterns());
    EXPECT_EQ(tab, 0);
}

TEST(PatternChoice, ConfirmingTakesTheWorkingCopyAndTheLastTab) {
    PatternList patterns = somePatterns();
    int tab = 0;
    PatternChoice choice(patterns, tab);
    choice.openTab(3);
    choice.page().choosePattern(1);
    choice.confirm();
    EXPECT_TRUE(choice.store(patterns, tab));
    EXPECT_EQ(patterns[3].Pattern, 1);
    EXPECT_EQ(patterns[0], somePatterns()[0]);
    EXPECT_EQ(tab, 3);
}

TEST(PatternChoice, OneSubscriptionHearsAllTabs) {
    PatternChoice choice({}, 0);
    int changes = 0;
    const Subscription change = choice.page().change.subscribe([&changes] { ++changes; });
    choice.page().choosePattern(1);
    choice.openTab(4);
    choice.page().choosePattern(1);
    EXPECT_EQ(changes, 2);
}

}  // namespace
}  // namespace ormala
