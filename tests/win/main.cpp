#include <gtest/gtest.h>

#include "support/win/onlyUnderWine.h"

int main(int count, char** arguments) {
    testing::InitGoogleTest(&count, arguments);
    GTEST_FLAG_SET(filter, ormala::test::filterForThisSystem(GTEST_FLAG_GET(filter)));
    return RUN_ALL_TESTS();
}
