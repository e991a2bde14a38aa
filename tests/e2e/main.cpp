#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

#include "e2e/support/AppDataFolder.h"
#include "e2e/support/StageFailure.h"
#include "support/win/Screen.h"
#include "support/win/onlyUnderWine.h"

namespace {

/// A suite that the test run does not know would never run there.
bool allSuitesAreKnown() {
    std::istringstream names(ORMALA_SUITES);
    const std::vector<std::string> known(std::istream_iterator<std::string>(names), {});
    const auto* tests = testing::UnitTest::GetInstance();
    for (int i = 0; i < tests->total_test_suite_count(); ++i) {
        const std::string name = tests->GetTestSuite(i)->name();
        if (std::find(known.begin(), known.end(), name) == known.end()) {
            std::cerr << "The suite " << name << " has no line in tests/e2e/CMakeLists.txt.\n";
            return false;
        }
    }
    return true;
}

}  // namespace

int main(int count, char** arguments) {
    testing::InitGoogleTest(&count, arguments);
    GTEST_FLAG_SET(filter, ormala::test::filterForThisSystem(GTEST_FLAG_GET(filter)));
    if (!allSuitesAreKnown()) {
        return EXIT_FAILURE;
    }
    ormala::test::screen::usePhysicalPixels();
    ormala::test::AppDataFolder::restoreAfterCrash();
    ormala::test::keepArtefactsOfFailures();
    const int result = RUN_ALL_TESTS();
    const auto* tests = testing::UnitTest::GetInstance();
    if (tests->test_to_run_count() == 0 && !testing::GTEST_FLAG(list_tests)) {
        std::cerr << "No test matches the filter.\n";
        return EXIT_FAILURE;
    }
    return result;
}
