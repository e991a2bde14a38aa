#include "magnifier/LensRest.h"

#include <gtest/gtest.h>

namespace ormala {
namespace {

constexpr LensRest::Sight sight{{300, 200}, {500, 100}, {rgb(1, 2, 3), {290, 190}}};
constexpr std::uint64_t begin = 5000;
constexpr std::uint64_t second = LensRest::longEnough;

TEST(LensRest, IsOverAfterASecondInWhichNothingDiffers) {
    LensRest rest;
    EXPECT_FALSE(rest.look(sight, begin));
    EXPECT_FALSE(rest.look(sight, begin + second - 1));
    EXPECT_TRUE(rest.look(sight, begin + second));
    EXPECT_TRUE(rest.look(sight, begin + 60 * second));
}

TEST(LensRest, BeginsAnewWithWhateverDiffers) {
    LensRest::Sight mouse = sight;
    mouse.mouse.x += 1;
    LensRest::Sight window = sight;
    window.window.y += 1;
    LensRest::Sight color = sight;
    color.pixel.color = rgb(1, 2, 4);
    LensRest::Sight origin = sight;
    origin.pixel.place.y = 0;
    for (const LensRest::Sight& other : {mouse, window, color, origin}) {
        LensRest rest;
        EXPECT_FALSE(rest.look(sight, begin));
        EXPECT_TRUE(rest.look(sight, begin + second));
        EXPECT_FALSE(rest.look(other, begin + second + 1));
        EXPECT_FALSE(rest.look(other, begin + 2 * second));
        EXPECT_TRUE(rest.look(other, begin + 2 * second + 1));
    }
}

TEST(LensRest, NeedsAPixelAllTheTime) {
    LensRest rest;
    EXPECT_FALSE(rest.look(std::nullopt, begin));
    EXPECT_FALSE(rest.look(std::nullopt, begin + second));
    EXPECT_FALSE(rest.look(sight, begin + second));
    EXPECT_FALSE(rest.look(std::nullopt, begin + second + 1));
    EXPECT_FALSE(rest.look(sight, begin + second + 2));
    EXPECT_FALSE(rest.look(sight, begin + 2 * second + 1));
    EXPECT_TRUE(rest.look(sight, begin + 2 * second + 2));
}

TEST(LensTipPlace, IsTheLowerLeftCornerOfTheImage) {
    EXPECT_EQ(lensTipPlace({100, 50, 500, 350}, {120, 40}, {0, 0}), (PixelPoint{100, 310}));
}

TEST(LensTipPlace, LeavesTheMouseAlone) {
    for (const PixelPoint mouse :
         {PixelPoint{100, 349}, PixelPoint{200, 312}, PixelPoint{98, 308}}) {
        EXPECT_EQ(lensTipPlace({100, 50, 500, 350}, {120, 40}, mouse), (PixelPoint{100, 50}));
    }
    EXPECT_EQ(lensTipPlace({100, 50, 500, 350}, {120, 40}, {300, 330}), (PixelPoint{100, 310}));
}

}  // namespace
}  // namespace ormala
