#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <ostream>

#include "e2e/ToolPanel.h"

namespace ormala::test {
namespace {

struct Sides {
    int left;
    int right;
    int top;
    int bottom;

    bool operator==(const Sides&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Sides& sides) {
    return out << "x " << sides.left << " to " << sides.right << ", y " << sides.top << " to "
               << sides.bottom;
}

constexpr Sides start{205, 365, 155, 257};

/// What each of `cmdMove(0)` to `cmdMove(17)` makes of it.
constexpr int moves = 18;
constexpr Sides byOnePixel[moves] = {
    {204, 364, 155, 257}, {206, 366, 155, 257}, {205, 365, 154, 256}, {205, 365, 156, 258},
    {204, 365, 155, 257}, {206, 365, 155, 257}, {205, 364, 155, 257}, {205, 366, 155, 257},
    {205, 365, 154, 257}, {205, 365, 156, 257}, {205, 365, 155, 256}, {205, 365, 155, 258},
    {206, 364, 155, 257}, {204, 366, 155, 257}, {205, 365, 156, 256}, {205, 365, 154, 258},
    {206, 364, 156, 256}, {204, 366, 154, 258}};
/// On the grid; the last two know none.
constexpr Sides byGrid[moves] = {{160, 320, 159, 261}, {240, 400, 159, 261}, {200, 360, 129, 231},
                                 {200, 360, 189, 291}, {160, 365, 155, 257}, {240, 365, 155, 257},
                                 {205, 320, 155, 257}, {205, 400, 155, 257}, {205, 365, 120, 257},
                                 {205, 365, 180, 257}, {205, 365, 155, 240}, {205, 365, 155, 300},
                                 {240, 320, 155, 257}, {160, 400, 155, 257}, {205, 365, 180, 240},
                                 {205, 365, 120, 300}, {206, 364, 156, 256}, {204, 366, 154, 258}};

std::string moveButton(int index) {
    return "cmdMove(" + std::to_string(index) + ")";
}

/// One stencil, whose panel is played.
class StencilSteps : public testing::Test {
  protected:
    [[nodiscard]] Sides sides() const {
        const auto whole = [this](const char* label) {
            return static_cast<int>(std::lround(panel.number(label)));
        };
        return {whole("lblPositionLeft"), whole("lblPositionRight"), whole("lblPositionTop"),
                whole("lblPositionBottom")};
    }
    void expectSides(const Sides& expected, const std::string& what) const {
        ASSERT_TRUE(waitUntil([&] { return sides() == expected; }))
            << what << ": " << sides() << " instead of " << expected;
    }
    /// The one step that was done is undone.
    void expectAndUndo(const Sides& expected, const std::string& what) const {
        ASSERT_NO_FATAL_FAILURE(expectSides(expected, what));
        EXPECT_TRUE(waitUntil([&] { return panel.isEnabled("cmdUndo"); })) << what;
        PanelScene::choose(panel.control("cmdUndo"));
        ASSERT_NO_FATAL_FAILURE(expectSides(start, "undo of " + what));
        EXPECT_TRUE(waitUntil([&] { return !panel.isEnabled("cmdUndo"); })) << what;
    }
    void expectByMouse(const Sides (&expected)[moves], Modifiers modifiers) const {
        for (int i = 0; i < moves; ++i) {
            panel.press(moveButton(i), modifiers);
            ASSERT_NO_FATAL_FAILURE(expectAndUndo(expected[i], moveButton(i)));
        }
    }
    void expectByKeys(const Sides (&expected)[moves], Modifiers modifiers) const {
        for (int i = 0; i < moves; ++i) {
            panel.pressByKeys(moveButton(i), modifiers);
            ASSERT_NO_FATAL_FAILURE(expectAndUndo(expected[i], moveButton(i)));
        }
    }
    /// The sides at the end of a run of steps; the read-outs come after the last of them.
    Sides lastSides() const {
        Sides last{};
        EXPECT_TRUE(waitUntil([&] {
            last = sides();
            pause(milliseconds{500});
            return sides() == last;
        }));
        return last;
    }
    /// How long the second button, held from now on, takes for its first sixteen steps.
    [[nodiscard]] std::chrono::steady_clock::duration timeOfSteps(int stepLength) {
        constexpr int steps = 16;
        const auto begin = std::chrono::steady_clock::now();
        scene.mouse.press();
        EXPECT_TRUE(waitUntil([&] { return sides().left >= start.left + steps * stepLength; }));
        const auto time = std::chrono::steady_clock::now() - begin;
        scene.mouse.release();
        return time;
    }

