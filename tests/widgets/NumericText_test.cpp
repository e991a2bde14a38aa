#include "widgets/NumericText.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

namespace ormala {
namespace {

constexpr char32_t copy = 3;
constexpr char32_t backspace = 8;
constexpr char32_t paste = 22;
constexpr char32_t cut = 24;

NumericText rules(const char* separator, int decimals = 2, int sign = 0) {
    NumericText made(separator);
    made.setDecimalsMax(decimals);
    made.setSign(sign);
    return made;
}

/// The box after a key, as a text box would take it.
TypedText typed(NumericText& rules, char32_t key, const TypedText& box) {
    const FilteredKey filtered = rules.keyPress(key, box);
    TypedText after = filtered.box;
    if (filtered.key >= U' ') {
        after.text.replace(static_cast<std::size_t>(after.caret),
                           static_cast<std::size_t>(after.selected), 1,
                           static_cast<char>(filtered.key));
        ++after.caret;
        after.selected = 0;
    }
    rules.keyHandled();
    return after;
}

TypedText typedAll(NumericText& rules, std::string_view keys) {
    TypedText box;
    for (const char key : keys) {
        box = typed(rules, static_cast<char32_t>(key), box);
    }
    return box;
}

/// With both separators.
class NumericTextTest : public testing::TestWithParam<const char*> {
  protected:
    static char separator() { return *GetParam(); }
    /// The text with the separator in place of each "_".
    static std::string local(std::string text) {
        std::ranges::replace(text, '_', separator());
        return text;
    }

