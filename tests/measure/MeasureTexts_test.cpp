#include "measure/MeasureTexts.h"

#include <gtest/gtest.h>

#include "modAPI/constants.h"

namespace ormala {
namespace {

/// 100 and 50 pixels long.
constexpr MeasureState twoToOne{false, {0, 0, 99, 0}, {0, 0, 0, 49}};

TEST(MeasureTexts, NumberComesFirstAndTheRatioBelow) {
    EXPECT_EQ(lengthTextA(twoToOne, 3, {}, {}), "3 a = 100.0\r\na:b = 2.000");
    EXPECT_EQ(lengthTextB(twoToOne, 3, {}, {}), "3 b = 50.0\r\nb:a = 0.5000");
}

TEST(MeasureTexts, EqualLinesShowARatioOfOne) {
    const MeasureState equal{false, {0, 0, 99, 0}, {5, 5, 5, 104}};
    EXPECT_EQ(lengthTextA(equal, 1, {}, {}), "1 a = 100.0\r\na:b = 1.000");
    EXPECT_EQ(lengthTextB(equal, 1, {}, {}), "1 b = 100.0\r\nb:a = 1.000");
}

TEST(MeasureTexts, UnitsForEachPixel) {
    const MeasureUnits units{0, 1, 0.25, "mm"};
    EXPECT_EQ(lengthTextA(twoToOne, 1, units, {}), "1 a = 25.0 mm\r\na:b = 2.000");
    EXPECT_EQ(lengthTextB(twoToOne, 1, units, {}), "1 b = 12.5 mm\r\nb:a = 0.5000");
}

TEST(MeasureTexts, WholeOfLineAIsTheYardstick) {
    const MeasureUnits units{0, 2, 5, "km"};
    EXPECT_EQ(lengthTextA(twoToOne, 1, units, {}), "1 a = 5.0 km\r\na:b = 2.000");
    EXPECT_EQ(lengthTextB(twoToOne, 1, units, {}), "1 b = 2.5 km\r\nb:a = 0.5000");
    const MeasureState longer{false, {0, 0, 9, 0}, {0, 0, 0, 79}};
    EXPECT_EQ(lengthTextA(longer, 1, units, {}), "1 a = 5.0 km\r\na:b = 0.1250");
    EXPECT_EQ(lengthTextB(longer, 1, units, {}), "1 b = 40.0 km\r\nb:a = 8.000");
}

TEST(MeasureTexts, AnglesInDegreesOrRadians) {
    EXPECT_EQ(angleText(pi / 2, 7, {}, {}), "7\r\n90.00°");
    EXPECT_EQ(angleText(pi / 2, 7, {1, 0, 1, "m"}, {}), "7\r\n1.5708 rad");
    EXPECT_EQ(angleText(twoPi, 7, {}, {}), "7\r\n360.00°");
}

TEST(MeasureTexts, SeparateLinesShowBothAngles) {
    EXPECT_EQ(bothAnglesText(twoToOne, 7, {}, {}), "7\r\n90.00° (270.00°)");
}

TEST(MeasureTexts, TakeTheUsersDecimalSeparator) {
    TextForm comma;
    comma.decimalSeparator = ",";
    EXPECT_EQ(lengthTextA(twoToOne, 1, {}, comma), "1 a = 100,0\r\na:b = 2,000");
    EXPECT_EQ(bothAnglesText(twoToOne, 1, {}, comma), "1\r\n90,00° (270,00°)");
}

}  // namespace
}  // namespace ormala
