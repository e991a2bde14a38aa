#include <gtest/gtest.h>

#include "e2e/SheetFrame.h"

namespace ormala::test {
namespace {

/// The pixels inside the border of a grip on a screen of some resolution.
struct GripSizes {
    std::size_t resting = 0;
    std::size_t grown = 0;
    /// How far from the centre a resting grip can be taken, along either axis.
    int reach = 0;
};

GripSizes gripSizes(const SheetScene& scene) {
    switch (GetDpiForWindow(scene.worksheet().handle())) {
        case 192:
            return {std::size_t{17} * 17, std::size_t{41} * 41, 9 + 12};
        case 144:
            return {std::size_t{11} * 11, std::size_t{29} * 29, 6 + 9};
        default:
            return {std::size_t{7} * 7, std::size_t{19} * 19, 4 + 6};
    }
}

constexpr Color cornerColor = 0xC0FFC0;

/// How many of the pixels have the colour of a corner's grip.
std::size_t gripPixels(const Picture& picture) {
    return picture.count(blended(cornerColor, SheetScene::backdropColor, 191), 2);
}

/// About the grip at these shares.
ScreenRect placeAround(const SheetScene& scene, Spot shares) {
    const ScreenPoint at = scene.onScreen(scene.model.gripPixel(shares.x, shares.y));
    const int room = gripSizes(scene).reach + 4;
    return {at.x - room, at.y - room, at.x + room + 1, at.y + room + 1};
}

testing::AssertionResult becomes(const SheetScene& scene, Spot shares, std::size_t pixels) {
    const ScreenRect place = placeAround(scene, shares);
    std::size_t seen = 0;
    if (waitUntil([&] { return (seen = gripPixels(screen::capture(place))) == pixels; })) {
        return testing::AssertionSuccess();
    }
    return testing::AssertionFailure() << seen << " pixels and not " << pixels;
}

testing::AssertionResult stays(const SheetScene& scene, Spot shares, std::size_t pixels) {
    const std::size_t seen = gripPixels(screen::waitUntilStill(placeAround(scene, shares)));
    return seen == pixels ? testing::AssertionSuccess()
                          : testing::AssertionFailure() << seen << " pixels and not " << pixels;
}

TEST(Hover, GripGrowsUnderTheMouseAndShrinksBehindIt) {
    SheetScene scene;
    const auto [resting, grown, reach] = gripSizes(scene);
    const ScreenPoint center = scene.onScreen(scene.model.gripPixel(1, 1));
    scene.stepAside();
    EXPECT_TRUE(becomes(scene, {1, 1}, resting));
    scene.mouse.moveTo(center + ScreenPoint{reach, -reach});
    EXPECT_TRUE(becomes(scene, {1, 1}, grown));
    scene.stepAside();
    EXPECT_TRUE(becomes(scene, {1, 1}, resting));
    scene.mouse.moveTo(center + ScreenPoint{reach + 2, 0});
    EXPECT_TRUE(stays(scene, {1, 1}, resting));
}

TEST(Hover, DragLightsNoOtherGrip) {
    SheetScene scene;
    const ScreenPoint side = scene.onScreen(scene.model.gripPixel(0, -1));
    const ScreenPoint corner = scene.onScreen(scene.model.gripPixel(1, -1));
    scene.mouse.moveTo(side);
    scene.mouse.press();
    for (int i = 1; i <= 10; ++i) {
        scene.mouse.moveTo({side.x + (corner.x - side.x) * i / 10, side.y});
    }
    EXPECT_LE(gripPixels(screen::waitUntilStill(placeAround(scene, {1, -1}))),
              gripSizes(scene).resting);
    scene.mouse.release();
}

TEST(Hover, ToolsFollowTheMouseOverTheControlWindow) {
    SheetScene scene;
    const ScreenRect monitor = screen::primaryMonitor();
    const ScreenRect control = scene.settings().rect();
    // The control window stands beside the frame and not over the worksheet.
    place(frameOf(scene), {20, 20, monitor.width() - control.width() - 60, 720});
    ASSERT_TRUE(worksheetFits(scene));
    moveTo(scene.settings(), {monitor.right - control.width() - 10, 20});
    const GripSizes sizes = gripSizes(scene);
    // Both windows have just been moved.
    screen::waitUntilStill(monitor);
    scene.mouse.moveTo(scene.onScreen(scene.model.gripPixel(-1, -1)));
    EXPECT_TRUE(becomes(scene, {-1, -1}, sizes.grown));
    scene.mouse.moveTo(scene.settings().center());
    EXPECT_TRUE(becomes(scene, {-1, -1}, sizes.resting));
}

/// Moves the mouse there, until the tip comes up: a busy display may say that the mouse is
/// elsewhere when the tip wants to be shown, and it then waits for the next move.
bool tipComesUp(SheetScene& scene, ScreenPoint at, const std::string& tip) {
    constexpr int tries = 3;
    constexpr milliseconds patience{4000};
    for (int i = 0; i < tries; ++i) {
        scene.stepAside();
        scene.mouse.moveTo(at);
        if (waitUntil([&] { return scene.program().tip() == tip; }, patience)) {
            return true;
        }
    }
    return false;
}

void expectTips(SheetScene& scene, const std::vector<std::pair<Spot, std::string>>& tips) {
    for (const auto& [shares, text] : tips) {
        const ScreenPoint grip = scene.onScreen(scene.model.gripPixel(shares.x, shares.y));
        EXPECT_TRUE(tipComesUp(scene, grip, text))
            << scene.program().tip() << " instead of " << text;
    }
    scene.stepAside();
    EXPECT_TRUE(waitUntil([&] { return scene.program().tip().empty(); }));
}

TEST(Hover, TipSaysWhatTheGripDoes) {
    SheetScene scene;
    expectTips(
        scene,
        {{{0, 0}, "Move (Shift key: fixed directions; Ctrl key: align to grid)"},
         {{rotationShare, rotationShare}, "Rotate (Shift, Ctrl or Alt key: fixed angles)"},
         {{0, -1}, "Resize (Shift key: snap to special ratio; Ctrl key: symmetric at center)"},
         {{1, 1}, "Resize, preserve ratio (Ctrl key: symmetric at center)"}});
}

TEST(Hover, NoTipComesUpDuringADrag) {
    SheetScene scene;
    const std::string tip = "Resize, preserve ratio (Ctrl key: symmetric at center)";
    const ScreenPoint corner = scene.onScreen(scene.model.gripPixel(1, 1));
    EXPECT_TRUE(tipComesUp(scene, corner, tip));
    scene.mouse.press();
    for (int i = 1; i <= 5; ++i) {
        scene.mouse.moveTo(corner + ScreenPoint{i, i});
    }
    // A tip comes after the time of a double click.
    EXPECT_FALSE(waitUntil([&] { return !scene.program().tip().empty(); },
                           milliseconds(3 * static_cast<int>(GetDoubleClickTime()))))
        << scene.program().tip();
    scene.mouse.release();
    scene.mouse.moveTo(corner + ScreenPoint{6, 6});
    EXPECT_TRUE(waitUntil([&] { return scene.program().tip() == tip; }));
}

TEST(Hover, TipSpeaksGerman) {
    SheetScene scene([](SettingsFile& file) { file.set("Options", "Language", " 1031"); });
    expectTips(scene, {{{0, 0},
                        "Bewegen (Umschalt-Taste: feste Richtungen; Strg-Taste: am Raster "
                        "ausrichten)"},
                       {{1, 1},
                        "Gr\u00f6\u00dfe \u00e4ndern, Verh\u00e4ltnis beibehalten (Strg-Taste: "
                        "symmetrisch am Mittelpunkt)"}});
}

}  // namespace
}  // namespace ormala::test
