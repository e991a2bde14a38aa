#include <gtest/gtest.h>

#include <cmath>

#include "e2e/SheetScene.h"

namespace ormala::test {
namespace {

constexpr double degree = 3.141592653589793 / 180;

/// Gives the stencil the keyboard.
void clickCentre(SheetScene& scene) {
    scene.mouse.click(scene.onScreen(scene.model.gripPixel(0, 0)));
    scene.stepAside();
}

TEST(StencilKeys, ArrowsMoveByOnePixel) {
    SheetScene scene;
    clickCentre(scene);
    keyboard::press(VK_RIGHT, Modifiers::None, 7);
    keyboard::press(VK_DOWN, Modifiers::None, 3);
    keyboard::press(VK_LEFT);
    keyboard::press(VK_UP);
    scene.model.center.x += 6;
    scene.model.center.y += 2;
    scene.expectPattern();
}

TEST(StencilKeys, ArrowsWithCtrlMoveOnTheGrid) {
    SheetScene scene([](SettingsFile& file) {
        file.set("Options", "GridSizeX", " 40");
        file.set("Options", "GridSizeY", " 30");
        file.set("Options", "GridOffsetX", " 7");
    });
    clickCentre(scene);
    keyboard::press(VK_RIGHT, Modifiers::Ctrl);
    keyboard::press(VK_UP, Modifiers::Ctrl);
    const auto snapped = [](double value, int step, int origin) {
        return static_cast<int>(std::lround((value - origin) / step)) * step + origin;
    };
    scene.model.center.x = snapped(scene.model.center.x + 40, 40, 7);
    scene.model.center.y = snapped(scene.model.center.y - 30, 30, 0);
    scene.expectPattern();
}

TEST(StencilKeys, HomeBringsTheStencilBackToTheCentre) {
    SheetScene scene;
    const StencilModel first = scene.model;
    scene.drag({0, 0}, 90, 60);
    keyboard::press(VK_HOME);
    scene.expectPattern();
    keyboard::press(VK_HOME, Modifiers::Shift);
    const auto snapped = [](double value) {
        return static_cast<int>(std::lround(value / 50)) * 50;
    };
    scene.model.center = {static_cast<double>(snapped(first.center.x)),
                          static_cast<double>(snapped(first.center.y))};
    scene.expectPattern();
}

TEST(StencilKeys, PageKeysTurnByTheirSteps) {
    const std::pair<Modifiers, double> steps[] = {{Modifiers::None, 1},
                                                  {Modifiers::Alt, 0.1},
                                                  {Modifiers::Ctrl, 9},
                                                  {Modifiers::Shift, 11.25}};
    for (const auto& [keys, degrees] : steps) {
        SheetScene scene;
        clickCentre(scene);
        keyboard::press(VK_PRIOR, keys, 5);
        keyboard::press(VK_NEXT, keys, 2);
        scene.model.angle = 3 * degrees * degree;
        scene.expectPattern();
    }
}

TEST(StencilKeys, UndoBringsEveryPixelBackAndRedoBringsItAgain) {
    SheetScene scene;
    clickCentre(scene);
    const Picture before = scene.picture();
    scene.drag({1, 0}, 60, 0);
    const Picture sized = scene.picture();
    scene.model.dragSide({1, 0}, 60, 0, false);
    scene.drag({0, 0}, -30, 44);
    const Picture moved = scene.picture();
    keyboard::press('Z', Modifiers::Ctrl);
    EXPECT_TRUE(difference(scene.picture(), sized).empty());
    keyboard::press('Z', Modifiers::Ctrl);
    EXPECT_TRUE(difference(scene.picture(), before).empty());
    keyboard::press('Y', Modifiers::Ctrl, 2);
    EXPECT_TRUE(difference(scene.picture(), moved).empty());
}

TEST(StencilKeys, KeysReachNoToolInTemplateMode) {
    SheetScene scene;
    clickCentre(scene);
    keyboard::press(VK_F4);
    scene.program().settings().waitForText("Ormala - Template");
    keyboard::press(VK_RIGHT, Modifiers::None, 5);
    scene.settings().activate();
    keyboard::press(VK_F2);
    scene.program().settings().waitForText("Ormala - Edit");
    scene.expectPattern();
}

}  // namespace
}  // namespace ormala::test
