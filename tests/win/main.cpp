#include <gtest/gtest.h>

#include <memory>

#include "support/win/onlyUnderWine.h"
#include "win/SwallowedFaults.h"

int main(int count, char** arguments) {
    testing::InitGoogleTest(&count, arguments);
    GTEST_FLAG_SET(filter, ormala::test::filterForThisSystem(GTEST_FLAG_GET(filter)));
    // The list owns it.
    testing::UnitTest::GetInstance()->listeners().Append(
        std::make_unique<ormala::test::SwallowedFaults>().release());
    return RUN_ALL_TESTS();
}
