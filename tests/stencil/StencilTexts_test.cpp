#include "stencil/StencilTexts.h"

#include <gtest/gtest.h>

#include "language/MlStringModule.h"
#include "modAPI/constants.h"
#include "support/ManualLanguage.h"

namespace ormala {
namespace {

SpecialRatios ratiosIn(const TextForm& form) {
    return {[](int id, std::string_view defaultText) { return MlString(id, defaultText); }, form};
}

TEST(RotationText, ShowsDegreesAboveRadians) {
    EXPECT_EQ(rotationText(pi / 4, {}), "45.0°\r\n0.785 rad");
    EXPECT_EQ(rotationText(0, {}), "0.0°\r\n0.000 rad");
    TextForm comma;
    comma.decimalSeparator = ",";
    EXPECT_EQ(rotationText(pi / 16, comma), "11,3°\r\n0,196 rad");
}

TEST(SizeText, NamesASpecialRatio) {
    const ManualLanguage english(languageEnglish);
    const auto ratios = ratiosIn({});
    EXPECT_EQ(sizeText({0, 0, 299, 199}, ratios, {}),
              "300 x 200  ratio = 1.500\r\n3:2  (chemical photo)");
    EXPECT_EQ(sizeText({0, 0, 99, 199}, ratios, {}), "100 x 200  ratio = 0.5000\r\n1:2");
    EXPECT_EQ(sizeText({0, 0, 99, 99}, ratios, {}), "100 x 100  ratio = 1.000\r\n1:1  (square)");
}

TEST(SizeText, LeavesTheSecondLineOutBesideASpecialRatio) {
    const ManualLanguage english(languageEnglish);
    EXPECT_EQ(sizeText({0, 0, 699, 999}, ratiosIn({}), {}), "700 x 1000  ratio = 0.7000");
}

TEST(SizeText, RoundsBothEndsOfASide) {
    const ManualLanguage english(languageEnglish);
    EXPECT_EQ(sizeText({0.4, 0.6, 99.6, 700.4}, ratiosIn({}), {}).substr(0, 9), "101 x 700");
}

TEST(SizeText, SpeaksTheUsersLanguage) {
    const ManualLanguage german(languageGerman);
    TextForm comma;
    comma.decimalSeparator = ",";
    const std::string text = sizeText({0, 0, 299, 199}, ratiosIn(comma), comma);
    EXPECT_NE(text, sizeText({0, 0, 299, 199}, ratiosIn({}), {}));
    EXPECT_NE(text.find("1,500"), std::string::npos);
}

TEST(StencilNames, TellEachGripOfBothLanguages) {
    const ManualLanguage english(languageEnglish);
    EXPECT_EQ(stencilName(3), "Stencil 3");
    EXPECT_EQ(stencilGripName({StencilGripKind::move, 0}), "center grip");
    EXPECT_EQ(stencilGripName({StencilGripKind::size, 0}), "top side grip");
    EXPECT_EQ(stencilGripName({StencilGripKind::size, 3}), "left side grip");
    EXPECT_EQ(stencilGripName({StencilGripKind::sizeCorner, 0}), "top right corner grip");
    EXPECT_EQ(stencilGripName({StencilGripKind::rotate, 3}), "top left rotation grip");
    const ManualLanguage german(languageGerman);
    EXPECT_EQ(stencilName(3), "Schablone 3");
    EXPECT_EQ(stencilGripName({StencilGripKind::sizeCorner, 2}), "Griff der Ecke links unten");
}

}  // namespace
}  // namespace ormala
