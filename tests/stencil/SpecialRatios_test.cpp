#include "stencil/SpecialRatios.h"

#include <gtest/gtest.h>

#include <limits>
#include <map>
#include <string>
#include <vector>

#include "modAPI/rounding.h"
#include "reference/ReferenceTable.h"
#include "stencil/EnglishRatios.h"

namespace ormala {
namespace {

int nearest(double ratio) {
    bool inverted = false;
    return NearestSpecialRatio(ratio, inverted);
}

bool isInverted(double ratio) {
    bool inverted = false;
    NearestSpecialRatio(ratio, inverted);
    return inverted;
}

TEST(NearestSpecialRatio, RatioOfExactlyOneIsTheSquareAndInverted) {
    EXPECT_EQ(nearest(1.0), 0);
    EXPECT_TRUE(isInverted(1.0));
    EXPECT_FALSE(isInverted(0.9999999));
}

TEST(NearestSpecialRatio, ThreeQuartersIsRowThreeEitherWay) {
    EXPECT_EQ(nearest(0.75), 3);
    EXPECT_FALSE(isInverted(0.75));
    EXPECT_EQ(nearest(1.3333), 3);
    EXPECT_TRUE(isInverted(1.3333));
    EXPECT_TRUE(SameSignificant(1 / 1.3333, specialRatioValues[3], 3));
}

TEST(NearestSpecialRatio, SevenTenthsIsNearTheRootOfTwoButNotEqualToThreeDigits) {
    EXPECT_EQ(nearest(0.7), 5);
    EXPECT_FALSE(SameSignificant(0.7, specialRatioValues[5], 3));
}

TEST(NearestSpecialRatio, EveryRowIsNearestToItsOwnValueAndInverse) {
    for (int row = 0; row < specialRatioCount; ++row) {
        const double value = specialRatioValues[static_cast<std::size_t>(row)];
        EXPECT_EQ(nearest(value), row);
        EXPECT_EQ(nearest(1 / value), row);
        EXPECT_EQ(nearest(-value), row);
    }
}

TEST(NearestSpecialRatio, ExtremeRatiosAreTheLastRow) {
    EXPECT_EQ(nearest(0), 17);
    EXPECT_EQ(nearest(1e308), 17);
    EXPECT_EQ(nearest(std::numeric_limits<double>::infinity()), 17);
}

TEST(NearestSpecialRatio, FirstOfEquallyNearRowsWins) {
    const double midway = (specialRatioValues[0] + specialRatioValues[1]) / 2;
    ASSERT_EQ(specialRatioValues[0] - midway, midway - specialRatioValues[1]);
    EXPECT_EQ(nearest(midway), 0);
}

TEST(SnapToSpecialRatio, KeepsTheSignAndTellsTheRatio) {
    double ratio = 0;
    EXPECT_DOUBLE_EQ(SnapToSpecialRatio(-76, 100, ratio), -0.75);
    EXPECT_DOUBLE_EQ(ratio, -0.76);
    EXPECT_DOUBLE_EQ(SnapToSpecialRatio(100, 76, ratio), 4.0 / 3);
}

TEST(SnapToSpecialRatio, NoHeightIsARatioOfZero) {
    double ratio = 5;
    EXPECT_EQ(SnapToSpecialRatio(100, 0, ratio), 0.2);
    EXPECT_EQ(ratio, 0);
}

TEST(SnapToSpecialRatio, ComparesWithTheReference) {
    const ReferenceTable table("special_ratios.csv");
    ASSERT_EQ(table.rows().size(), 3000U);
    for (const auto& row : table.rows()) {
        const auto v = ReferenceTable::numbers(row);
        double ratio = 0;
        EXPECT_TRUE(agrees(SnapToSpecialRatio(v[0], v[1], ratio), v[5])) << row[0] << ':' << row[1];
        EXPECT_TRUE(agrees(ratio, v[2])) << row[0] << ':' << row[1];
        EXPECT_EQ(nearest(ratio), ReferenceTable::whole(row[3])) << row[0] << ':' << row[1];
        EXPECT_EQ(isInverted(ratio), v[4] != 0) << row[0] << ':' << row[1];
    }
}

TEST(SpecialRatios, ValuesFallFromOneToAFifth) {
    const SpecialRatios& ratios = englishRatios();
    EXPECT_EQ(ratios[0], 1);
    EXPECT_EQ(ratios[17], 0.2);
    for (int row = 1; row < specialRatioCount; ++row) {
        EXPECT_LT(ratios[row], ratios[row - 1]);
    }
}

TEST(SpecialRatioCaption, PutsTheUsageInBracketsIfWanted) {
    const SpecialRatios& ratios = englishRatios();
    EXPECT_EQ(ratios.SpecialRatioCaption(3, false, "  ", true),
              "3:4  (digital photo, TV, monitor)");
    EXPECT_EQ(ratios.SpecialRatioCaption(3, true, "\t", false), "4:3\tdigital photo, TV, monitor");
}

TEST(SpecialRatioCaption, RowWithoutUsageIsTheCaptionAlone) {
    EXPECT_EQ(englishRatios().SpecialRatioCaption(12, false, "  ", true), "1:2");
    EXPECT_EQ(englishRatios().SpecialRatioCaption(12, true, "  ", false), "2:1");
}

TEST(SpecialRatioCaption, IndexOutsideTheTableIsEmpty) {
    EXPECT_EQ(englishRatios().SpecialRatioCaption(-1, false, "  ", true), "");
    EXPECT_EQ(englishRatios().SpecialRatioCaption(18, false, "  ", true), "");
}

TEST(SpecialRatioCaption, EveryRowIsThatOfTheTable) {
    const SpecialRatios& ratios = englishRatios();
    const std::vector<std::string> expected = {"1:1|square",
                                               "4:5",
                                               "8.5:11|letter",
                                               "3:4|digital photo, TV, monitor",
                                               "9:12.5|35mm movie",
                                               "1:root(2)|ISO paper",
                                               "2:3|chemical photo",
                                               "5:8|wide screen monitor",
                                               "(root(5)-1):2|golden section",
                                               "3:5|cinema",
                                               "9:16|HDTV",
                                               "9:17|cinema",
                                               "1:2",
                                               "9:21|Cinemascope",
                                               "2:5",
                                               "1:3",
                                               "1:4",
                                               "1:5"};
    for (int row = 0; row < specialRatioCount; ++row) {
        EXPECT_EQ(ratios.SpecialRatioCaption(row, false, "|", false),
                  expected[static_cast<std::size_t>(row)]);
    }
    EXPECT_EQ(ratios.caption(5, true), "root(2):1");
    EXPECT_EQ(ratios.caption(8, true), "2:(root(5)-1)");
}

TEST(SpecialRatioCaption, InverseSwapsThePlainRatios) {
    const SpecialRatios& ratios = englishRatios();
    for (int row = 0; row < specialRatioCount; ++row) {
        if (row == 5 || row == 8) {
            continue;
        }
        const std::string& caption = ratios.caption(row, false);
        const auto colon = caption.find(':');
        EXPECT_EQ(ratios.caption(row, true),
                  caption.substr(colon + 1) + ":" + caption.substr(0, colon));
    }
}

TEST(SpecialRatioCaption, FractionsHaveTheDecimalSeparatorOfTheLocale) {
    const SpecialRatios ratios(english, TextForm{",", "unendlich"});
    EXPECT_EQ(ratios.caption(2, false), "8,5:11");
    EXPECT_EQ(ratios.caption(2, true), "11:8,5");
    EXPECT_EQ(ratios.caption(4, false), "9:12,5");
    EXPECT_EQ(ratios.caption(4, true), "12,5:9");
}

TEST(SpecialRatioCaption, TextsAreTranslatedByTheirIds) {
    std::map<int, std::string> asked;
    const SpecialRatios ratios(
        [&asked](int id, std::string_view text) {
            asked.emplace(id, text);
            return "<" + std::to_string(id) + ">";
        },
        TextForm{});
    EXPECT_EQ(ratios.SpecialRatioCaption(8, false, " ", false), "<266> <275>");
    EXPECT_EQ(ratios.SpecialRatioCaption(8, true, " ", false), "<279> <275>");
    EXPECT_EQ(ratios.SpecialRatioCaption(5, false, " ", false), "<267> <272>");
    EXPECT_EQ(ratios.SpecialRatioCaption(5, true, " ", false), "<278> <272>");
    EXPECT_EQ(ratios.SpecialRatioCaption(11, false, " ", false), "9:17 <276>");
    EXPECT_EQ(ratios.SpecialRatioCaption(10, false, " ", false), "9:16 HDTV");
    EXPECT_EQ(asked.size(), 13U);
    EXPECT_EQ(asked[270], "digital photo, TV, monitor");
}

TEST(SameSpecialRatio, IsEqualInThreeDigits) {
    EXPECT_EQ(SameSpecialRatio(0.7504).value().index, 3);
    EXPECT_FALSE(SameSpecialRatio(0.7506));
    EXPECT_FALSE(SameSpecialRatio(0.7));
}

TEST(SameSpecialRatio, KnowsTheInverse) {
    EXPECT_FALSE(SameSpecialRatio(3.0 / 4).value().inverted);
    EXPECT_TRUE(SameSpecialRatio(4.0 / 3).value().inverted);
    EXPECT_EQ(SameSpecialRatio(4.0 / 3).value().index, 3);
    EXPECT_TRUE(SameSpecialRatio(1).value().inverted);
}

TEST(SameSpecialRatio, NoneIsEqualToNothingAndToInfinity) {
    EXPECT_FALSE(SameSpecialRatio(0));
    EXPECT_FALSE(SameSpecialRatio(infinite));
}

}  // namespace
}  // namespace ormala
