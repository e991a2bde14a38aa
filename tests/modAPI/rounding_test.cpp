#include "modAPI/rounding.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "reference/ReferenceTable.h"

namespace ormala {
namespace {

TEST(RoundHalfAway, HalfGoesAwayFromZero) {
    EXPECT_EQ(RoundHalfAway(-0.5, 0), -1);
    EXPECT_EQ(RoundHalfAway(2.5, 0), 3);
    EXPECT_EQ(RoundHalfAway(-2.5, 0), -3);
    EXPECT_EQ(RoundHalfAway(0.125, 2), 0.13);
}

TEST(RoundHalfAway, NegativeDigitsRoundToWholeNumbers) {
    EXPECT_EQ(RoundHalfAway(1234.5678, -2), 1235);
}

TEST(RoundHalfAway, ValueTooLargeToScaleStays) {
    EXPECT_EQ(RoundHalfAway(1e307, 5), 1e307);
    EXPECT_EQ(RoundHalfAway(-1e308, 400), -1e308);
}

TEST(RoundHalfAway, ComparesWithTheReference) {
    const ReferenceTable table("round_half_away.csv");
    ASSERT_EQ(table.rows().size(), 2400U);
    for (const auto& row : table.rows()) {
        const auto v = ReferenceTable::numbers(row);
        const double rounded = RoundHalfAway(v[0], static_cast<int>(v[1]));
        EXPECT_DOUBLE_EQ(rounded, v[2]) << row[0] << " to " << row[1];
    }
}

TEST(RoundSignificant, KeepsAllDigitsBeforeThePointIfToldSo) {
    EXPECT_EQ(RoundSignificant(1234.5678, 2, true), 1235);
    EXPECT_DOUBLE_EQ(RoundSignificant(1234.5678, 2, false), 1200);
}

TEST(RoundSignificant, RoundsInTwoSteps) {
    EXPECT_DOUBLE_EQ(RoundSignificant(0.12345, 3, false), 0.124);
    EXPECT_DOUBLE_EQ(RoundSignificant(0.12344, 3, false), 0.123);
}

TEST(RoundSignificant, ZeroStaysZero) {
    EXPECT_EQ(RoundSignificant(0, 4, true), 0);
}

TEST(RoundSignificant, ExtremeValuesStayFinite) {
    EXPECT_EQ(RoundSignificant(1e308, 4, true), 1e308);
    EXPECT_EQ(RoundSignificant(-1e308, 4, false), -1e308);
    EXPECT_DOUBLE_EQ(RoundSignificant(1.23446e307, 3, false), 1.23e307);
    EXPECT_DOUBLE_EQ(RoundSignificant(1.23456e307, 3, true), 1.23456e307);
    EXPECT_TRUE(std::isfinite(RoundSignificant(5e-324, 4, true)));
}

TEST(RoundSignificant, NotANumberStays) {
    EXPECT_TRUE(std::isnan(RoundSignificant(std::numeric_limits<double>::quiet_NaN(), 4, true)));
}

TEST(RoundSignificant, ComparesWithTheReference) {
    const ReferenceTable table("round_significant.csv");
    ASSERT_EQ(table.rows().size(), 3000U);
    for (const auto& row : table.rows()) {
        const auto v = ReferenceTable::numbers(row);
        const double rounded = RoundSignificant(v[0], static_cast<int>(v[1]), v[2] != 0);
        EXPECT_DOUBLE_EQ(rounded, v[3]) << row[0] << " to " << row[1];
    }
}

TEST(SameSignificant, ComparesRoundedValues) {
    EXPECT_TRUE(SameSignificant(0.7503, 0.75, 3));
    EXPECT_FALSE(SameSignificant(0.7, 0.7071, 3));
    EXPECT_TRUE(SameSignificant(0, 0, 3));
}

}  // namespace
}  // namespace ormala
