#include "language/win/UserLocale.h"

#include <gtest/gtest.h>

namespace ormala {
namespace {

constexpr int localeGermany = 0x0407;
constexpr int decimalInfo = 14;

TEST(MlGetLocaleInfo, GivesTheEnglishNameOfALanguage) {
    EXPECT_EQ(MlGetLocaleInfo(localeGermany, localeEnglishLanguageName), "German");
    EXPECT_EQ(MlGetLocaleInfo(localeGermany, decimalInfo), ",");
}

TEST(MlGetLocaleInfo, GivesUmlautsAsUtf8) {
    constexpr int nativeNameOfMarch = 58;
    EXPECT_EQ(MlGetLocaleInfo(localeGermany, nativeNameOfMarch), "M\u00e4rz");
}

TEST(MlGetLocaleInfo, IsEmptyForAnUnknownKindOfText) {
    EXPECT_EQ(MlGetLocaleInfo(localeUserDefault, 0x0FFF), "");
}

TEST(MlGetLocaleInfo, KnowsTheUsersLanguage) {
    EXPECT_NE(MlGetLocaleInfo(localeUserDefault, localeEnglishLanguageName), "");
}

TEST(DecimalSeparator, IsTheUsersOwn) {
    EXPECT_EQ(decimalSeparator(), MlGetLocaleInfo(localeUserDefault, decimalInfo));
}

}  // namespace
}  // namespace ormala
