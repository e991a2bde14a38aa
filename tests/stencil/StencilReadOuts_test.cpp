#include "stencil/StencilReadOuts.h"

#include <gtest/gtest.h>

#include <map>

#include "modAPI/constants.h"
#include "stencil/stencilPanelDesign.h"
#include "support/ManualLanguage.h"

namespace ormala {
namespace {

class StencilReadOutsTest : public testing::Test {
  protected:
    std::map<ControlId, std::string> read(const Rect& rect, double angle = 0) {
        std::map<ControlId, std::string> texts;
        for (const ControlText& each : stencilReadOuts(rect, angle, ratios_, form_)) {
            texts[each.control] = each.text;
        }
        return texts;
    }
    /// A rectangle of that many pixels from (0, 0) on.
    static Rect pixels(double width, double height) { return {0, 0, width - 1, height - 1}; }

    ManualLanguage language_{languageEnglish};
    TextForm form_;
    SpecialRatios ratios_{[](int, std::string_view text) { return std::string(text); }, form_};
};

TEST_F(StencilReadOutsTest, CountsBothEndPixels) {
    const auto texts = read({10, 20, 109, 69});
    EXPECT_EQ(texts.at(StencilControl::lblSizeWidth), "W = 100 ");
    EXPECT_EQ(texts.at(StencilControl::lblSizeHeight), "H = 50 ");
    EXPECT_EQ(texts.at(StencilControl::lblPositionLeft), "left = 10 ");
    EXPECT_EQ(texts.at(StencilControl::lblPositionRight), "right = 109 ");
    EXPECT_EQ(texts.at(StencilControl::lblPositionTop), "top = 20 ");
    EXPECT_EQ(texts.at(StencilControl::lblPositionBottom), "bottom = 69 ");
    EXPECT_EQ(texts.at(StencilControl::lblRatioWH), "W:H = 2.000 ");
    EXPECT_EQ(texts.at(StencilControl::lblRatioHW), "H:W = 0.5000 ");
}

TEST_F(StencilReadOutsTest, LogicalPixelsChangeNeitherRatioNorAngle) {
    form_ = {.decimalSeparator = ",", .logicalDpi = 192};
    const auto texts = read({10, 20, 110, 69}, pi / 2);
    EXPECT_EQ(texts.at(StencilControl::lblSizeWidth), "W = 50,5 ");
    EXPECT_EQ(texts.at(StencilControl::lblSizeHeight), "H = 25,0 ");
    EXPECT_EQ(texts.at(StencilControl::lblPositionLeft), "left = 5,0 ");
    EXPECT_EQ(texts.at(StencilControl::lblPositionBottom), "bottom = 34,5 ");
    EXPECT_EQ(texts.at(StencilControl::lblCenterX), "X = 29,8 ");
    EXPECT_EQ(texts.at(StencilControl::lblRatioWH), "W:H = 2,020 ");
    EXPECT_EQ(texts.at(StencilControl::lblAngle1), "90,0\u00b0 ");
}

TEST_F(StencilReadOutsTest, TheCentreIsHalfAPixelShortOfTheMiddle) {
    const auto even = read({10, 0, 109, 10});
    EXPECT_EQ(even.at(StencilControl::lblCenterX), "X = 59.0 ");
    EXPECT_EQ(even.at(StencilControl::lblCenterY), "Y = 4.5 ");
    EXPECT_EQ(read({0, 0, 0, 0}).at(StencilControl::lblCenterX), "X = -0.5 ");
}

TEST_F(StencilReadOutsTest, FractionsAreRoundedBeforeTheyAreCounted) {
    const auto texts = read({0.5, 0.4, 9.6, 9.4});
    EXPECT_EQ(texts.at(StencilControl::lblPositionLeft), "left = 1 ");
    EXPECT_EQ(texts.at(StencilControl::lblPositionRight), "right = 10 ");
    EXPECT_EQ(texts.at(StencilControl::lblSizeWidth), "W = 10 ");
    EXPECT_EQ(texts.at(StencilControl::lblSizeHeight), "H = 10 ");
}

TEST_F(StencilReadOutsTest, TheAngleHasDegreesAndRadians) {
    const auto texts = read({0, 0, 9, 9}, pi / 4);
    EXPECT_EQ(texts.at(StencilControl::lblAngle1), "45.0\u00b0 ");
    EXPECT_EQ(texts.at(StencilControl::lblAngle2), "0.785 rad ");
}

TEST_F(StencilReadOutsTest, NumbersHaveTheUsersDecimalSeparator) {
    form_.decimalSeparator = ",";
    const auto texts = read({0, 0, 99, 49}, pi / 4);
    EXPECT_EQ(texts.at(StencilControl::lblAngle2), "0,785 rad ");
    EXPECT_EQ(texts.at(StencilControl::lblCenterY), "Y = 24,0 ");
    EXPECT_EQ(texts.at(StencilControl::lblRatioHW), "H:W = 0,5000 ");
}

TEST_F(StencilReadOutsTest, TheWordsFollowTheLanguage) {
    const ManualLanguage german(languageGerman);
    const auto texts = read({0, 0, 9, 9});
    EXPECT_EQ(texts.at(StencilControl::lblSizeWidth), MlString(329, {}) + "10 ");
    EXPECT_NE(texts.at(StencilControl::lblSizeWidth), "W = 10 ");
}

TEST_F(StencilReadOutsTest, NoSpecialRatioHasNoDescription) {
    EXPECT_EQ(read(pixels(170, 100)).at(StencilControl::lblRatioDescription), "");
}

TEST_F(StencilReadOutsTest, ASpecialRatioIsDescribedTheWayItLies) {
    const std::string wide = read(pixels(400, 300)).at(StencilControl::lblRatioDescription);
    EXPECT_EQ(wide, ratios_.SpecialRatioCaption(3, true, "  ", true) + " ");
    EXPECT_EQ(wide.substr(0, 3), "4:3");
    const std::string high = read(pixels(300, 400)).at(StencilControl::lblRatioDescription);
    EXPECT_EQ(high.substr(0, 3), "3:4");
}

TEST_F(StencilReadOutsTest, AnyRectangleHasAllItsTexts) {
    const Rect rects[] = {{1e308, 1e308, -1e308, -1e308}, {0, 0, -1, -1}, {0, 0, -50, 9}};
    for (const Rect& rect : rects) {
        EXPECT_EQ(read(rect, 1e300).size(), 13U);
    }
}

}  // namespace
}  // namespace ormala
