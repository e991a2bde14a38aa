#include "modAPI/textForms.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "modAPI/constants.h"
#include "reference/ReferenceTable.h"

namespace ormala {
namespace {

const TextForm point;
const TextForm german{",", "unendlich"};

TEST(FormatNumber, ZerosAreAlwaysShownAndHashesIfNeeded) {
    EXPECT_EQ(formatNumber(0.5, "0.0000###", point), "0.5000");
    EXPECT_EQ(formatNumber(0.12345678, "0.0000###", point), "0.1234568");
    EXPECT_EQ(formatNumber(0.25, "#.0#", point), ".25");
    EXPECT_EQ(formatNumber(7, "000.0", point), "007.0");
    EXPECT_EQ(formatNumber(12345, "#0.0", point), "12345.0");
    EXPECT_EQ(formatNumber(12.6, "0", point), "13");
}

TEST(FormatNumber, RoundsHalvesOfTheDecimalDigitsAwayFromZero) {
    EXPECT_EQ(formatNumber(0.15, "0.0", point), "0.2");
    EXPECT_EQ(formatNumber(2.675, "0.00", point), "2.68");
    EXPECT_EQ(formatNumber(-1.005, "0.00", point), "-1.01");
    EXPECT_EQ(formatNumber(999.95, "0.0", point), "1000.0");
    EXPECT_EQ(formatNumber(0.95, "0.0", point), "1.0");
    EXPECT_EQ(formatNumber(0.05, "0.0", point), "0.1");
    EXPECT_EQ(formatNumber(0.04999, "0.0", point), "0.0");
}

TEST(FormatNumber, NothingLeftOfAValueHasNoMinus) {
    EXPECT_EQ(formatNumber(-0.04, "0.0", point), "0.0");
    EXPECT_EQ(formatNumber(-0.0, "0.0", point), "0.0");
    EXPECT_EQ(formatNumber(-1e-300, "0.0000###", point), "0.0000");
    EXPECT_EQ(formatNumber(-0.05, "0.0", point), "-0.1");
}

TEST(FormatNumber, HoldsFifteenSignificantDigits) {
    EXPECT_EQ(formatNumber(1234567890123456789.0, "0.0", point), "1234567890123460000.0");
    EXPECT_EQ(formatNumber(0.1 + 0.2, "0.0################", point), "0.3");
}

TEST(FormatNumber, WritesTheLargestNumbersInFull) {
    const std::string text = formatNumber(1e308, "0.0", point);
    EXPECT_EQ(text, "1" + std::string(308, '0') + ".0");
}

TEST(FormatNumber, UsesTheDecimalSeparatorOfTheLocale) {
    EXPECT_EQ(formatNumber(1.5, "0.00", german), "1,50");
}

TEST(FormatNumber, NotFiniteIsTheWordForInfinity) {
    EXPECT_EQ(formatNumber(HUGE_VAL, "0.0", german), "unendlich");
    EXPECT_EQ(formatNumber(std::nan(""), "0.0", point), "infinite");
}

TEST(FormatRatio, ShowsMoreDecimalsBelowOne) {
    EXPECT_EQ(FormatRatio(1.0, point), "1.000");
    EXPECT_EQ(FormatRatio(0.6180339, point), "0.6180");
    EXPECT_EQ(FormatRatio(1.6180339, point), "1.618");
    EXPECT_EQ(FormatRatio(12.345678, point), "12.35");
    EXPECT_EQ(FormatRatio(123456.78, point), "123457.00");
    EXPECT_EQ(FormatRatio(0.001234567, point), "0.001235");
}

TEST(FormatRatio, ChoosesByTheRoundedValue) {
    EXPECT_EQ(FormatRatio(9.99996, point), "10.00");
    EXPECT_EQ(FormatRatio(0.999996, point), "1.000");
}

TEST(FormatRatio, InfinityIsAWord) {
    EXPECT_EQ(FormatRatio(1e308, german), "unendlich");
    EXPECT_EQ(FormatRatio(-1e308, point), "infinite");
}

TEST(FormatRatio, ComparesWithTheReference) {
    const ReferenceTable table("ratio_texts.csv");
    ASSERT_EQ(table.rows().size(), 3003U);
    for (const auto& row : table.rows()) {
        EXPECT_EQ(FormatRatio(ReferenceTable::number(row[0]), point), row[1]) << row[0];
    }
}

TEST(FormatAngle, ShowsDegreesOrRadians) {
    EXPECT_EQ(FormatAngle(halfPi, 0, point), "90.00°");
    EXPECT_EQ(FormatAngle(halfPi, 1, point), "1.5708 rad");
    EXPECT_EQ(FormatAngle(halfPi / 4, 0, german), "22,50°");
}

TEST(FormatAngle, ComparesWithTheReference) {
    const ReferenceTable table("angle_texts.csv");
    ASSERT_EQ(table.rows().size(), 2000U);
    for (const auto& row : table.rows()) {
        const double angle = ReferenceTable::number(row[0]);
        EXPECT_EQ(FormatAngle(angle, ReferenceTable::whole(row[1]), point), row[2]) << row[0];
    }
}

TEST(FormatLength, PixelsHaveNoUnit) {
    EXPECT_EQ(FormatLength(12.25, 0, 5, "cm", 3, point), "12.3");
}

TEST(FormatPixels, AreThoseOfTheScreenUnlessLogicalOnesAreWanted) {
    EXPECT_EQ(formatPixels(301, "0", point), "301");
    EXPECT_EQ(formatPixels(59.5, "#0.0", german), "59,5");
    TextForm logical = german;
    logical.logicalDpi = 192;
    EXPECT_EQ(formatPixels(301, "0", logical), "150,5");
    logical.logicalDpi = 144;
    EXPECT_EQ(formatPixels(301, "0", logical), "200,7");
    EXPECT_EQ(formatPixels(-0.05, "0", logical), "0,0");
    logical.logicalDpi = 96;
    EXPECT_EQ(formatPixels(301, "0", logical), "301,0");
}

TEST(FormatLength, OnlyPixelsAreLogicalOnes) {
    TextForm logical = point;
    logical.logicalDpi = 192;
    EXPECT_EQ(FormatLength(301, 0, 5, "cm", 3, logical), "150.5");
    EXPECT_EQ(FormatLength(100, 1, 0.0254, "cm", 0, logical), "2.54 cm");
    EXPECT_EQ(FormatLength(100, 2, 5, "cm", 200, logical), "2.5 cm");
}

TEST(FormatLength, FactorScalesAndUnitFollows) {
    EXPECT_EQ(FormatLength(100, 1, 0.0254, "cm", 0, point), "2.54 cm");
    EXPECT_EQ(FormatLength(100, 1, 0.0254, "cm", 0, german), "2,54 cm");
    EXPECT_EQ(FormatLength(123456.7, 1, 1, "µm", 0, point), "123457.0 µm");
}

TEST(FormatLength, ReferenceMeasuresExactlyTheFactor) {
    EXPECT_EQ(FormatLength(77.3, 2, 10, "m", 77.3, point), "10.0 m");
    EXPECT_EQ(FormatLength(77.3, 2, 10, "m", 0, point), "0.0 m");
}

TEST(FormatLength, EmptyUnitLeavesNoBlank) {
    EXPECT_EQ(FormatLength(3, 1, 2, "", 0, point), "6.0");
    EXPECT_EQ(FormatLength(3, 1, 2, "in ", 0, point), "6.0 in");
}

TEST(FormatLength, ComparesWithTheReference) {
    const ReferenceTable table("length_texts.csv");
    ASSERT_EQ(table.rows().size(), 3000U);
    for (const auto& row : table.rows()) {
        const auto v = ReferenceTable::numbers(row);
        const int mode = ReferenceTable::whole(row[1]);
        EXPECT_EQ(FormatLength(v[0], mode, v[2], row[3], v[4], point), row[5]) << row[0];
    }
}

TEST(SameNumberText, IgnoresWhatFifteenDigitsDoNotShow) {
    EXPECT_TRUE(SameNumberText(0.1 + 0.2, 0.3));
    EXPECT_TRUE(SameNumberText(100.0 / 3, 33.3333333333333));
    EXPECT_FALSE(SameNumberText(100.0 / 3, 33.333333333333));
    EXPECT_FALSE(SameNumberText(1.5, -1.5));
    EXPECT_FALSE(SameNumberText(1.5, 15));
    EXPECT_TRUE(SameNumberText(0.0, -0.0));
    EXPECT_TRUE(SameNumberText(1e308, 1e308));
}

TEST(OnOneLine, JoinsAllLines) {
    EXPECT_EQ(onOneLine("one\r\ntwo\r\nthree"), "one, two, three");
    EXPECT_EQ(onOneLine("one"), "one");
}

}  // namespace
}  // namespace ormala
