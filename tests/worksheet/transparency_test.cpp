#include "worksheet/transparency.h"

#include <gtest/gtest.h>

namespace ormala {
namespace {

constexpr std::uint32_t layered = 0x80000;
constexpr std::uint32_t layeredAndTransparent = 0x80020;
constexpr std::uint32_t keyOfNoColor = 0xFFFFFFFF;
constexpr std::uint32_t opacityOnly = 2;
constexpr std::uint32_t keyAndOpacity = 3;
constexpr Color background = 0x4F4F4F;

TEST(LayeredLook, AWindowThatTakesTheMouseIsAVeilOfOneOpacity) {
    const LayeredLook veil{layered, keyOfNoColor, 191, opacityOnly};
    EXPECT_EQ(layeredLook(true, background, 128, 191), veil);
}

TEST(LayeredLook, AWindowThatPassesTheMouseOnKeysItsBackgroundOut) {
    const LayeredLook keyed{layeredAndTransparent, background, 128, keyAndOpacity};
    EXPECT_EQ(layeredLook(false, background, 128, 191), keyed);
}

TEST(LayeredLook, TheBackgroundVanishesAlsoWithToolsAtFullStrength) {
    const LayeredLook keyed = layeredLook(false, background, alphaOfTransparency(0), 191);
    EXPECT_EQ(keyed.alpha, 255);
    EXPECT_EQ(keyed.colorKey, static_cast<std::uint32_t>(background));
    EXPECT_EQ(keyed.flags, keyAndOpacity);
}

TEST(LayeredLook, TheKeyIsEveryPixelOfTheBackgroundsColourWhoeverDrewIt) {
    const Color ofATool = rgb(225, 153, 71);
    EXPECT_EQ(layeredLook(false, ofATool, 128, 191).colorKey, static_cast<std::uint32_t>(ofATool));
}

TEST(AlphaOfTransparency, RunsFromOpaqueToFullyGone) {
    EXPECT_EQ(alphaOfTransparency(0), 255);
    EXPECT_EQ(alphaOfTransparency(100), 0);
}

TEST(AlphaOfTransparency, IsRoundedToTheNearest) {
    EXPECT_EQ(alphaOfTransparency(25), 191);
    EXPECT_EQ(alphaOfTransparency(50), 128);
    EXPECT_EQ(alphaOfTransparency(99), 3);
    EXPECT_EQ(alphaOfTransparency(1), 252);
    EXPECT_EQ(alphaOfTransparency(33), 171);
}

TEST(AlphaOfTransparency, FallsWithEveryPercent) {
    for (int percent = 1; percent <= 100; ++percent) {
        EXPECT_LT(alphaOfTransparency(percent), alphaOfTransparency(percent - 1)) << percent;
    }
}

TEST(AlphaOfTransparency, StaysAnOpacityForAnyNumber) {
    EXPECT_EQ(alphaOfTransparency(-50), 255);
    EXPECT_EQ(alphaOfTransparency(400), 0);
}

}  // namespace
}  // namespace ormala
