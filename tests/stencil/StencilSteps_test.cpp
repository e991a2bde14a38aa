#include "stencil/StencilSteps.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "modAPI/constants.h"
#include "modAPI/rectangles.h"
#include "scene/Input.h"

namespace ormala {
namespace {

constexpr Grid grid{50, 40, 10, 4};

Rect stepped(const Rect& rect, int index, const Grid* by = nullptr, double angle = 0) {
    return afterMoveStep({rect, angle, {}}, index, by);
}

void expectNear(const Rect& actual, const Rect& expected, double tolerance = 1e-9) {
    EXPECT_NEAR(actual.left, expected.left, tolerance);
    EXPECT_NEAR(actual.top, expected.top, tolerance);
    EXPECT_NEAR(actual.right, expected.right, tolerance);
    EXPECT_NEAR(actual.bottom, expected.bottom, tolerance);
}

TEST(StencilSteps, EachButtonMovesWhatItsTipSays) {
    const Rect start{100, 200, 300, 250};
    EXPECT_EQ(stepped(start, 0), (Rect{99, 200, 299, 250}));
    EXPECT_EQ(stepped(start, 1), (Rect{101, 200, 301, 250}));
    EXPECT_EQ(stepped(start, 2), (Rect{100, 199, 300, 249}));
    EXPECT_EQ(stepped(start, 3), (Rect{100, 201, 300, 251}));
    EXPECT_EQ(stepped(start, 4), (Rect{99, 200, 300, 250}));
    EXPECT_EQ(stepped(start, 5), (Rect{101, 200, 300, 250}));
    EXPECT_EQ(stepped(start, 6), (Rect{100, 200, 299, 250}));
    EXPECT_EQ(stepped(start, 7), (Rect{100, 200, 301, 250}));
    EXPECT_EQ(stepped(start, 8), (Rect{100, 199, 300, 250}));
    EXPECT_EQ(stepped(start, 9), (Rect{100, 201, 300, 250}));
    EXPECT_EQ(stepped(start, 10), (Rect{100, 200, 300, 249}));
    EXPECT_EQ(stepped(start, 11), (Rect{100, 200, 300, 251}));
    EXPECT_EQ(stepped(start, 12), (Rect{101, 200, 299, 250}));
    EXPECT_EQ(stepped(start, 13), (Rect{99, 200, 301, 250}));
    EXPECT_EQ(stepped(start, 14), (Rect{100, 201, 300, 249}));
    EXPECT_EQ(stepped(start, 15), (Rect{100, 199, 300, 251}));
    EXPECT_EQ(stepped(start, 16), (Rect{101, 200.25, 299, 249.75}));
    EXPECT_EQ(stepped(start, 17), (Rect{99, 199.75, 301, 250.25}));
}

TEST(StencilSteps, AButtonThatThereIsNotChangesNothing) {
    const Rect start{100, 200, 300, 250};
    EXPECT_EQ(stepped(start, -1), start);
    EXPECT_EQ(stepped(start, 18), start);
}

TEST(StencilSteps, TheCentreGoesToTheNextCrossingOfTheGrid) {
    // The crossings lie at 10 + 50n and 4 + 40n; the centre at (200, 225).
    const Rect start{100, 200, 300, 250};
    EXPECT_EQ(RectCenter(stepped(start, 0, &grid)), (Point{160, 244}));
    EXPECT_EQ(RectCenter(stepped(start, 1, &grid)), (Point{260, 244}));
    EXPECT_EQ(RectCenter(stepped(start, 2, &grid)), (Point{210, 204}));
    EXPECT_EQ(RectCenter(stepped(start, 3, &grid)), (Point{210, 284}));
    EXPECT_EQ(RectWidth(stepped(start, 3, &grid)), 200);
}

TEST(StencilSteps, ASideGoesToTheGridAlongItsOwnAxis) {
    const Rect start{100, 200, 300, 250};
    EXPECT_EQ(stepped(start, 4, &grid), (Rect{60, 200, 300, 250}));
    EXPECT_EQ(stepped(start, 5, &grid), (Rect{160, 200, 300, 250}));
    EXPECT_EQ(stepped(start, 6, &grid), (Rect{100, 200, 260, 250}));
    EXPECT_EQ(stepped(start, 7, &grid), (Rect{100, 200, 360, 250}));
    EXPECT_EQ(stepped(start, 8, &grid), (Rect{100, 164, 300, 250}));
    EXPECT_EQ(stepped(start, 11, &grid), (Rect{100, 200, 300, 284}));
}

TEST(StencilSteps, AStepToTheGridThatLeavesTooLittleChangesNothing) {
    const Rect start{100, 200, 300, 250};
    EXPECT_EQ(stepped(start, 9, &grid), start);   // top at 244, 6 above the bottom
    EXPECT_EQ(stepped(start, 10, &grid), start);  // bottom at 204
    EXPECT_EQ(stepped(start, 14, &grid), start);  // the sides would pass each other
}

TEST(StencilSteps, BothSidesOfAPairGoToTheGrid) {
    const Rect start{100, 200, 300, 250};
    EXPECT_EQ(stepped(start, 12, &grid), (Rect{160, 200, 260, 250}));
    EXPECT_EQ(stepped(start, 13, &grid), (Rect{60, 200, 360, 250}));
    EXPECT_EQ(stepped(start, 15, &grid), (Rect{100, 164, 300, 284}));
}

TEST(StencilSteps, TheSizeButtonsKnowNoGrid) {
    const Rect start{100, 200, 300, 250};
    EXPECT_EQ(stepped(start, 16, &grid), stepped(start, 16));
    EXPECT_EQ(stepped(start, 17, &grid), stepped(start, 17));
}

TEST(StencilSteps, ASideStopsAtTheLeastSize) {
    const Rect least{100, 100, 122, 122};
    for (const int inward : {5, 6, 9, 10, 12, 14}) {
        EXPECT_EQ(stepped(least, inward), least) << inward;
    }
    const Rect aPixelMore{100, 100, 123, 123};
    EXPECT_EQ(stepped(aPixelMore, 5), (Rect{101, 100, 123, 123}));
    EXPECT_EQ(stepped(aPixelMore, 10), (Rect{100, 100, 123, 122}));
    EXPECT_EQ(stepped(aPixelMore, 12), aPixelMore);
    EXPECT_EQ(stepped({100, 100, 124, 124}, 12), (Rect{101, 100, 123, 124}));
}

TEST(StencilSteps, ATurnedStencilReachesTheSameLeastSize) {
    Rect rect{100, 100, 140, 140};
    for (int i = 0; i < 100; ++i) {
        rect = stepped(rect, 5, nullptr, 0.7);
        rect = stepped(rect, 10, nullptr, 0.7);
    }
    EXPECT_NEAR(RectWidth(rect), 22, 1e-9);
    EXPECT_NEAR(RectHeight(rect), 22, 1e-9);
}

TEST(StencilSteps, DecreasingAnUprightSizeTakesTheRatioFromTheWidth) {
    expectNear(stepped({0, 0, 23, 46}, 16), {0.5, 1, 22.5, 45});
}

TEST(StencilSteps, DecreasingTheSizeIsTakenBackBelowTheLeastWidth) {
    const Rect pixels23By46{0, 0, 22, 45};
    EXPECT_EQ(stepped(pixels23By46, 16), pixels23By46);
    const Rect after = stepped({0, 0, 23, 46}, 16);
    EXPECT_EQ(stepped(after, 16), after);
}

TEST(StencilSteps, DecreasingTheSizeOfAWideOneIsTakenBackBelowTheLeastHeight) {
    const Rect wide{0, 0, 90, 22.25};
    EXPECT_EQ(stepped(wide, 16), wide);
    expectNear(stepped({0, 0, 92, 23}, 16), {1, 0.25, 91, 22.75});
}

TEST(StencilSteps, ASquareChangesItsSizeEvenly) {
    EXPECT_EQ(stepped({0, 0, 50, 50}, 17), (Rect{-1, -1, 51, 51}));
    EXPECT_EQ(stepped({0, 0, 50, 50}, 16), (Rect{1, 1, 49, 49}));
}

TEST(StencilSteps, ALineWithoutWidthOrHeightStaysFinite) {
    EXPECT_EQ(stepped({10, 0, 10, 50}, 17), (Rect{10, 0, 10, 50}));
    EXPECT_EQ(stepped({0, 10, 50, 10}, 17), (Rect{0, 10, 50, 10}));
}

TEST(ZeroAngle, CtrlComesBeforeShiftAndShiftBeforeAlt) {
    EXPECT_EQ(zeroAngleOf(0), 0);
    EXPECT_EQ(zeroAngleOf(modifier::ctrl), pi / 2);
    EXPECT_EQ(zeroAngleOf(modifier::shift), 4.712388980384685);
    EXPECT_EQ(zeroAngleOf(modifier::alt), pi);
    EXPECT_EQ(zeroAngleOf(modifier::ctrl | modifier::shift | modifier::alt), pi / 2);
    EXPECT_EQ(zeroAngleOf(modifier::shift | modifier::alt), 4.712388980384685);
}

TEST(WithPixelRatio, KeepsHeightAndCentreAndHasTheRatioInPixels) {
    const Rect rect = withPixelRatio({100, 100, 199, 199}, 0.75);
    EXPECT_EQ(rect, (Rect{112.5, 100, 186.5, 199}));
    EXPECT_DOUBLE_EQ(PixelRatio(rect, false), 0.75);
}

// The same, calculated from where the sides lie on the screen.

struct OnScreen {
    Point center;
    /// Unit vectors along the stencil's width and height.
    Point right;
    Point down;
    double width = 0;
    double height = 0;
};

OnScreen onScreen(const Rect& r, double angle) {
    return {{r.left / 2 + r.right / 2, r.top / 2 + r.bottom / 2},
            {std::cos(angle), -std::sin(angle)},
            {std::sin(angle), std::cos(angle)},
            r.right - r.left,
            r.bottom - r.top};
}

/// The middle of the side to which `direction` points at that distance from the centre.
Point middleOfSide(const OnScreen& s, const Point& direction, double distance) {
    return {s.center.x + direction.x * distance, s.center.y + direction.y * distance};
}

class RandomStencils : public testing::Test {
  protected:
    double between(double low, double high) {
        return std::uniform_real_distribution<double>(low, high)(random_);
    }
    StencilState next() {
        const double left = between(-2000, 2000);
        const double top = between(-2000, 2000);
        // Some are near the least size.
        const double most = between(0, 1) < 0.3 ? 25 : 1500;
        return {
            {left, top, left + between(22, most), top + between(22, most)}, between(0, twoPi), {}};
    }
    Grid nextGrid() {
        const auto whole = [this](int low, int high) {
            return std::uniform_int_distribution<int>(low, high)(random_);
        };
        return {whole(1, 120), whole(1, 120), whole(-50, 50), whole(-50, 50)};
    }

