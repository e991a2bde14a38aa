#include "stencil/PatternRotations.h"

#include <gtest/gtest.h>

#include "modAPI/constants.h"
#include "storage/NumberForm.h"
#include "support/ManualLanguage.h"

namespace ormala {
namespace {

TEST(PatternRotations, TheRowsTellFractionAndDegrees) {
    const ManualLanguage english(languageEnglish);
    EXPECT_EQ(
        rotationTexts({}),
        (std::vector<std::string>{"none = 0°", "1/8 = 45°", "1/4 = 90°", "1/3 = 120°", "3/8 = 135°",
                                  "1/2 = 180°", "5/8 = 225°", "2/3 = 240°", "3/4 = 270°",
                                  "7/8 = 315°", "1/20 = 18°", "2/20 = 36°", "3/20 = 54°"}));
}

TEST(PatternRotations, TheFirstRowIsTranslated) {
    const ManualLanguage german(languageGerman);
    EXPECT_EQ(rotationTexts({}).front(), "keine = 0°");
}

TEST(PatternRotations, ARowIsAFractionCutToAMillionth) {
    EXPECT_EQ(rotationOfRow(0), 0);
    EXPECT_DOUBLE_EQ(*rotationOfRow(3), 0.333333 * twoPi);
    EXPECT_DOUBLE_EQ(*rotationOfRow(12), 0.15 * twoPi);
    EXPECT_EQ(rotationOfRow(-1), std::nullopt);
    EXPECT_EQ(rotationOfRow(13), std::nullopt);
}

TEST(PatternRotations, EveryRowIsFoundAgain) {
    for (int row = 0; row < 13; ++row) {
        EXPECT_EQ(rowOfRotation(*rotationOfRow(row)), row);
    }
}

TEST(PatternRotations, EveryRowIsFoundAgainAfterAFile) {
    for (int row = 0; row < 13; ++row) {
        const std::string stored = numberText(*rotationOfRow(row));
        EXPECT_EQ(rowOfRotation(*numberFromText(stored)), row) << stored;
    }
}

TEST(PatternRotations, AnyOtherAngleHasNoRow) {
    for (const double angle : {0.1, 1.0, -pi / 4, pi / 4 + 1e-4, pi / 4 - 1e-4, twoPi, 1e300}) {
        EXPECT_EQ(rowOfRotation(angle), std::nullopt) << angle;
    }
}

TEST(PatternRotations, AnAngleWithinAMillionthOfATurnAboveHasTheRow) {
    EXPECT_EQ(rowOfRotation(twoPi / 3), 3);
}

}  // namespace
}  // namespace ormala
