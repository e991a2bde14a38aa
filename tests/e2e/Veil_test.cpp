#include <gtest/gtest.h>

#include <cmath>

#include "e2e/PanelScene.h"
#include "e2e/SheetScene.h"

namespace ormala::test {
namespace {

int alphaOf(int transparency) {
    return static_cast<int>(std::lround((100 - transparency) * 255 / 100.0));
}

TEST(Veil, HasTheOpacityOfTheOptionsInEditMode) {
    for (const int transparency : {25, 0, 60}) {
        SheetScene scene([&](SettingsFile& file) {
            file.set("Options", "TransparencyEditMode", " " + std::to_string(transparency));
        });
        const Picture picture = scene.picture();
        const Color expected = blended(veilColor, SheetScene::backdropColor, alphaOf(transparency));
        const ScreenPoint free = scene.onScreen(scene.model.gripPixel(1.3, 1.3));
        EXPECT_LE(channelDifference(picture.at(free), expected), 2)
            << ShownColor{picture.at(free)} << " instead of " << ShownColor{expected};
        scene.expectPattern(
            blended(stencilColor, SheetScene::backdropColor, alphaOf(transparency)));
    }
}

TEST(Veil, IsGoneInTemplateModeWhileTheToolShines) {
    for (const int transparency : {50, 0}) {
        SheetScene scene([&](SettingsFile& file) {
            file.set("Options", "TransparencyTemplateMode", " " + std::to_string(transparency));
            file.set("Options", "Mode", " 1");
        });
        scene.expectPattern(
            blended(stencilColor, SheetScene::backdropColor, alphaOf(transparency)));
        const Picture picture = scene.picture();
        const ScreenRect left{picture.rect().left, picture.rect().top,
                              scene.onScreen(scene.model.gripPixel(-1.05, 0)).x,
                              picture.rect().bottom - 10};
        EXPECT_EQ(picture.part(left).count(SheetScene::backdropColor),
                  static_cast<std::size_t>(left.width()) * static_cast<std::size_t>(left.height()));
    }
}

TEST(Veil, AToolOfItsColorIsGoneFromTheScreenInTemplateMode) {
    const SettingsFile tools = [] {
        SettingsFile file = ToolSet()
                                .stencil({300, 300, 500, 450})
                                .measure({{200, 250}, {260, 250}}, {{200, 520}, {260, 520}}, false)
                                .file();
        file.set("Tool 1", "Color", " " + std::to_string(veilColor));
        file.set("Tool 2", "ColorA", " " + std::to_string(veilColor));
        file.set("Tool 2", "ColorB", " 65280");
        // Their halo has the backdrop's colour.
        file.set("Tool 2", "LabelsLengthVisible", " 0");
        file.set("Tool 2", "LabelsAngleVisible", " 0");
        return file;
    }();
    SettingsFile options;
    options.set("Options", "Mode", " 1");
    options.set("Options", "TransparencyTemplateMode", " 0");
    options.set("Options", "WorksheetColor", " " + std::to_string(veilColor));
    PanelScene scene(tools, options);
    const ScreenPoint origin = scene.onScreen({0, 0});
    const ScreenRect upper{origin.x + 190, origin.y + 240, origin.x + 520, origin.y + 500};
    const ScreenRect lower{origin.x + 190, origin.y + 510, origin.x + 520, origin.y + 530};
    // The other line, which has a colour of its own, shines.
    ASSERT_TRUE(waitUntil([&] { return screen::capture(lower).count(0x00FF00) >= 61U; }));
    EXPECT_EQ(screen::waitUntilStill(upper).count(SheetScene::backdropColor),
              static_cast<std::size_t>(upper.width()) * static_cast<std::size_t>(upper.height()));
    // In edit mode both stand there.
    scene.settings().activate();
    keyboard::press(VK_F2);
    EXPECT_TRUE(
        waitUntil([&] { return screen::capture(upper).count(SheetScene::backdropColor) == 0U; }));
}

TEST(Veil, LetsClicksFallThroughInTemplateModeAtTheSamePixel) {
    SheetScene scene([](SettingsFile& file) { file.set("Options", "Mode", " 1"); });
    int clicks = 0;
    // Beside the stencil, within it, and on one of its lines.
    for (const Spot shares : {Spot{1.3, 1.2}, Spot{0.5, 0.5}, Spot{-1, 0.5}, Spot{0, 0}}) {
        const ScreenPoint point = scene.onScreen(scene.model.gripPixel(shares.x, shares.y));
        scene.mouse.click(point);
        ++clicks;
        const BackdropReport report = scene.backdrop().waitFor(
            "click", [&](const BackdropReport& now) { return now.leftUp == clicks; });
        EXPECT_EQ(report.lastDown(), point);
    }
}

TEST(Veil, TakesEveryClickInEditMode) {
    SheetScene scene;
    scene.mouse.click(scene.onScreen(scene.model.gripPixel(1.3, 1.2)));
    scene.mouse.click(scene.onScreen(scene.model.gripPixel(0.5, 0.5)));
    EXPECT_EQ(scene.backdrop().report().leftDown, 0);
}

TEST(Veil, NothingIsSeenInPause) {
    SheetScene scene([](SettingsFile& file) { file.set("Options", "Mode", " 2"); });
    EXPECT_FALSE(scene.worksheet().isVisible());
    const ScreenRect left{0, 0, scene.settings().rect().left - 20, 900};
    EXPECT_TRUE(waitUntil(
        [&] { return difference(screen::capture(left), scene.backdrop().picture(left)).empty(); }));
}

TEST(Veil, TakesTheColorOfTheOptions) {
    SheetScene scene([](SettingsFile& file) {
        file.set("Options", "WorksheetColor", " 16711680");
        file.set("Options", "TransparencyEditMode", " 0");
    });
    const ScreenPoint free = scene.onScreen(scene.model.gripPixel(1.3, 1.3));
    EXPECT_EQ(scene.picture().at(free), 0xFF0000U);
}

}  // namespace
}  // namespace ormala::test
