#include "magnifier/lensTexts.h"

#include <gtest/gtest.h>

#include "language/MlStringModule.h"

namespace ormala {
namespace {

TEST(LensTexts, CaptionNamesTheFactorInBothLanguages) {
    MlSetLanguage(languageEnglish, {});
    EXPECT_EQ(lensCaption(4, false), "Magnifier 4 X");
    EXPECT_EQ(lensCaption(10, false), "Magnifier 10 X");
    MlSetLanguage(languageGerman, {});
    EXPECT_EQ(lensCaption(4, false), "Lupe 4 X");
    MlSetLanguage(languageEnglish, {});
}

TEST(LensTexts, CaptionIsEmptyWhileTheWindowFollowsTheMouse) {
    MlSetLanguage(languageEnglish, {});
    EXPECT_EQ(lensCaption(4, true), "");
    EXPECT_EQ(lensTitle(4), "Magnifier 4 X");
}

TEST(LensTexts, AColorHasTwoDigitsOfEachPartFromRedToBlue) {
    EXPECT_EQ(hexadecimal(rgb(0, 0, 0)), "#000000");
    EXPECT_EQ(hexadecimal(rgb(255, 10, 1)), "#FF0A01");
    EXPECT_EQ(hexadecimal(rgb(79, 160, 254)), "#4FA0FE");
}

TEST(LensTexts, APixelIsToldByItsColourAndItsPlace) {
    const LensPixel pixel{rgb(79, 160, 254), {-3, 205}};
    EXPECT_EQ(lensPixelText(pixel), "#4FA0FE  R 79  G 160  B 254\r\nX = -3  Y = 205");
    MlSetLanguage(languageEnglish, {});
    EXPECT_EQ(lensName(4, pixel), "Magnifier 4 X, #4FA0FE  R 79  G 160  B 254, X = -3  Y = 205");
    EXPECT_EQ(lensName(4, std::nullopt), "Magnifier 4 X");
}

}  // namespace
}  // namespace ormala
