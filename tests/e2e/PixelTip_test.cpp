#include <gtest/gtest.h>

#include <array>
#include <cstdio>

#include "e2e/LensScene.h"
#include "e2e/withKeys.h"

// What is told of the pixel under a mouse that rests, and of the open compass.

namespace ormala::test {
namespace {

std::string toldOf(const LensScene& scene, ScreenPoint at) {
    const Color color = scene.scene.backdrop().colorAt(at);
    const ScreenPoint sheet = scene.scene.worksheet().clientRect().origin();
    std::array<char, 80> text{};
    std::snprintf(text.data(), text.size(), "#%02X%02X%02X  R %u  G %u  B %u\r\nX = %d  Y = %d",
                  color & 0xFFU, color >> 8U & 0xFFU, color >> 16U & 0xFFU, color & 0xFFU,
                  color >> 8U & 0xFFU, color >> 16U & 0xFFU, at.x - sheet.x, at.y - sheet.y);
    return text.data();
}

bool tipSays(LensScene& scene, const std::string& text) {
    return waitUntil([&] { return scene.scene.program().tip() == text; });
}

TEST(PixelTip, TellsColourAndPlaceOfAMouseThatRestsAndGoesWithIt) {
    LensScene scene(bareLens());
    EXPECT_TRUE(tipSays(scene, toldOf(scene, LensScene::spot))) << scene.scene.program().tip();
    const ScreenPoint beside = LensScene::spot + ScreenPoint{1, 0};
    scene.scene.mouse.moveTo(beside);
    EXPECT_TRUE(tipSays(scene, ""));
    EXPECT_TRUE(tipSays(scene, toldOf(scene, beside))) << scene.scene.program().tip();
    // On the image, and with the magnifier.
    const DesktopWindow tip =
        findTopLevel(scene.scene.program().process().id(), "tooltips_class32");
    const ScreenRect image = scene.lens.part("picLens").rect();
    EXPECT_TRUE(image.contains(tip.center())) << tip.rect().left << " " << tip.rect().top;
    EXPECT_FALSE(tip.rect().contains(image.center())) << "it leaves the marked pixel free";
    scene.choose(LensEntry::visible);
    scene.lens.window().waitUntilHidden();
    EXPECT_TRUE(tipSays(scene, ""));
}

TEST(PixelTip, RestsWhileTheUserHoldsTheMagnifier) {
    LensScene scene(bareLens());
    const ScreenRect window = scene.lens.window().rect();
    EXPECT_TRUE(tipSays(scene, toldOf(scene, LensScene::spot)));
    scene.lens.window().post(WM_ENTERSIZEMOVE);
    EXPECT_TRUE(tipSays(scene, ""));
    pause(milliseconds(1300));
    EXPECT_EQ(scene.scene.program().tip(), "");
    scene.lens.window().post(WM_EXITSIZEMOVE);
    EXPECT_TRUE(tipSays(scene, toldOf(scene, LensScene::spot)));
    EXPECT_EQ(scene.lens.window().rect(), window);
}

TEST(PixelTip, TheCompassTellsItsRadiiInsideTheWorksheet) {
    constexpr Color sheetColor = 0x4F4F4F;
    PanelScene scene(ToolSet().stencil({650, 350, 750, 430}).file(),
                     withKeys({{"TransparencyEditMode", " 0"}, {"WorksheetColor", " 5197647"}}));
    const ScreenRect sheet = scene.worksheet().clientRect();
    // What is there that is neither the sheet nor a circle: letters and their halo.
    const auto letters = [&](const ScreenRect& part) {
        const Picture seen = screen::waitUntilStill(part);
        return seen.count(0x000000) > 20 && seen.count(0xFFFFFF) > 20 && seen.count(sheetColor) > 0;
    };
    const auto around = [](ScreenPoint at, int left, int right) {
        return ScreenRect{at.x + left, at.y - 40, at.x + right, at.y + 40};
    };
    scene.mouse.moveTo(scene.onScreen({200, 150}));
    scene.mouse.press();
    const ScreenPoint beside = scene.onScreen({280, 150});
    scene.mouse.moveTo(beside);
    EXPECT_TRUE(letters(around(beside, 10, 240)));
    // At the edge it changes its side, so that all of it shows.
    const ScreenPoint edge{sheet.left + 3, beside.y};
    scene.mouse.moveTo(edge);
    EXPECT_TRUE(letters(around(edge, 10, 240)));
    scene.mouse.release();
    EXPECT_TRUE(waitUntil([&] { return !letters(around(edge, 10, 240)); }));
}

}  // namespace
}  // namespace ormala::test
