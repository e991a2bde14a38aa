#include "stencil/StencilResize.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

#include "language/MlStringModule.h"
#include "modAPI/angles.h"
#include "modAPI/constants.h"
#include "modAPI/rectangles.h"
#include "scene/Input.h"
#include "stencil/DragTable.h"
#include "stencil/EnglishRatios.h"
#include "stencil/StencilTexts.h"
#include "support/ManualLanguage.h"

namespace ormala {
namespace {

using modifier::ctrl;
using modifier::shift;

StencilState stencilAt(const Rect& rect, double angle = 0) {
    StencilState state;
    state.RectBound = rect;
    state.RotationAngle = angle;
    return state;
}

/// The mouse holds the middle of the grip and stands at that point.
GripDrag dragTo(StencilGripKind kind, int number, const Point& mouse, int modifiers = 0) {
    GripDrag drag;
    drag.grip = {kind, number};
    drag.x = mouse.x;
    drag.y = mouse.y;
    drag.shift = modifiers;
    return drag;
}

double height(const StencilState& state) {
    return state.RectBound.bottom - state.RectBound.top;
}

double width(const StencilState& state) {
    return state.RectBound.right - state.RectBound.left;
}

/// Corners by index: left top, right top, left bottom, right bottom. The two that a drag of a side
/// leaves, and the one that a drag of a corner leaves.
constexpr int oppositeOfSide[4][2] = {{2, 3}, {0, 2}, {0, 1}, {1, 3}};
constexpr int oppositeOfCorner[4] = {2, 0, 1, 3};

/// Random stencils and mice, unrotated and turned by 30 degrees, with every set of modifiers.
class RandomDrags {
  public:
    StencilState state(int i) {
        const double left = number(-200, 800);
        const double top = number(-200, 600);
        return stencilAt({left, top, left + number(22, 600), top + number(22, 500)},
                         i % 2 == 0 ? 0 : pi / 6);
    }
    Point mouse() { return {number(-500, 1500), number(-500, 1300)}; }

  private:
    double number(double from, double to) {
        return std::uniform_real_distribution<double>(from, to)(random_);
    }

