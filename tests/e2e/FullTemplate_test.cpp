#include <gtest/gtest.h>

#include "e2e/PanelScene.h"
#include "support/win/onlyUnderWine.h"

// As many tools as there can be, all over the screen, as templates: much finer than any shape that
// a system can cut a window to.

namespace ormala::test {
namespace {

constexpr int toolCount = 33;
constexpr int patternCount = 19;
constexpr int patternsOfATool = 5;

SettingsFile fullScreenStencils() {
    const ScreenRect screen = screen::primaryMonitor();
    ToolSet tools;
    for (int i = 0; i < toolCount; ++i) {
        tools.stencil({10, 10, screen.width() - 10, screen.height() - 60});
    }
    SettingsFile file = tools.file();
    for (int i = 0; i < toolCount; ++i) {
        const std::string section = "Tool " + std::to_string(i + 1);
        file.set(section, "RotationAngle", " " + std::to_string(0.19 * i));
        for (int pattern = 1; pattern <= patternsOfATool; ++pattern) {
            const int id = (i + pattern * 4) % patternCount + 1;
            file.set(section, "PatternID" + std::to_string(pattern), " " + std::to_string(id));
        }
    }
    return file;
}

/// On all of the screen.
class FullScene : public PanelScene {
  public:
    explicit FullScene(const SettingsFile& tools) : PanelScene(tools) {
        const DesktopWindow frame = program().window("frmResizer");
        frame.post(WM_SYSCOMMAND, SC_MAXIMIZE);
        frame.waitUntilHidden();
    }

    void press(WORD key, const char* caption) {
        settings().activate();
        keyboard::press(key);
        settings().waitForText(caption, milliseconds{30000});
    }
    void goToTemplate() { press(VK_F4, "Ormala - Template"); }
    void goToEdit() { press(VK_F2, "Ormala - Edit"); }
    void goToPause() { press(VK_F3, "Ormala - Pause"); }

    bool answers() { return worksheet().send(WM_NULL).has_value(); }
};

TEST(FullTemplate, AllModesInTurnAreLivedThrough) {
    FullScene scene(fullScreenStencils());
    for (int round = 0; round < 20; ++round) {
        SCOPED_TRACE(round);
        scene.goToTemplate();
        ASSERT_TRUE(waitUntil([&] { return scene.answers(); }, milliseconds{20000}));
        scene.goToPause();
        scene.goToTemplate();
        scene.goToEdit();
        ASSERT_TRUE(waitUntil([&] { return scene.answers(); }, milliseconds{20000}));
        ASSERT_TRUE(scene.program().process().isRunning());
    }
    scene.goToPause();
    scene.goToEdit();
    EXPECT_EQ(scene.program().close(), 0U);
}

TEST(FullTemplate, ClicksFallThroughAtTheSamePixel) {
    FullScene scene(fullScreenStencils());
    scene.goToTemplate();
    // The system keeps a key where it can.
    EXPECT_EQ(scene.worksheet().layering().key.has_value(), !runsUnderWine());
    int clicks = 0;
    for (const ScreenPoint point : {ScreenPoint{60, 500}, {203, 707}, {404, 808}, {507, 611}}) {
        scene.mouse.click(point);
        ++clicks;
        const BackdropReport report = scene.backdrop().waitFor(
            "click", [&](const BackdropReport& now) { return now.leftUp == clicks; });
        EXPECT_EQ(report.lastDown(), point);
    }
}

TEST(FullTemplate, AFewToolsAreKeyedOutByTheSystem) {
    FullScene scene(ToolSet().stencil({200, 200, 500, 400}).file());
    scene.goToTemplate();
    EXPECT_TRUE(scene.worksheet().layering().key.has_value());
}

TEST(FullTemplate, ToolsShineAndNothingElseIsSeen) {
    FullScene scene(fullScreenStencils());
    scene.goToTemplate();
    // White below: of the tools, and of what lies between them.
    Picture picture;
    const auto seen = [&] {
        picture = screen::capture({60, 200, 460, 600});
        std::size_t below = 0;
        std::size_t tools = 0;
        for (int y = 200; y < 600; ++y) {
            for (int x = 60; x < 460; ++x) {
                const bool white = channelDifference(picture.at({x, y}), 0xFFFFFF) <= 1;
                (white ? below : tools) += 1;
            }
        }
        return below > 10000U && tools > 10000U;
    };
    EXPECT_TRUE(waitUntil(seen, milliseconds{20000}));
}

}  // namespace
}  // namespace ormala::test
