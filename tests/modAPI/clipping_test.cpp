#include "modAPI/clipping.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

#include "reference/ReferenceTable.h"

namespace ormala {
namespace {

constexpr Rect window = {0, 0, 1000, 500};

TEST(ClipSegment, SegmentInsideStaysBitForBit) {
    const auto part = clipSegment({0.1, 0.2}, {999.9, 500}, window);
    ASSERT_TRUE(part);
    EXPECT_EQ(*part, (Line{0.1, 0.2, 999.9, 500}));
}

TEST(ClipSegment, PointIsASegment) {
    EXPECT_EQ(clipSegment({5, 5}, {5, 5}, window), (Line{5, 5, 5, 5}));
    EXPECT_FALSE(clipSegment({-5, 5}, {-5, 5}, window));
}

TEST(ClipSegment, EndsOutsideComeToTheEdgeInTheSameDirection) {
    EXPECT_EQ(clipSegment({-10, 100}, {2000, 100}, window), (Line{0, 100, 1000, 100}));
    EXPECT_EQ(clipSegment({2000, 100}, {-10, 100}, window), (Line{1000, 100, 0, 100}));
    EXPECT_EQ(clipSegment({30, 900}, {30, -900}, window), (Line{30, 500, 30, 0}));
}

TEST(ClipSegment, SegmentPastACornerIsNothing) {
    EXPECT_FALSE(clipSegment({-100, 50}, {50, -100}, window));
    EXPECT_FALSE(clipSegment({950, 700}, {1300, 300}, window));
}

TEST(ClipSegment, DiagonalFromTheEndsOfTheNumbersMeetsTheWindowExactly) {
    EXPECT_EQ(clipSegment({-1e308, -1e308}, {1e308, 1e308}, window), (Line{0, 0, 500, 500}));
    EXPECT_EQ(clipSegment({1e308, 1e308}, {-1e308, -1e308}, window), (Line{500, 500, 0, 0}));
    EXPECT_EQ(clipSegment({-1e308, 20}, {1e308, 20}, window), (Line{0, 20, 1000, 20}));
    EXPECT_EQ(clipSegment({20, -1e308}, {20, 1e308}, window), (Line{20, 0, 20, 500}));
}

TEST(ClipSegment, EndsAtTheLargestDoubleDoNotOverflow) {
    const double most = std::numeric_limits<double>::max();
    EXPECT_EQ(clipSegment({-most, -most}, {most, most}, window), (Line{0, 0, 500, 500}));
    EXPECT_EQ(clipSegment({-most, 5}, {most, 5}, {-most, -most, most, most}),
              (Line{-most, 5, most, 5}));
}

TEST(ClipSegment, TinySegmentAcrossAnEdgeStaysANumber) {
    const double least = std::numeric_limits<double>::denorm_min();
    EXPECT_EQ(clipSegment({5, -least}, {5, least}, window), (Line{5, 0, 5, least}));
    EXPECT_EQ(clipSegment({-least, -least}, {least, least}, window), (Line{0, 0, least, least}));
}

TEST(ClipSegment, NotANumberIsNothing) {
    EXPECT_FALSE(clipSegment({std::nan(""), 5}, {10, 5}, window));
    EXPECT_FALSE(clipSegment({0, 5}, {HUGE_VAL, 5}, window));
}

TEST(ClipSegment, ComparesWithTheReference) {
    const ReferenceTable table("clipping.csv");
    ASSERT_EQ(table.rows().size(), 3000U);
    int hits = 0;
    for (const auto& row : table.rows()) {
        const auto v = ReferenceTable::numbers(row);
        const Rect rect = {v[4], v[5], v[6], v[7]};
        const auto part = clipSegment({v[0], v[1]}, {v[2], v[3]}, rect);
        ASSERT_EQ(part.has_value(), !row[8].empty()) << row[0] << ' ' << row[1];
        if (part) {
            ++hits;
            const std::string line = row[0] + ' ' + row[1] + ' ' + row[2] + ' ' + row[3];
            EXPECT_NEAR(part->x1, v[8], 1e-6) << line;
            EXPECT_NEAR(part->y1, v[9], 1e-6) << line;
            EXPECT_NEAR(part->x2, v[10], 1e-6) << line;
            EXPECT_NEAR(part->y2, v[11], 1e-6) << line;
        }
    }
    EXPECT_GT(hits, 1000);
}

}  // namespace
}  // namespace ormala