    PanelScene scene{ToolSet().stencil({start.left, start.top, start.right, start.bottom}).file(),
                     userOptions()};
    ToolPanel panel{scene};
};

TEST_F(StencilSteps, EachButtonMovesByOnePixel) {
    expectByMouse(byOnePixel, Modifiers::None);
}

TEST_F(StencilSteps, WithShiftEachButtonMovesOnTheGrid) {
    expectByMouse(byGrid, Modifiers::Shift);
}

TEST_F(StencilSteps, WithCtrlEachButtonMovesOnTheGrid) {
    expectByMouse(byGrid, Modifiers::Ctrl);
}

TEST_F(StencilSteps, WithAltEachButtonMovesOnTheGrid) {
    expectByMouse(byGrid, Modifiers::Alt);
}

TEST_F(StencilSteps, TheSpaceBarPressesEachButton) {
    expectByKeys(byOnePixel, Modifiers::None);
}

TEST_F(StencilSteps, TheSpaceBarKnowsTheModifiers) {
    expectByKeys(byGrid, Modifiers::Shift);
    expectByKeys(byGrid, Modifiers::Ctrl);
}

TEST_F(StencilSteps, TheOtherReadOutsFollow) {
    panel.press(moveButton(13));
    EXPECT_TRUE(panel.shows("lblSizeWidth", 163));
    EXPECT_TRUE(panel.shows("lblSizeHeight", 103));
    // Half a pixel short of the middle of the pixels.
    EXPECT_TRUE(panel.shows("lblCenterX", 284.5));
    EXPECT_TRUE(panel.shows("lblCenterY", 205.5));
    EXPECT_TRUE(panel.shows("lblRatioWH", 1.583));
    EXPECT_TRUE(panel.shows("lblRatioHW", 0.6319));
}

TEST_F(StencilSteps, WhatTheButtonsMadeIsOnTheWorksheetAndInTheFile) {
    const Color ground = screen::pixel(scene.onScreen({150, 120}));
    const auto isLine = [&](ScreenPoint sheet) {
        return screen::pixel(scene.onScreen(sheet)) != ground;
    };
    panel.press(moveButton(4));
    panel.press(moveButton(4));
    panel.press(moveButton(11));
    expectSides({203, 365, 155, 258}, "three presses");
    // Between the lines of the pattern, away from the grips.
    EXPECT_TRUE(waitUntil([&] { return isLine({203, 180}); }));
    EXPECT_FALSE(isLine({202, 180}));
    EXPECT_FALSE(isLine({204, 180}));
    EXPECT_TRUE(isLine({320, 258}));
    EXPECT_FALSE(isLine({320, 257}));
    EXPECT_EQ(scene.program().close(), 0U);
    const SettingsFile kept = SettingsFile::read(scene.data().toolsFile());
    EXPECT_EQ(kept.number("Tool 1", "RectBoundLeft"), 203);
    EXPECT_EQ(kept.number("Tool 1", "RectBoundRight"), 365);
    EXPECT_EQ(kept.number("Tool 1", "RectBoundTop"), 155);
    EXPECT_EQ(kept.number("Tool 1", "RectBoundBottom"), 258);
}

TEST_F(StencilSteps, AHeldButtonRepeatsAndIsOneStepOfUndo) {
    scene.mouse.moveTo(panel.control(moveButton(1)).center());
    scene.mouse.press();
    EXPECT_TRUE(waitUntil([&] { return sides().left > start.left + 5; }));
    scene.mouse.release();
    EXPECT_TRUE(waitUntil([&] { return panel.isEnabled("cmdUndo"); }));
    const Sides reached = lastSides();
    EXPECT_EQ(reached.right - reached.left, start.right - start.left);
    panel.press("cmdUndo");
    expectSides(start, "undo of a run");
    EXPECT_FALSE(panel.isEnabled("cmdUndo"));
    panel.press("cmdRedo");
    expectSides(reached, "redo of a run");
}

TEST_F(StencilSteps, AHeldButtonIsSlowerWithAModifier) {
    // After a pause of 11 ticks of 40 ms a step comes with each tick, or with one in three: 1.0 or
    // 2.1 s. A busy machine can only add to that, so that the plain button has several tries.
    constexpr milliseconds between{1600};
    constexpr int tries = 5;
    scene.mouse.moveTo(panel.control(moveButton(1)).center());
    bool fast = false;
    for (int i = 0; i < tries && !fast; ++i) {
        fast = timeOfSteps(1) < between;
        panel.press("cmdUndo");
        expectSides(start, "undo");
        scene.mouse.moveTo(panel.control(moveButton(1)).center());
    }
    EXPECT_TRUE(fast);
    const HeldKeys keys(Modifiers::Ctrl);
    EXPECT_GT(timeOfSteps(40), between);
}

TEST_F(StencilSteps, AHeldButtonStopsWhenItLosesTheKeyboard) {
    scene.mouse.moveTo(panel.control(moveButton(3)).center());
    scene.mouse.press();
    EXPECT_TRUE(waitUntil([&] { return sides().top > start.top + 3; }));
    scene.backdrop().window().activate();
    EXPECT_TRUE(waitUntil([&] { return panel.isEnabled("cmdUndo"); }));
    lastSides();
    scene.mouse.release();
}

}  // namespace
}  // namespace ormala::test
