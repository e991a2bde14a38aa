#include "support/win/onlyUnderWine.h"

#include <gtest/gtest.h>

#include <string>

namespace ormala::test {
namespace {

const std::string those = "*/*Golden.*:Monitors.*:NoTaskBar.*";

TEST(OnlyUnderWine, AreLeftOutOfAnyFilter) {
    EXPECT_EQ(withoutThose("*"), "*-" + those);
    EXPECT_EQ(withoutThose("Modes.*:Frame.*"), "Modes.*:Frame.*-" + those);
    EXPECT_EQ(withoutThose("*-Modes.*"), "*-Modes.*:" + those);
}

TEST(OnlyUnderWine, AreRunThere) {
    EXPECT_EQ(filterForThisSystem("*"), runsUnderWine() ? "*" : withoutThose("*"));
}

TEST(OnlyUnderWine, ThereAreGoldenPicturesToLeaveOut) {
    const auto* tests = testing::UnitTest::GetInstance();
    int found = 0;
    for (int i = 0; i < tests->total_test_suite_count(); ++i) {
        const std::string name = tests->GetTestSuite(i)->name();
        found += name.find('/') != std::string::npos && name.ends_with("Golden") ? 1 : 0;
    }
    EXPECT_GE(found, 6);
}

}  // namespace
}  // namespace ormala::test