    std::mt19937 random_{41};
};

void expectReference(StencilGripKind kind, void (*resize)(StencilState&, const GripDrag&)) {
    const ManualLanguage english(languageEnglish);
    const auto drags = referenceDrags(kind);
    ASSERT_GT(drags.size(), 500U);
    for (const ReferenceDrag& one : drags) {
        StencilState state = one.before;
        resize(state, one.drag);
        EXPECT_TRUE(isNear(state.RectBound, one.after.RectBound, 1e-7))
            << one.text << " modifiers " << one.drag.shift << " number " << one.drag.grip.number;
        EXPECT_EQ(state.RotationAngle, one.before.RotationAngle);
        EXPECT_EQ(sizeText(state.RectBound, englishRatios(), {}), one.text);
    }
}

TEST(DragSize, AgreesWithTheReference) {
    expectReference(StencilGripKind::size, DragSize);
}

TEST(DragSizeCorner, AgreesWithTheReference) {
    expectReference(StencilGripKind::sizeCorner, DragSizeCorner);
}

TEST(DragSize, SidePulledPastTheOppositeStopsAtTwentyTwo) {
    StencilState state = stencilAt({100, 100, 300, 200});
    DragSize(state, dragTo(StencilGripKind::size, 0, {200, 500}));
    EXPECT_EQ(state.RectBound, (Rect{100, 178, 300, 200}));
    EXPECT_EQ(PixelHeight(state.RectBound), 23);
    state = stencilAt({100, 100, 300, 200});
    DragSize(state, dragTo(StencilGripKind::size, 1, {-900, 150}));
    EXPECT_EQ(state.RectBound, (Rect{100, 100, 122, 200}));
    state = stencilAt({100, 100, 300, 200});
    DragSize(state, dragTo(StencilGripKind::size, 2, {200, 0}));
    EXPECT_EQ(state.RectBound, (Rect{100, 100, 300, 122}));
    state = stencilAt({100, 100, 300, 200});
    DragSize(state, dragTo(StencilGripKind::size, 3, {900, 150}));
    EXPECT_EQ(state.RectBound, (Rect{278, 100, 300, 200}));
}

TEST(DragSize, TopOfAQuarterTurnFollowsTheScreensX) {
    // Turned by pi/2 the top side lies on the left.
    StencilState state = stencilAt({100, 100, 300, 200}, halfPi);
    const StencilCorners before = ComputeCorners(state);
    DragSize(state, dragTo(StencilGripKind::size, 0, {120, 150}));
    EXPECT_NEAR(height(state), 130, 1e-9);
    EXPECT_NEAR(width(state), 200, 1e-9);
    const StencilCorners after = ComputeCorners(state);
    for (const auto corner : {2U, 3U}) {
        EXPECT_NEAR(after[corner].x, before[corner].x, 1e-9);
        EXPECT_NEAR(after[corner].y, before[corner].y, 1e-9);
    }
}

TEST(DragSize, ShiftNearThreeToTwoGivesExactlyThreeToTwo) {
    StencilState state = stencilAt({0, 0, 250, 199});  // 251 by 200 pixels
    DragSize(state, dragTo(StencilGripKind::size, 1, {301, 100}, shift));
    EXPECT_NEAR(PixelRatio(state.RectBound, false), 1.5, 0.005);
    // What is off 3:2 comes from the one pixel more that a side counts.
    EXPECT_NEAR(width(state), 301.0 * 1.5 / (302.0 / 200), 1e-9);
    EXPECT_EQ(std::round(PixelWidth(state.RectBound)), 300);
}

TEST(DragSize, CtrlMovesBothSidesHalfTheWayOfTheMouse) {
    StencilState state = stencilAt({100, 100, 300, 200});
    DragSize(state, dragTo(StencilGripKind::size, 0, {200, 60}, ctrl));
    EXPECT_EQ(state.RectBound, (Rect{100, 80, 300, 220}));
    state = stencilAt({100, 100, 300, 200});
    DragSize(state, dragTo(StencilGripKind::size, 3, {500, 150}, ctrl));
    EXPECT_EQ(state.RectBound, (Rect{189, 100, 211, 200}));
}

TEST(DragSize, OppositeSideOrCentreStaysOnTheScreen) {
    RandomDrags random;
    for (int i = 0; i < 3000; ++i) {
        StencilState state = random.state(i);
        const StencilCorners before = ComputeCorners(state);
        const Point center = RectCenter(state.RectBound);
        const int side = i / 2 % 4;
        const int modifiers = i / 8 % 8;
        DragSize(state, dragTo(StencilGripKind::size, side, random.mouse(), modifiers));
        if ((modifiers & ctrl) != 0) {
            const Point now = RectCenter(state.RectBound);
            EXPECT_LT(Distance(now.x, now.y, center.x, center.y), 1e-9);
            continue;
        }
        const StencilCorners after = ComputeCorners(state);
        for (const int corner : oppositeOfSide[side]) {
            const auto at = static_cast<std::size_t>(corner);
            EXPECT_LT(Distance(after[at].x, after[at].y, before[at].x, before[at].y), 1e-9)
                << "side " << side << " modifiers " << modifiers;
        }
    }
}

TEST(DragSize, LeavesAtLeastTwentyTwoAndTheOtherDimension) {
    RandomDrags random;
    for (int i = 0; i < 3000; ++i) {
        StencilState state = random.state(i);
        const double w = width(state);
        const double h = height(state);
        const int side = i / 2 % 4;
        const int modifiers = i / 8 % 8;
        DragSize(state, dragTo(StencilGripKind::size, side, random.mouse(), modifiers));
        const bool vertical = side % 2 == 0;
        EXPECT_NEAR(vertical ? width(state) : height(state), vertical ? w : h, 1e-9);
        if ((modifiers & shift) == 0) {
            EXPECT_GE(vertical ? height(state) : width(state), smallestSide - 1e-9);
        }
        EXPECT_GT(vertical ? height(state) : width(state), 0);
    }
}

TEST(DragSizeCorner, CannotShrinkATwentyTwoByFortyFourStencil) {
    // Its pixels span 22 by 44, the least that a corner leaves.
    for (const double angle : {0.0, pi / 6}) {
        for (int corner = 0; corner < 4; ++corner) {
            StencilState state = stencilAt({100, 100, 121, 143}, angle);
            const Rect before = state.RectBound;
            for (const double beyond : {0.0, 5.0, 40.0, 500.0}) {
                const StencilCorners corners = ComputeCorners(state);
                const Point from = stencilGripPoint({StencilGripKind::sizeCorner, corner}, corners);
                const Point opposite =
                    stencilGripPoint({StencilGripKind::sizeCorner, (corner + 2) % 4}, corners);
                const double length = Distance(from.x, from.y, opposite.x, opposite.y);
                const Point mouse{from.x + (opposite.x - from.x) * (0.5 + beyond / length),
                                  from.y + (opposite.y - from.y) * (0.5 + beyond / length)};
                DragSizeCorner(state, dragTo(StencilGripKind::sizeCorner, corner, mouse));
                EXPECT_TRUE(isNear(state.RectBound, before, 1e-9)) << corner << ' ' << beyond;
                EXPECT_NEAR(PixelRatio(state.RectBound, false), 0.5, 1e-12);
            }
        }
    }
}

TEST(DragSizeCorner, PulledPastTheOppositeCornerComesDownToTwentyTwoAtOnce) {
    for (const double angle : {0.0, pi / 6}) {
        for (const int modifiers : {0, ctrl}) {
            StencilState state = stencilAt({100, 100, 399, 249}, angle);
            DragSizeCorner(state, dragTo(StencilGripKind::sizeCorner, 1, {-300, -200}, modifiers));
            EXPECT_NEAR(PixelHeight(state.RectBound), 22, 1e-9);
            EXPECT_NEAR(PixelWidth(state.RectBound), 44, 1e-9);
        }
    }
}

TEST(DragSizeCorner, FollowsTheMousePastTheCentreDownToTheLeastSize) {
    StencilState state = stencilAt({0, 0, 199, 99});
    DragSizeCorner(state, dragTo(StencilGripKind::sizeCorner, 1, {59, 29}));
    EXPECT_TRUE(isNear(state.RectBound, {0, 0, 59, 29}, 1e-9));
    state = stencilAt({0, 0, 199, 99});
    DragSizeCorner(state, dragTo(StencilGripKind::sizeCorner, 1, {129, 64}, ctrl));
    EXPECT_TRUE(isNear(state.RectBound, {70, 35, 129, 64}, 1e-9));
}

TEST(DragSizeCorner, OfAStencilWithoutHeightStaysFinite) {
    for (const Rect& flat : {Rect{100, 100, 399, 99}, Rect{100, 100, 99, 399}}) {
        StencilState state = stencilAt(flat);
        DragSizeCorner(state, dragTo(StencilGripKind::sizeCorner, 1, {500, 500}));
        const Rect& bound = state.RectBound;
        for (const double edge : {bound.left, bound.top, bound.right, bound.bottom}) {
            EXPECT_LT(std::abs(edge), 10000);
        }
    }
}

TEST(DragSizeCorner, FollowsTheMouseAlongTheDiagonal) {
    StencilState state = stencilAt({0, 0, 199, 99});
    DragSizeCorner(state, dragTo(StencilGripKind::sizeCorner, 1, {399, 199}));
    EXPECT_TRUE(isNear(state.RectBound, {0, 0, 399, 199}, 1e-9));
    state = stencilAt({0, 0, 199, 99});
    DragSizeCorner(state, dragTo(StencilGripKind::sizeCorner, 3, {-100, -50}, ctrl));
    EXPECT_TRUE(isNear(state.RectBound, {-100, -50, 299, 149}, 1e-9));
}

TEST(DragSizeCorner, KeepsRatioAndOppositeCornerOrCentre) {
    RandomDrags random;
    for (int i = 0; i < 3000; ++i) {
        StencilState state = random.state(i);
        const StencilCorners before = ComputeCorners(state);
        const Point center = RectCenter(state.RectBound);
        const double ratio = PixelRatio(state.RectBound, false);
        const int corner = i / 2 % 4;
        const int modifiers = i / 8 % 8;
        DragSizeCorner(state,
                       dragTo(StencilGripKind::sizeCorner, corner, random.mouse(), modifiers));
        EXPECT_NEAR(PixelRatio(state.RectBound, false), ratio, 1e-9 * std::max(1.0, ratio));
        EXPECT_GE(std::min(PixelWidth(state.RectBound), PixelHeight(state.RectBound)),
                  smallestSide - 1e-9);
        EXPECT_GT(width(state), 0);
        EXPECT_GT(height(state), 0);
        if ((modifiers & ctrl) != 0) {
            const Point now = RectCenter(state.RectBound);
            EXPECT_LT(Distance(now.x, now.y, center.x, center.y), 1e-9);
            continue;
        }
        // What stays is the outer edge of the pixels, half a pixel beyond the corner.
        const auto outerOf = [&](const StencilCorners& corners) {
            const auto at = static_cast<std::size_t>(oppositeOfCorner[corner]);
            const double x = at == 1 || at == 3 ? 0.5 : -0.5;
            const double y = at >= 2 ? 0.5 : -0.5;
            const double a = state.RotationAngle;
            return Point{corners[at].x + x * std::cos(a) + y * std::sin(a),
                         corners[at].y - x * std::sin(a) + y * std::cos(a)};
        };
        const Point was = outerOf(before);
        const Point is = outerOf(ComputeCorners(state));
        EXPECT_LT(Distance(was.x, was.y, is.x, is.y), 1e-9) << corner << ' ' << modifiers;
    }
}

}  // namespace
}  // namespace ormala