    static constexpr int count = 5000;
    std::mt19937 random_{20240611};
};

/// Where a side goes on an axis of the stencil's own frame.
double expectedPlace(double place, int direction, int step, int origin, bool byGrid) {
    if (!byGrid) {
        return place + direction;
    }
    const double lines = (place + direction * step - origin) / step;
    const double nearest = lines < 0 ? -std::floor(-lines + 0.5) : std::floor(lines + 0.5);
    return nearest * step + origin;
}

TEST_F(RandomStencils, TheSideOppositeToTheMovedOneStaysOnTheScreen) {
    for (int i = 0; i < count; ++i) {
        const StencilState state = next();
        const Grid lines = nextGrid();
        const bool byGrid = i % 2 == 1;
        const int index = 4 + i % 8;
        const bool alongX = index < 8;
        const bool low = (index - 4) / 2 % 2 == 0;  // left or top
        const Rect& r = state.RectBound;
        const double size = alongX ? r.right - r.left : r.bottom - r.top;
        const double place = alongX ? (low ? r.left : r.right) : (low ? r.top : r.bottom);
        const double goal =
            expectedPlace(place, index % 2 == 0 ? -1 : 1, alongX ? lines.stepX : lines.stepY,
                          alongX ? lines.originX : lines.originY, byGrid);
        const double newSize = low ? size + place - goal : size - place + goal;
        const Rect after = afterMoveStep(state, index, byGrid ? &lines : nullptr);
        if (newSize < 22 - 1e-6) {
            ASSERT_EQ(after, r) << index;
            continue;
        }
        const OnScreen was = onScreen(r, state.RotationAngle);
        const OnScreen is = onScreen(after, state.RotationAngle);
        const Point& axis = alongX ? was.right : was.down;
        const double outward = low ? 1 : -1;  // from the centre to the opposite side
        const Point stays = middleOfSide(was, axis, outward * size / 2);
        const Point now = middleOfSide(is, axis, outward * newSize / 2);
        ASSERT_NEAR(stays.x, now.x, 1e-8) << index;
        ASSERT_NEAR(stays.y, now.y, 1e-8) << index;
        ASSERT_NEAR(alongX ? is.width : is.height, newSize, 1e-8);
        ASSERT_NEAR(alongX ? is.height : is.width, alongX ? was.height : was.width, 1e-8);
    }
}

TEST_F(RandomStencils, ACentreStepMovesTheWholeStencil) {
    for (int i = 0; i < count; ++i) {
        const StencilState state = next();
        const Grid lines = nextGrid();
        const bool byGrid = i % 2 == 1;
        const int index = i / 2 % 4;
        const OnScreen was = onScreen(state.RectBound, 0);
        const int dx = index == 0 ? -1 : index == 1 ? 1 : 0;
        const int dy = index == 2 ? -1 : index == 3 ? 1 : 0;
        const Rect after = afterMoveStep(state, index, byGrid ? &lines : nullptr);
        const OnScreen is = onScreen(after, 0);
        ASSERT_NEAR(is.center.x,
                    expectedPlace(was.center.x, dx, lines.stepX, lines.originX, byGrid), 1e-8);
        ASSERT_NEAR(is.center.y,
                    expectedPlace(was.center.y, dy, lines.stepY, lines.originY, byGrid), 1e-8);
        ASSERT_NEAR(is.width, was.width, 1e-9);
        ASSERT_NEAR(is.height, was.height, 1e-9);
    }
}

TEST_F(RandomStencils, APairOfSidesMovesAboutTheCentre) {
    for (int i = 0; i < count; ++i) {
        const StencilState state = next();
        const Rect& r = state.RectBound;
        const int index = 12 + i % 4;
        const bool alongX = index < 14;
        const double change = index % 2 == 0 ? -2 : 2;
        const double newSize = (alongX ? r.right - r.left : r.bottom - r.top) + change;
        const Rect after = afterMoveStep(state, index, nullptr);
        if (newSize < 22 - 1e-6) {
            ASSERT_EQ(after, r);
            continue;
        }
        ASSERT_NEAR(RectCenter(after).x, RectCenter(r).x, 1e-9);
        ASSERT_NEAR(RectCenter(after).y, RectCenter(r).y, 1e-9);
        ASSERT_NEAR(alongX ? RectWidth(after) : RectHeight(after), newSize, 1e-9);
    }
}

TEST_F(RandomStencils, ASizeStepKeepsTheRatioAndTheCentre) {
    for (int i = 0; i < count; ++i) {
        const StencilState state = next();
        const Rect& r = state.RectBound;
        const int index = 16 + i % 2;
        const double width = r.right - r.left;
        const double height = r.bottom - r.top;
        const double longer = std::max(width, height);
        const double factor = (longer + (index == 16 ? -2 : 2)) / longer;
        const Rect after = afterMoveStep(state, index, nullptr);
        if (std::min(width, height) * factor < 22 - 1e-6) {
            ASSERT_EQ(after, r);
            continue;
        }
        ASSERT_NEAR(RectWidth(after), width * factor, 1e-8);
        ASSERT_NEAR(RectHeight(after), height * factor, 1e-8);
        ASSERT_NEAR(RectCenter(after).x, RectCenter(r).x, 1e-8);
        ASSERT_NEAR(RectCenter(after).y, RectCenter(r).y, 1e-8);
    }
}

TEST_F(RandomStencils, NoStepMakesASideSmallerThanItIsAllowed) {
    for (int i = 0; i < count; ++i) {
        const StencilState state = next();
        const Grid lines = nextGrid();
        const Rect after = afterMoveStep(state, i % 18, i % 2 == 1 ? &lines : nullptr);
        ASSERT_GE(after.right - after.left, 22 - 1e-5);
        ASSERT_GE(after.bottom - after.top, 22 - 1e-5);
    }
}

}  // namespace
}  // namespace ormala
