#include "modAPI/colors.h"

#include <gtest/gtest.h>

#include <set>
#include <stdexcept>

namespace ormala {
namespace {

Color noSystemColor(int) {
    throw std::logic_error("a plain colour needs no lookup");
}

Color sampleSystemColor(int index) {
    return rgb(index, 2, 3);
}

constexpr Color white = rgb(255, 255, 255);

TEST(Luminance, GoesFromBlackToWhite) {
    EXPECT_EQ(Luminance(0), 0.0F);
    EXPECT_FLOAT_EQ(Luminance(white), 1.0F);
}

TEST(Luminance, WeighsTheComponents) {
    EXPECT_FLOAT_EQ(Luminance(rgb(255, 0, 0)), 0.2126F);
    EXPECT_FLOAT_EQ(Luminance(rgb(0, 255, 0)), 0.7152F);
    EXPECT_FLOAT_EQ(Luminance(rgb(0, 0, 255)), 0.0722F);
}

TEST(ColorComponents, SplitsAPlainColor) {
    EXPECT_EQ(ColorComponents(0x00030201, noSystemColor), (ColorParts{1, 2, 3}));
}

TEST(ColorComponents, LowByteOfANegativeColorIsTheSystemIndex) {
    const auto shadow = static_cast<Color>(0x80000010U);
    EXPECT_EQ(ColorComponents(shadow, sampleSystemColor), (ColorParts{16, 2, 3}));
}

TEST(BlendColor, WalksFromTheFirstToTheSecond) {
    const Color from = rgb(0, 100, 255);
    const Color to = rgb(200, 100, 5);
    EXPECT_EQ(BlendColor(0, 11, from, to, 100, noSystemColor), from);
    EXPECT_EQ(BlendColor(5, 11, from, to, 100, noSystemColor), rgb(100, 100, 130));
    EXPECT_EQ(BlendColor(10, 11, from, to, 100, noSystemColor), to);
}

TEST(BlendColor, StepBeyondTheLastIsTheLast) {
    EXPECT_EQ(BlendColor(50, 11, 0, white, 100, noSystemColor), white);
}

TEST(BlendColor, PercentStrengthensTheFirstAndWeakensTheSecond) {
    const Color from = rgb(20, 40, 200);
    const Color to = rgb(100, 60, 0);
    EXPECT_EQ(BlendColor(0, 5, from, to, 50, noSystemColor), rgb(40, 80, 255));
    EXPECT_EQ(BlendColor(4, 5, from, to, 50, noSystemColor), rgb(50, 30, 0));
}

TEST(BlendColor, PercentOfZeroIsAllOfTheFirst) {
    EXPECT_EQ(BlendColor(1, 5, rgb(1, 0, 255), white, 0, noSystemColor), rgb(255, 0, 255));
    EXPECT_EQ(BlendColor(4, 5, rgb(1, 0, 255), white, 0, noSystemColor), 0);
}

TEST(GradientColor, PanelOfOnePixelShowsTheFirstColorAlone) {
    EXPECT_EQ(GradientColor(0, 1, rgb(9, 8, 7), white, 100, noSystemColor), rgb(9, 8, 7));
}

TEST(GradientColor, TakesSystemColors) {
    const auto highlight = static_cast<Color>(0x80000014U);
    EXPECT_EQ(GradientColor(0, 9, highlight, white, 100, sampleSystemColor), rgb(20, 2, 3));
}

TEST(NextDefaultToolColor, StencilsBeginAtTheFirstColor) {
    ToolColors colors;
    EXPECT_EQ(colors.NextDefaultToolColor(0, false), rgb(255, 159, 0));
    EXPECT_EQ(colors.NextDefaultToolColor(0, false), rgb(0, 191, 191));
}

TEST(NextDefaultToolColor, MeasuresBeginAtTheFifthAndRunThroughTen) {
    ToolColors colors;
    const Color first = colors.NextDefaultToolColor(1, false);
    EXPECT_EQ(first, rgb(0, 0, 255));
    std::set<Color> seen = {first};
    for (int i = 1; i < 10; ++i) {
        const Color next = colors.NextDefaultToolColor(1, false);
        if (i == 6) {
            EXPECT_EQ(next, rgb(255, 159, 0));
        }
        seen.insert(next);
    }
    EXPECT_EQ(seen.size(), 10U);
    EXPECT_EQ(colors.NextDefaultToolColor(1, false), first);
}

TEST(OffsetColor, AddsToEachComponentAndStaysInRange) {
    EXPECT_EQ(OffsetColor(rgb(10, 100, 250), 20, noSystemColor), rgb(30, 120, 255));
    EXPECT_EQ(OffsetColor(rgb(10, 100, 250), -20, noSystemColor), rgb(0, 80, 230));
    EXPECT_EQ(OffsetColor(static_cast<Color>(0x80000010U), 1, sampleSystemColor), rgb(17, 3, 4));
}

TEST(NextDefaultToolColor, GreysAreNeverHandedOut) {
    ToolColors colors;
    for (int i = 0; i < 40; ++i) {
        for (const int kind : {0, 1, 2}) {
            const Color color = colors.NextDefaultToolColor(kind, false);
            EXPECT_NE(color, rgb(125, 125, 125));
            EXPECT_NE(color, rgb(212, 212, 212));
        }
    }
}

TEST(NextDefaultToolColor, KindsCountByThemselvesAndAResetConcernsOne) {
    ToolColors colors;
    colors.NextDefaultToolColor(0, false);
    colors.NextDefaultToolColor(2, false);
    EXPECT_EQ(colors.NextDefaultToolColor(0, true), 0);
    EXPECT_EQ(colors.NextDefaultToolColor(0, false), rgb(255, 159, 0));
    EXPECT_EQ(colors.NextDefaultToolColor(2, false), rgb(0, 191, 191));
}

constexpr Color grey = roleColor(rgb(96, 97, 98), ColorRole::window);
constexpr SystemColorLookup quiet(sampleSystemColor);
constexpr SystemColorLookup contrasting(sampleSystemColor, true);

TEST(RoleColor, IsItsFiguresUntilHighContrastGivesItsRoleAColor) {
    EXPECT_EQ(plainColor(grey, quiet), rgb(96, 97, 98));
    EXPECT_EQ(plainColor(grey, contrasting), sampleSystemColor(5));
    EXPECT_EQ(ColorComponents(grey, quiet), (ColorParts{96, 97, 98}));
    EXPECT_EQ(plainColor(rgb(1, 2, 3), contrasting), rgb(1, 2, 3));
    EXPECT_EQ(roleOf(grey), ColorRole::window);
    EXPECT_EQ(roleOf(rgb(255, 255, 255)), std::nullopt);
    EXPECT_EQ(roleOf(static_cast<Color>(0x8000000FU)), std::nullopt);
    EXPECT_EQ(grey & figures, rgb(96, 97, 98));
}

TEST(RoleColor, IsNotShadedInHighContrast) {
    EXPECT_EQ(OffsetColor(grey, 10, quiet), rgb(106, 107, 108));
    EXPECT_EQ(OffsetColor(grey, 10, contrasting), sampleSystemColor(5));
    // What the user has chosen is.
    EXPECT_EQ(OffsetColor(rgb(1, 2, 3), 10, contrasting), rgb(11, 12, 13));
}

TEST(PlainTextColor, BelongsToItsGroundInHighContrast) {
    constexpr Color text = roleColor(rgb(255, 230, 0), ColorRole::windowText);
    constexpr Color button = roleColor(rgb(1, 1, 1), ColorRole::buttonFace);
    constexpr Color chosen = roleColor(rgb(2, 2, 2), ColorRole::highlight);
    EXPECT_EQ(plainTextColor(text, button, quiet), rgb(255, 230, 0));
    EXPECT_EQ(plainTextColor(text, button, contrasting), sampleSystemColor(18));
    EXPECT_EQ(plainTextColor(text, chosen, contrasting), sampleSystemColor(14));
    EXPECT_EQ(plainTextColor(text, grey, contrasting), sampleSystemColor(8));
    // A swatch keeps its own text.
    EXPECT_EQ(plainTextColor(rgb(0, 0, 0), rgb(9, 9, 9), contrasting), 0);
}

}  // namespace
}  // namespace ormala
