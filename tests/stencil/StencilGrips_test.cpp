#include "stencil/StencilGrips.h"

#include <gtest/gtest.h>

#include <cmath>

#include "language/MlStringModule.h"
#include "modAPI/angles.h"
#include "modAPI/constants.h"
#include "modAPI/rectangles.h"
#include "support/ManualLanguage.h"
#include "support/stencilGripIndex.h"

namespace ormala {
namespace {

constexpr StencilGripKind kinds[] = {StencilGripKind::size, StencilGripKind::sizeCorner,
                                     StencilGripKind::rotate};

StencilState tilted() {
    StencilState state;
    state.RectBound = {100, 100, 400, 300};
    state.RotationAngle = pi / 6;
    return state;
}

Point placeOf(StencilGripKind kind, int number, const StencilState& state) {
    return stencilGripPoint({kind, number}, ComputeCorners(state));
}

TEST(StencilGrips, HaveTheirSizesShapesAndColors) {
    const auto grips = makeStencilGrips();
    ASSERT_EQ(static_cast<int>(grips.size()), stencilGripCount);
    EXPECT_EQ(grips[0].box.width, 13);
    EXPECT_EQ(grips[0].box.height, 13);
    EXPECT_EQ(grips[0].kind, ShapeKind::roundedRectangle);
    EXPECT_EQ(grips[0].color, rgb(255, 224, 192));
    EXPECT_EQ(grips[0].pressedColor, rgb(255, 128, 0));
    for (int number = 0; number < 4; ++number) {
        const auto of = [&](StencilGripKind kind) {
            return grips[static_cast<std::size_t>(indexOfStencilGrip(kind, number))];
        };
        const Grip side = of(StencilGripKind::size);
        EXPECT_EQ(side.box.width, 9);
        EXPECT_EQ(side.color, number == 1 ? rgb(255, 192, 192) : rgb(255, 255, 128));
        EXPECT_EQ(side.pressedColor, number == 1 ? rgb(255, 128, 128) : rgb(221, 221, 0));
        const Grip corner = of(StencilGripKind::sizeCorner);
        EXPECT_EQ(corner.box.width, 9);
        EXPECT_EQ(corner.color, rgb(192, 255, 192));
        EXPECT_EQ(corner.pressedColor, rgb(0, 225, 0));
        const Grip rotate = of(StencilGripKind::rotate);
        EXPECT_EQ(rotate.box.width, 9);
        EXPECT_TRUE(rotate.box.oval);
        EXPECT_EQ(rotate.kind, ShapeKind::oval);
        EXPECT_EQ(rotate.color, rgb(192, 255, 255));
        EXPECT_EQ(rotate.pressedColor, rgb(0, 192, 192));
    }
    EXPECT_EQ(grips[3].borderColor, rgb(200, 200, 200));
}

TEST(StencilGrips, SidesStandAtTheirMiddlesFromTheTopClockwise) {
    StencilState state = tilted();
    state.RotationAngle = 0;
    EXPECT_EQ(placeOf(StencilGripKind::size, 0, state), (Point{250, 100}));
    EXPECT_EQ(placeOf(StencilGripKind::size, 1, state), (Point{400, 200}));
    EXPECT_EQ(placeOf(StencilGripKind::size, 2, state), (Point{250, 300}));
    EXPECT_EQ(placeOf(StencilGripKind::size, 3, state), (Point{100, 200}));
    EXPECT_EQ(placeOf(StencilGripKind::move, 0, state), (Point{250, 200}));
}

TEST(StencilGrips, CornersStandFromTheTopRightClockwise) {
    StencilState state = tilted();
    state.RotationAngle = 0;
    EXPECT_EQ(placeOf(StencilGripKind::sizeCorner, 0, state), (Point{400, 100}));
    EXPECT_EQ(placeOf(StencilGripKind::sizeCorner, 1, state), (Point{400, 300}));
    EXPECT_EQ(placeOf(StencilGripKind::sizeCorner, 2, state), (Point{100, 300}));
    EXPECT_EQ(placeOf(StencilGripKind::sizeCorner, 3, state), (Point{100, 100}));
}

TEST(StencilGrips, RotateGripsRunOnTheInnerCircleBesideTheirCorners) {
    const StencilState state = tilted();
    const Point center = RectCenter(state.RectBound);
    const double radius = std::cos(pi / 4) * std::hypot(300, 200) / 2;
    for (int number = 0; number < 4; ++number) {
        const Point at = placeOf(StencilGripKind::rotate, number, state);
        EXPECT_NEAR(Distance(center.x, center.y, at.x, at.y), radius, 1e-9);
        const Point corner = placeOf(StencilGripKind::sizeCorner, number, state);
        EXPECT_NEAR(AngleOf(center.x, center.y, at.x, at.y),
                    AngleOf(center.x, center.y, corner.x, corner.y), 1e-9);
    }
}

TEST(StencilGrips, EachKindHasItsTip) {
    const ManualLanguage english(languageEnglish);
    EXPECT_EQ(MlString(stencilGripTip(StencilGripKind::move), ""),
              "Move (Shift key: fixed directions; Ctrl key: align to grid)");
    EXPECT_EQ(MlString(stencilGripTip(StencilGripKind::rotate), ""),
              "Rotate (Shift, Ctrl or Alt key: fixed angles)");
    EXPECT_EQ(MlString(stencilGripTip(StencilGripKind::size), ""),
              "Resize (Shift key: snap to special ratio; Ctrl key: symmetric at center)");
    EXPECT_EQ(MlString(stencilGripTip(StencilGripKind::sizeCorner), ""),
              "Resize, preserve ratio (Ctrl key: symmetric at center)");
}

TEST(StencilGrips, KindsFollowTheCentreInTheirOrder) {
    EXPECT_EQ(stencilGrip(0).kind, StencilGripKind::move);
    for (int i = 0; i < 3; ++i) {
        for (int number = 0; number < 4; ++number) {
            const StencilGrip grip = stencilGrip(1 + 4 * i + number);
            EXPECT_EQ(grip.kind, kinds[i]);
            EXPECT_EQ(grip.number, number);
        }
    }
}

}  // namespace
}  // namespace ormala
