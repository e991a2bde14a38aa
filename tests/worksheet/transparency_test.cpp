#include "worksheet/transparency.h"

#include <gtest/gtest.h>

namespace ormala {
namespace {

/// Extended styles: layered and topmost, and what comes with it where the mouse passes.
constexpr std::uint32_t layered = 0x80008;
constexpr std::uint32_t passesMouse = 0x20;
constexpr std::uint32_t takesNoKeyboard = 0x08000000;
constexpr std::uint32_t keyOfNoColor = 0xFFFFFFFF;
constexpr std::uint32_t opacityOnly = 2;
constexpr std::uint32_t keyAndOpacity = 3;
constexpr Color background = 0x4F4F4F;
constexpr Transparency veil{true, false, 128, 191};
constexpr Transparency keyed{false, false, 128, 191};

TEST(LayeredLook, AWindowThatTakesTheMouseIsAVeilOfOneOpacity) {
    const LayeredLook look{layered, keyOfNoColor, 191, opacityOnly};
    EXPECT_EQ(layeredLook(veil, background), look);
}

TEST(LayeredLook, AWindowThatPassesTheMouseOnKeysItsBackgroundOut) {
    const LayeredLook look{layered | passesMouse | takesNoKeyboard, background, 128, keyAndOpacity};
    EXPECT_EQ(layeredLook(keyed, background), look);
}

TEST(LayeredLook, LettingTheMouseThroughChangesNothingThatIsSeen) {
    Transparency through = veil;
    through.transparentToMouse = true;
    const LayeredLook look{layered | passesMouse, keyOfNoColor, 191, opacityOnly};
    EXPECT_EQ(layeredLook(through, background), look);
    through.clickable = false;
    EXPECT_EQ(layeredLook(through, background), layeredLook(keyed, background));
}

TEST(LayeredLook, TheBackgroundVanishesAlsoWithToolsAtFullStrength) {
    const LayeredLook look = layeredLook({false, false, alphaOfTransparency(0), 191}, background);
    EXPECT_EQ(look.alpha, 255);
    EXPECT_EQ(look.colorKey, static_cast<std::uint32_t>(background));
    EXPECT_EQ(look.flags, keyAndOpacity);
}

TEST(LayeredLook, TheKeyIsEveryPixelOfTheBackgroundsColourWhoeverDrewIt) {
    const Color ofATool = rgb(225, 153, 71);
    EXPECT_EQ(layeredLook(keyed, ofATool).colorKey, static_cast<std::uint32_t>(ofATool));
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
