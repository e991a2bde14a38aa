#include <gtest/gtest.h>

#include "e2e/SheetScene.h"

namespace ormala::test {
namespace {

/// Ten thousand steps of a drag, sent as fast as they are handled.
void dragSteps(const SheetScene& scene, ScreenPoint at, int steps) {
    for (int i = 0; i < steps; ++i) {
        const int x = at.x + i % 40;
        scene.worksheet().send(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(x, at.y + i % 7));
    }
}

TEST(Resources, MemoryIsSmallAndDoesNotGrowOverTenThousandDragSteps) {
    SheetScene scene;
    const ScreenRect sheet = scene.worksheet().clientRect();
    const auto bitmaps = static_cast<std::size_t>(2 * sheet.width() * sheet.height() * 4);
    constexpr std::size_t megabyte = 1U << 20U;
    EXPECT_LT(scene.program().process().privateBytes(), bitmaps + 40 * megabyte);

    const ScreenPoint grip = scene.model.gripPixel(0, 0);
    scene.worksheet().send(WM_MOUSEMOVE, 0, MAKELPARAM(grip.x, grip.y));
    scene.worksheet().send(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(grip.x, grip.y));
    dragSteps(scene, grip, 2000);
    const std::size_t before = scene.program().process().privateBytes();
    dragSteps(scene, grip, 10000);
    EXPECT_LT(scene.program().process().privateBytes(), before + megabyte);
    scene.worksheet().send(WM_LBUTTONUP, 0, MAKELPARAM(grip.x, grip.y));
}

TEST(Resources, NothingIsDoneWhileNothingHappens) {
    SheetScene scene;
    scene.stepAside();
    pause(milliseconds{500});
    const milliseconds before = scene.program().process().processorTime();
    constexpr milliseconds watched{4000};
    pause(watched);
    const milliseconds used = scene.program().process().processorTime() - before;
    EXPECT_LE(used * 20, watched) << "five per cent of a core";
}

}  // namespace
}  // namespace ormala::test
