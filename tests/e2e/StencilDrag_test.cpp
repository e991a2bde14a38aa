#include <gtest/gtest.h>

#include <cmath>

#include "e2e/SheetScene.h"

namespace ormala::test {
namespace {

constexpr double pi = 3.141592653589793;
constexpr Spot rightSide{1, 0};
constexpr Spot topSide{0, -1};
constexpr Spot leftSide{-1, 0};
constexpr Spot bottomSide{0, 1};
constexpr Spot topRight{1, -1};
constexpr Spot bottomRight{1, 1};
constexpr Spot bottomLeft{-1, 1};
constexpr Spot topLeft{-1, -1};

Spot roundGrip(Spot corner) {
    return {corner.x * rotationShare, corner.y * rotationShare};
}

/// Turns the stencil by 30 degrees with the keyboard.
void turnBy30Degrees(SheetScene& scene) {
    scene.mouse.click(scene.onScreen(scene.model.gripPixel(0, 0)));
    keyboard::press(VK_PRIOR, Modifiers::None, 30);
    scene.model.angle = pi / 6;
    // A click on the centre grip leaves the centre where it was, on whole pixels.
    scene.expectPattern();
}

TEST(StencilDrag, CentreGripMovesThePatternOnExactPixels) {
    SheetScene scene;
    scene.expectPattern();
    scene.drag({0, 0}, 57, -23);
    scene.model.dragCenter(57, -23);
    scene.expectPattern();
}

TEST(StencilDrag, CentreGripWithShiftKeepsToSixteenDirections) {
    SheetScene scene;
    scene.drag({0, 0}, 100, -4, Modifiers::Shift);
    scene.model.dragCenter(100, 0);
    scene.expectPattern();
}

TEST(StencilDrag, CentreGripWithCtrlSnapsToTheGrid) {
    SheetScene scene;
    const ScreenPoint center = scene.model.gripPixel(0, 0);
    scene.drag({0, 0}, 57, -23, Modifiers::Ctrl);
    const auto snapped = [](int value) { return (value + 25) / 50 * 50; };
    scene.model.center = {static_cast<double>(snapped(center.x + 57)),
                          static_cast<double>(snapped(center.y - 23))};
    scene.expectPattern();
}

TEST(StencilDrag, SideGripsLeaveTheOppositeSideInPlace) {
    SheetScene scene;
    for (const auto& [side, dx, dy] :
         {std::tuple{rightSide, 40, 5}, std::tuple{topSide, 3, -31}, std::tuple{leftSide, 22, 0},
          std::tuple{bottomSide, -6, 17}}) {
        scene.drag(side, dx, dy);
        scene.model.dragSide(side, dx, dy, false);
        scene.expectPattern();
    }
}

TEST(StencilDrag, SideGripsWithCtrlKeepTheCentre) {
    SheetScene scene;
    for (const auto& [side, dx, dy] : {std::tuple{rightSide, 40, 5}, std::tuple{topSide, 3, -31}}) {
        scene.drag(side, dx, dy, Modifiers::Ctrl);
        scene.model.dragSide(side, dx, dy, true);
        scene.expectPattern();
    }
}

TEST(StencilDrag, SideGripWithShiftSnapsToASpecialRatio) {
    SheetScene scene;
    // To about 1.5 times the height.
    const double height = 2 * scene.model.halfHeight + 1;
    const double width = 2 * scene.model.halfWidth + 1;
    const int dx = static_cast<int>(1.5 * height - width) + 2;
    scene.drag(rightSide, dx, 0, Modifiers::Shift);
    scene.model.dragSide(rightSide, dx, 0, false, 1.5);
    scene.expectPattern();
}

TEST(StencilDrag, SideGripStopsAtTheLeastSize) {
    SheetScene scene;
    scene.drag(rightSide, -900, 0);
    scene.stepAside();
    // Seen from the left side, which stays: the width is 23 pixels.
    const Picture picture = scene.picture();
    const ScreenPoint origin = picture.rect().origin();
    const auto left = static_cast<int>(std::lround(scene.model.center.x - scene.model.halfWidth));
    const int row = origin.y + static_cast<int>(scene.model.center.y - scene.model.halfHeight / 2);
    for (const int x : {left, left + 22}) {
        EXPECT_LE(channelDifference(picture.at({origin.x + x, row}), scene.lineColor()), 2) << x;
    }
    EXPECT_LE(channelDifference(picture.at({origin.x + left + 25, row}), scene.veil()), 2);
}

TEST(StencilDrag, CornerGripsKeepTheRatioAndTheOppositeCorner) {
    SheetScene scene;
    for (const auto& [corner, dx, dy] :
         {std::tuple{topRight, 60, -10}, std::tuple{bottomRight, -30, 20},
          std::tuple{bottomLeft, -25, 40}, std::tuple{topLeft, 33, 12}}) {
        scene.drag(corner, dx, dy);
        scene.model.dragCorner(corner, dx, dy, false);
        scene.expectPattern();
    }
}

TEST(StencilDrag, CornerGripWithCtrlKeepsTheCentre) {
    SheetScene scene;
    scene.drag(bottomRight, 44, 13, Modifiers::Ctrl);
    scene.model.dragCorner(bottomRight, 44, 13, true);
    scene.expectPattern();
}

TEST(StencilDrag, RotateGripsTurnWithTheMouse) {
    SheetScene scene;
    scene.drag(roundGrip(topRight), -30, -40);
    scene.model.dragRotation(topRight, -30, -40, 0);
    scene.expectPattern();
    scene.drag(roundGrip(bottomLeft), 60, 35);
    scene.model.dragRotation(bottomLeft, 60, 35, 0);
    scene.expectPattern();
}

TEST(StencilDrag, RotateGripKeepsToFixedAnglesWithModifiers) {
    for (const auto& [keys, step] :
         {std::pair{Modifiers::Ctrl, pi / 20}, std::pair{Modifiers::Shift, pi / 16},
          std::pair{Modifiers::Alt, pi / 4},
          std::pair{Modifiers::Ctrl | Modifiers::Shift, pi / 20}}) {
        SheetScene scene;
        scene.drag(roundGrip(topRight), -90, -90, keys);
        scene.model.dragRotation(topRight, -90, -90, step);
        scene.expectPattern();
    }
}

TEST(StencilDrag, TurnedStencilIsMovedOnExactPixels) {
    SheetScene scene;
    turnBy30Degrees(scene);
    scene.drag({0, 0}, -41, 27);
    scene.model.dragCenter(-41, 27);
    scene.expectPattern();
}

TEST(StencilDrag, TurnedStencilKeepsTheOppositeSideAndCorner) {
    SheetScene scene;
    turnBy30Degrees(scene);
    scene.drag(rightSide, 50, 10);
    scene.model.dragSide(rightSide, 50, 10, false);
    scene.expectPattern();
    scene.drag(topSide, -20, -35, Modifiers::Ctrl);
    scene.model.dragSide(topSide, -20, -35, true);
    scene.expectPattern();
    scene.drag(bottomLeft, -40, 25);
    scene.model.dragCorner(bottomLeft, -40, 25, false);
    scene.expectPattern();
    scene.drag(topRight, -35, 20, Modifiers::Ctrl);
    scene.model.dragCorner(topRight, -35, 20, true);
    scene.expectPattern();
}

TEST(StencilDrag, ReadOutStandsBesideTheGripWhileItIsHeld) {
    SheetScene scene;
    const ScreenPoint grip = scene.onScreen(scene.model.gripPixel(0, 0));
    scene.mouse.moveTo(grip);
    scene.mouse.press();
    for (int i = 1; i <= 5; ++i) {
        scene.mouse.moveTo(grip + ScreenPoint{8 * i, 4 * i});
    }
    const ScreenPoint now = grip + ScreenPoint{40, 20};
    const ScreenRect beside{now.x - 120, now.y - 12, now.x - 13, now.y + 12};
    const Color halo = blended(0xFFFFFF, SheetScene::backdropColor, 191);
    const Color ink = blended(0x000000, SheetScene::backdropColor, 191);
    const Picture held = screen::waitUntilStill(beside);
    EXPECT_GT(held.count(halo), 150U);
    EXPECT_GT(held.count(ink, 2), 50U);
    scene.mouse.release();
    scene.stepAside();
    const Picture free = screen::waitUntilStill(beside);
    EXPECT_EQ(free.count(ink, 2), 0U);
}

TEST(StencilDrag, ClickBesideTheGripsReachesNoToolAndNoProgramBelow) {
    SheetScene scene;
    scene.mouse.drag(scene.onScreen(scene.model.gripPixel(0.5, 0.5)),
                     scene.onScreen(scene.model.gripPixel(0.2, 0.2)));
    scene.expectPattern();
    EXPECT_EQ(scene.backdrop().report().leftDown, 0);
}

}  // namespace
}  // namespace ormala::test