    NumericText rules_ = rules(GetParam());
};

INSTANTIATE_TEST_SUITE_P(Separators, NumericTextTest, testing::Values(".", ","),
                         [](const auto& tested) {
                             return *tested.param == ',' ? "comma" : "point";
                         });

TEST_P(NumericTextTest, EitherKeyTypesTheSeparatorOfTheLocale) {
    EXPECT_EQ(typedAll(rules_, "1.5").text, local("1_5"));
    EXPECT_EQ(typedAll(rules_, "1,5").text, local("1_5"));
}

TEST_P(NumericTextTest, KeepsAtMostOneSeparator) {
    EXPECT_EQ(typedAll(rules_, "1.,.5").text, local("1_5"));
    EXPECT_EQ(typed(rules_, U'.', {local("1_5"), 0, 0}).text, local("1_5"));
}

TEST_P(NumericTextTest, TakesNoSeparatorWithoutDecimals) {
    rules_.setDecimalsMax(0);
    EXPECT_EQ(typedAll(rules_, "1.5").text, "15");
}

TEST_P(NumericTextTest, NewSeparatorIsAcceptedWhereTheSelectionCoversTheOldOne) {
    EXPECT_EQ(typed(rules_, U'.', {local("12_34"), 1, 3}).text, local("1_4"));
    EXPECT_EQ(typed(rules_, U',', {local("12_34"), 3, 2}).text, local("12_34"));
}

TEST_P(NumericTextTest, DigitAtTheEndOfFullDecimalsIsCancelled) {
    EXPECT_EQ(typed(rules_, U'9', {local("1_23"), 4, 0}).text, local("1_23"));
}

TEST_P(NumericTextTest, DigitInFullDecimalsReplacesTheNextOne) {
    EXPECT_EQ(typed(rules_, U'9', {local("1_23"), 3, 0}), (TypedText{local("1_29"), 4, 0}));
    EXPECT_EQ(typed(rules_, U'9', {local("1_23"), 2, 0}), (TypedText{local("1_93"), 3, 0}));
}

TEST_P(NumericTextTest, DigitBeforeTheSeparatorIsInserted) {
    EXPECT_EQ(typed(rules_, U'9', {local("1_23"), 1, 0}).text, local("19_23"));
    EXPECT_EQ(typed(rules_, U'9', {local("1_23"), 0, 0}).text, local("91_23"));
}

TEST_P(NumericTextTest, DigitReplacesTheSelectionInFullDecimals) {
    EXPECT_EQ(typed(rules_, U'9', {local("1_23"), 2, 2}).text, local("1_9"));
}

TEST_P(NumericTextTest, DigitIsInsertedWhereThereIsRoomForDecimals) {
    EXPECT_EQ(typed(rules_, U'9', {local("1_2"), 3, 0}).text, local("1_29"));
}

TEST_P(NumericTextTest, MinusWorksFromAnyPlaceAndKeepsTheCaretAtItsDigits) {
    EXPECT_EQ(typed(rules_, U'-', {local("1_5"), 2, 1}), (TypedText{local("-1_5"), 3, 1}));
    EXPECT_EQ(typed(rules_, U'-', {local("1_5"), 0, 0}), (TypedText{local("-1_5"), 1, 0}));
    EXPECT_EQ(typed(rules_, U'-', {local("-1_5"), 3, 0}), (TypedText{local("-1_5"), 3, 0}));
}

TEST_P(NumericTextTest, PlusRemovesTheMinusAndKeepsTheCaretAtItsDigits) {
    EXPECT_EQ(typed(rules_, U'+', {local("-1_5"), 3, 1}), (TypedText{local("1_5"), 2, 1}));
    EXPECT_EQ(typed(rules_, U'+', {local("-1_5"), 0, 4}), (TypedText{local("1_5"), 0, 3}));
}

TEST_P(NumericTextTest, BeforeTheMinusDigitsAreCancelledAndPlusStillWorks) {
    for (const char32_t key : {U'5', U'.', paste, cut, backspace}) {
        EXPECT_EQ(rules_.keyPress(key, {"-5", 0, 0}), (FilteredKey{{"-5", 0, 0}, 0}));
    }
    EXPECT_EQ(typed(rules_, U'+', {"-5", 0, 0}).text, "5");
    EXPECT_EQ(typed(rules_, U'7', {"-5", 0, 1}).text, "75");
}

TEST_P(NumericTextTest, PositiveOnlyCancelsMinusAndTurnsNumbersSetByCode) {
    rules_.setSign(1);
    EXPECT_EQ(typed(rules_, U'-', {"5", 1, 0}).text, "5");
    EXPECT_EQ(rules_.textOf(-2.5), local("2_5"));
}

TEST_P(NumericTextTest, NegativeOnlyCancelsPlusAndTurnsNumbersSetByCode) {
    rules_.setSign(2);
    EXPECT_EQ(typed(rules_, U'+', {"-5", 2, 0}).text, "-5");
    EXPECT_EQ(typed(rules_, U'-', {"5", 1, 0}).text, "-5");
    EXPECT_EQ(rules_.textOf(2.5), local("-2_5"));
}

TEST_P(NumericTextTest, OtherKeysAreCancelledButForThoseOfTheClipboard) {
    for (const char32_t key : {U'a', U'e', U' ', U'\x1', U'\x1a', U'µ', U'٣'}) {
        EXPECT_EQ(rules_.keyPress(key, {"5", 1, 0}).key, 0U);
    }
    for (const char32_t key : {copy, backspace, paste, cut}) {
        EXPECT_EQ(rules_.keyPress(key, {"5", 1, 0}).key, key);
    }
}

TEST_P(NumericTextTest, TypedTextStandsAsItIs) {
    rules_.keyPress(U'5', {local("0_"), 2, 0});
    EXPECT_EQ(rules_.changed(local("0_5")), std::nullopt);
}

TEST_P(NumericTextTest, DeletedDigitLeavesTheTextAsItIs) {
    rules_.deletePress();
    EXPECT_EQ(rules_.changed(local("_50")), std::nullopt);
}

TEST_P(NumericTextTest, PastedAndCutTextIsNormalised) {
    rules_.keyPress(paste, {"", 0, 0});
    EXPECT_EQ(rules_.changed("007.50 metres"), local("7_5"));
    rules_.keyPress(cut, {local("1_25"), 0, 1});
    EXPECT_EQ(rules_.changed(local("_25")), local("0_25"));
}

TEST_P(NumericTextTest, TextThatChangesByNoKeyIsNormalised) {
    EXPECT_EQ(rules_.changed("1,239"), local("1_24"));
    EXPECT_EQ(rules_.changed("words"), "0");
}

TEST_P(NumericTextTest, CancelledKeyDoesNotSpareTheNextForeignText) {
    rules_.keyPress(U'x', {"5", 1, 0});
    rules_.keyHandled();
    EXPECT_EQ(rules_.changed("5x"), "5");
}

TEST_P(NumericTextTest, ReadsTheLeadingNumberWithEitherSeparator) {
    EXPECT_EQ(NumericText::valueOf("1.5"), 1.5);
    EXPECT_EQ(NumericText::valueOf("1,5"), 1.5);
    EXPECT_EQ(NumericText::valueOf("-,5"), -0.5);
    EXPECT_EQ(NumericText::valueOf("12 km"), 12);
    EXPECT_EQ(NumericText::valueOf("1 234,5"), 1234.5);
    EXPECT_EQ(NumericText::valueOf("+7"), 7);
    EXPECT_EQ(NumericText::valueOf("1.2.3"), 1.2);
}

TEST_P(NumericTextTest, ReadsZeroWhereThereIsNoNumber) {
    for (const char* text : {"", "-", ".", "-.", "km", "inf", "nan", "+-3", "µ5", "1e999"}) {
        EXPECT_EQ(NumericText::valueOf(text), 0) << text;
    }
}

TEST_P(NumericTextTest, WholeNumbersShowNoSeparator) {
    EXPECT_EQ(rules_.textOf(3), "3");
    EXPECT_EQ(rules_.textOf(0), "0");
    EXPECT_EQ(rules_.textOf(-1200), "-1200");
}

TEST_P(NumericTextTest, FractionsShowUpToTheMostDecimals) {
    EXPECT_EQ(rules_.textOf(0.5), local("0_5"));
    EXPECT_EQ(rules_.textOf(-1.235), local("-1_24"));
    EXPECT_EQ(rules_.textOf(1.004), "1");
    EXPECT_EQ(rules_.textOf(-0.001), "0");
}

TEST_P(NumericTextTest, FractionsAreRoundedAwayWithoutDecimals) {
    rules_.setDecimalsMax(0);
    EXPECT_EQ(rules_.textOf(2.5), "3");
}

TEST_P(NumericTextTest, ShowsOnlyWhatCanBeRead) {
    EXPECT_EQ(rules_.textOf(std::numeric_limits<double>::infinity()), "0");
    EXPECT_EQ(rules_.textOf(std::numeric_limits<double>::quiet_NaN()), "0");
    EXPECT_EQ(NumericText::valueOf(rules_.textOf(1e300)), 1e300);
    const std::string longest(309, '9');
    EXPECT_EQ(typed(rules_, U'9', {longest, 309, 0}).text, longest);
}

TEST_P(NumericTextTest, MostDecimalsAreStoredWithoutTheirSign) {
    rules_.setDecimalsMax(-3);
    EXPECT_EQ(rules_.DecimalsMax(), 3);
}

TEST_P(NumericTextTest, TextSetByCodeIsReadWithAPointAndKeepsItsDigits) {
    EXPECT_EQ(rules_.plainTextOf("0.123456 m"), local("0_123456"));
    EXPECT_EQ(rules_.plainTextOf("-.5"), local("-0_5"));
    EXPECT_EQ(rules_.plainTextOf("1,5"), "1");
    EXPECT_EQ(rules_.plainTextOf("none"), "0");
}

TEST(NumericText, PointOnAGermanSystemInsertsAComma) {
    NumericText german = rules(",");
    EXPECT_EQ(german.keyPress(U'.', {"1", 1, 0}).key, U',');
}

TEST(NumericText, SeparatorThatCannotBeReadBecomesAPoint) {
    EXPECT_EQ(NumericText("٫").DecimalSeparator(), '.');
    EXPECT_EQ(NumericText("").DecimalSeparator(), '.');
}

}  // namespace
}  // namespace ormala
