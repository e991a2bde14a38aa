#include "storage/NumberForm.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

#include "support/DecimalComma.h"

namespace ormala {
namespace {

TEST(NumberText, HasABlankOrAMinusAndNoZeroBeforeThePoint) {
    EXPECT_EQ(numberText(12.5), " 12.5");
    EXPECT_EQ(numberText(0.5), " .5");
    EXPECT_EQ(numberText(-0.25), "-.25");
    EXPECT_EQ(numberText(3), " 3");
    EXPECT_EQ(numberText(-3), "-3");
    EXPECT_EQ(numberText(0), " 0");
    EXPECT_EQ(numberText(-0.0), " 0");
    EXPECT_EQ(numberText(0.001), " .001");
    EXPECT_EQ(numberText(16711680), " 16711680");
}

TEST(NumberText, KeepsFifteenSignificantDigits) {
    EXPECT_EQ(numberText(1.0 / 3), " .333333333333333");
    EXPECT_EQ(numberText(-2.0 / 3), "-.666666666666667");
    EXPECT_EQ(numberText(123456789012345.0), " 123456789012345");
    EXPECT_EQ(numberText(0.1 + 0.2), " .3");
}

TEST(NumberText, TakesAnExponentForTheVeryLargeAndTheVerySmall) {
    EXPECT_EQ(numberText(1e20), " 1E+20");
    EXPECT_EQ(numberText(-1.5e300), "-1.5E+300");
    EXPECT_EQ(numberText(1e-7), " 1E-07");
}

TEST(NumberText, WritesZeroForWhatIsNoFiniteNumber) {
    EXPECT_EQ(numberText(std::numeric_limits<double>::infinity()), " 0");
    EXPECT_EQ(numberText(-std::numeric_limits<double>::infinity()), " 0");
    EXPECT_EQ(numberText(std::numeric_limits<double>::quiet_NaN()), " 0");
}

TEST(NumberText, ReadsBackOverTheWholeRange) {
    for (const double value : {1.7976931348623157e308, 2.2250738585072014e-308, 5e-324, 1e15, 1e16,
                               0.0001, 0.00001, 4294967296.5, 1e22, 1e23}) {
        for (const double signedValue : {value, -value}) {
            const auto read = numberFromText(numberText(signedValue));
            ASSERT_TRUE(read.has_value()) << signedValue;
            EXPECT_NEAR(*read / signedValue, 1, 1e-14) << signedValue;
        }
    }
}

TEST(NumberFromText, ReadsTheFormThatIsWritten) {
    EXPECT_EQ(numberFromText(" 12.5"), 12.5);
    EXPECT_EQ(numberFromText(" .5"), .5);
    EXPECT_EQ(numberFromText("-.25"), -.25);
    EXPECT_EQ(numberFromText(" 1E+20"), 1e20);
    EXPECT_EQ(numberFromText("1e20"), 1e20);
    EXPECT_EQ(numberFromText("-1.5E-3"), -.0015);
    EXPECT_EQ(numberFromText("7."), 7);
}

TEST(NumberFromText, StopsAtTheFirstOtherCharacter) {
    EXPECT_EQ(numberFromText("1,5"), 1);
    EXPECT_EQ(numberFromText("2.5 mm"), 2.5);
    EXPECT_EQ(numberFromText("1.2.3"), 1.2);
    EXPECT_EQ(numberFromText("3e"), 3);
    EXPECT_EQ(numberFromText("3e+"), 3);
    EXPECT_EQ(numberFromText("4E+x"), 4);
    EXPECT_EQ(numberFromText("0x10"), 0);
    EXPECT_EQ(numberFromText(std::string("1\0002", 3)), 1);
}

TEST(NumberFromText, IsZeroWithoutANumberInFront) {
    for (const char* const text :
         {"", " ", "abc", "-", ".", "-.", "+1", "--1", "- 1", "e5", ",5"}) {
        EXPECT_EQ(numberFromText(text), 0) << text;
    }
}

TEST(NumberFromText, KnowsNoWordsForInfinity) {
    for (const char* const text : {"inf", "-inf", "INFINITY", "nan", "-nan", "NaN(1)", ".inf"}) {
        EXPECT_EQ(numberFromText(text), 0) << text;
    }
}

TEST(NumberFromText, GivesNothingForATooLargeNumber) {
    EXPECT_EQ(numberFromText("1e999"), std::nullopt);
    EXPECT_EQ(numberFromText("-1e999"), std::nullopt);
    EXPECT_EQ(numberFromText("1e99999999999999999999999"), std::nullopt);
    EXPECT_EQ(numberFromText(".0001e999 mm"), std::nullopt);
    EXPECT_EQ(numberFromText(std::string(400, '9')), std::nullopt);
}

TEST(NumberFromText, IsZeroForATooSmallNumber) {
    EXPECT_EQ(numberFromText("1e-999"), 0);
    EXPECT_EQ(numberFromText("-1e-99999999999999999999999"), 0);
    EXPECT_EQ(numberFromText("." + std::string(400, '0') + "1"), 0);
    EXPECT_EQ(numberFromText("0e99999999999999999999999"), 0);
    EXPECT_EQ(numberFromText("0.0e1"), 0);
}

TEST(NumberFromText, HasNoNegativeZero) {
    EXPECT_FALSE(std::signbit(numberFromText("-0").value()));
    EXPECT_FALSE(std::signbit(numberFromText("-1e-999").value()));
}

TEST(NumberForm, HoldsAPointUnderALocaleWithADecimalComma) {
    const DecimalComma comma;
    EXPECT_EQ(numberText(-1.25), "-1.25");
    EXPECT_EQ(numberFromText("1.25"), 1.25);
    EXPECT_EQ(numberFromText("1,25"), 1);
}

}  // namespace
}  // namespace ormala
