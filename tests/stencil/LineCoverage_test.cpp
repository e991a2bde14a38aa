#include "stencil/LineCoverage.h"

#include <gtest/gtest.h>

#include <cmath>

namespace ormala {
namespace {

int sum(const LineCoverage& coverage) {
    int total = 0;
    for (int y = 0; y < coverage.size().height; ++y) {
        for (int x = 0; x < coverage.size().width; ++x) {
            total += coverage.at(x, y);
        }
    }
    return total;
}

TEST(LineCoverage, NothingIsCoveredAtFirst) {
    EXPECT_EQ(sum(LineCoverage({20, 10})), 0);
}

TEST(LineCoverage, ALineBetweenTheMiddlesOfPixelsCoversThem) {
    LineCoverage coverage({20, 10});
    coverage.stroke({3, 5}, {10, 5});
    for (int x = 4; x < 10; ++x) {
        EXPECT_EQ(coverage.at(x, 5), LineCoverage::full) << x;
        EXPECT_EQ(coverage.at(x, 4), 0);
        EXPECT_EQ(coverage.at(x, 6), 0);
    }
    EXPECT_EQ(coverage.at(2, 5), 0);
    EXPECT_EQ(coverage.at(11, 5), 0);
}

TEST(LineCoverage, ALineBetweenTwoRowsCoversHalfOfEach) {
    LineCoverage coverage({20, 10});
    coverage.stroke({3, 5.5}, {10, 5.5});
    EXPECT_EQ(coverage.at(6, 5), LineCoverage::full / 2);
    EXPECT_EQ(coverage.at(6, 6), LineCoverage::full / 2);
}

TEST(LineCoverage, ASlantedLineHasTheAreaOfOnePixelsWidth) {
    LineCoverage coverage({60, 60});
    coverage.stroke({10, 12}, {48, 40});
    const double area = std::hypot(38, 28) + 3.14159 / 4;
    EXPECT_NEAR(sum(coverage) / 16.0, area, area * 0.03);
    EXPECT_GT(coverage.at(29, 26), 8);
}

TEST(LineCoverage, ALineAlongAnAxisCoversTheNearestWholePixels) {
    LineCoverage coverage({20, 10});
    coverage.strokeAlongAxis({3.2, 4.6}, {9.9, 4.6});
    EXPECT_EQ(sum(coverage), 8 * LineCoverage::full);
    EXPECT_EQ(coverage.at(3, 5), LineCoverage::full);
    EXPECT_EQ(coverage.at(10, 5), LineCoverage::full);
}

TEST(LineCoverage, AWiderLineCoversMore) {
    LineCoverage coverage({60, 60}, 3);
    coverage.stroke({10, 12}, {48, 40});
    const double area = 3 * std::hypot(38, 28) + 9 * 3.14159 / 4;
    EXPECT_NEAR(sum(coverage) / 16.0, area, area * 0.03);
    LineCoverage straight({20, 10}, 2);
    straight.strokeAlongAxis({2.5, 4.5}, {9.5, 4.5});
    EXPECT_EQ(sum(straight), 9 * 2 * LineCoverage::full);
    EXPECT_EQ(straight.at(2, 4), LineCoverage::full);
    EXPECT_EQ(straight.at(10, 5), LineCoverage::full);
}

TEST(LineCoverage, APointIsARoundDot) {
    LineCoverage coverage({5, 5});
    coverage.stroke({2, 2}, {2, 2});
    EXPECT_EQ(coverage.at(2, 2), 12);
    EXPECT_EQ(sum(coverage), 12);
}

TEST(LineCoverage, LinesOneOverTheOtherCoverOnce) {
    LineCoverage coverage({10, 10});
    coverage.stroke({1, 1}, {8, 7});
    const int once = sum(coverage);
    coverage.stroke({1, 1}, {8, 7});
    EXPECT_EQ(sum(coverage), once);
}

TEST(LineCoverage, WhatLiesOutsideIsCutOff) {
    LineCoverage coverage({10, 10});
    coverage.stroke({-1e9, 4}, {1e9, 4});
    for (int x = 0; x < 10; ++x) {
        EXPECT_EQ(coverage.at(x, 4), LineCoverage::full);
    }
    coverage.stroke({50, 50}, {60, 70});
    coverage.stroke({-1e300, -1e300}, {-5, -5});
    EXPECT_EQ(sum(coverage), 10 * LineCoverage::full);
    coverage.strokeAlongAxis({-1e12, 8}, {1e12, 8});
    EXPECT_EQ(sum(coverage), 20 * LineCoverage::full);
    coverage.strokeAlongAxis({20, 20}, {20, 30});
    EXPECT_EQ(sum(coverage), 20 * LineCoverage::full);
}

TEST(LineCoverage, APictureWithoutPixelsTakesLines) {
    LineCoverage coverage({0, 0});
    coverage.stroke({0, 0}, {5, 5});
    coverage.strokeAlongAxis({0, 0}, {5, 0});
    EXPECT_EQ(sum(coverage), 0);
}

}  // namespace
}  // namespace ormala
