#include <gtest/gtest.h>

#include "e2e/PanelScene.h"

// A hand that presses, holds and lets go of modifier keys while it drags, on a keyboard that
// repeats every key that is held.

namespace ormala::test {
namespace {

/// What a panel says in a label.
struct Reading {
    const char* label;
    const char* text;
};

struct KeyEffect {
    WORD key;
    std::vector<Reading> readings;
};

class HeldModifiers : public testing::Test {
  protected:
    /// With each key: press the grip, press the key, let it repeat itself, and move; let the key go
    /// and press it again, with the mouse at rest; go back to where it began.
    static void play(PanelScene& scene, ScreenPoint grip, ScreenPoint to,
                     const std::vector<Reading>& plain, const std::vector<KeyEffect>& effects) {
        const DesktopWindow panel = scene.panel(0);
        for (const KeyEffect& effect : effects) {
            scene.mouse.moveTo(scene.onScreen(grip));
            scene.mouse.press();
            keyboard::down(effect.key);
            for (int i = 0; i < 30; ++i) {
                keyboard::repeatHeldModifiers();
            }
            scene.mouse.moveTo(scene.onScreen(to));
            expect(panel, effect.readings);
            keyboard::up(effect.key);
            expect(panel, plain);
            keyboard::down(effect.key);
            expect(panel, effect.readings);
            keyboard::up(effect.key);
            expect(panel, plain);
            scene.mouse.moveTo(scene.onScreen(grip));
            scene.mouse.release();
            EXPECT_FALSE(PanelScene::control(panel, "cmdUndo").isEnabled())
                << "there and back is no step";
        }
    }

  private:
    static void expect(const DesktopWindow& panel, const std::vector<Reading>& readings) {
        for (const Reading& reading : readings) {
            const DesktopWindow label = PanelScene::control(panel, reading.label);
            // The keyboard goes on repeating while the hand rests.
            waitUntil([&] {
                keyboard::repeatHeldModifiers();
                return label.text() == localised(reading.text);
            });
            EXPECT_TRUE(PanelScene::says(panel, reading.label, reading.text));
        }
    }
};

TEST_F(HeldModifiers, ActAtOnceOnAStencil) {
    // 201 by 151 pixels; its right side goes to about 1.49 times the height.
    PanelScene scene(ToolSet().stencil({300, 300, 500, 450}).file());
    const std::vector<Reading> plain{{"lblSizeWidth", "W = 225 "},
                                     {"lblPositionLeft", "left = 300 "}};
    play(scene, {500, 375}, {523, 375}, plain,
         {{VK_SHIFT, {{"lblSizeWidth", "W = 226 "}, {"lblPositionLeft", "left = 300 "}}},
          {VK_CONTROL, {{"lblSizeWidth", "W = 225 "}, {"lblPositionLeft", "left = 288 "}}},
          {VK_MENU, plain}});
}

TEST_F(HeldModifiers, ActAtOnceOnAMeasuringTool) {
    PanelScene scene(ToolSet()
                         .measure({{200, 500}, {300, 500}}, {{200, 560}, {260, 560}}, false)
                         .measure({{303, 543}, {600, 600}}, {{650, 300}, {700, 350}}, false, 2)
                         .file());
    const std::vector<Reading> plain{{"lblLengthA", "a = 108.7 "}, {"lblAngleVertA", "68.20° "}};
    play(scene, {300, 500}, {300, 540}, plain,
         {{VK_SHIFT, {{"lblLengthA", "a = 108.7 "}, {"lblAngleVertA", "90.00° "}}},
          {VK_CONTROL, plain},
          {VK_MENU, {{"lblLengthA", "a = 112.6 "}, {"lblAngleVertA", "67.34° "}}}});
}

/// The stencil's whole place, as its panel tells it.
std::string placeOf(PanelScene& scene) {
    std::string place;
    for (const char* label : {"lblAngle2", "lblPositionLeft", "lblPositionRight", "lblPositionTop",
                              "lblPositionBottom"}) {
        place += PanelScene::control(scene.panel(0), label).text();
    }
    return place;
}

/// What the panel says once a drag has arrived there.
std::string arrived(const std::function<std::string()>& state, const std::string& before) {
    std::string now;
    waitUntil([&] {
        now = state();
        // Longer than the panel keeps a change back.
        pause(milliseconds(150));
        return now != before && state() == now;
    });
    return now;
}

/// Each drag in one move and in eight, taken back each time.
void expectSameAtAnyRate(PanelScene& scene,
                         const std::vector<std::pair<ScreenPoint, ScreenPoint>>& ways,
                         const std::function<std::string()>& state) {
    const std::string before = state();
    for (const auto& [from, to] : ways) {
        for (const Modifiers keys : {Modifiers::None, Modifiers::Shift, Modifiers::Ctrl}) {
            std::string once;
            for (const int moves : {1, 8}) {
                scene.mouse.drag(scene.onScreen(from), scene.onScreen(to), moves, keys);
                const std::string now = arrived(state, before);
                EXPECT_NE(now, before);
                once = moves == 1 ? now : once;
                EXPECT_EQ(now, once) << from << " to " << to << " with " << static_cast<int>(keys);
                keyboard::press('Z', Modifiers::Ctrl);
                ASSERT_TRUE(waitUntil([&] { return state() == before; })) << state();
            }
        }
    }
}

TEST_F(HeldModifiers, AStencilEndsTheSameAtAnyRateOfMoves) {
    PanelScene scene(ToolSet().stencil({300, 300, 500, 450}).file());
    expectSameAtAnyRate(scene,
                        {{{500, 375}, {250, 380}},   // right side, past the left one
                         {{500, 450}, {330, 310}},   // corner, past the centre
                         {{471, 428}, {380, 470}}},  // round grip
                        [&] { return placeOf(scene); });
}

TEST_F(HeldModifiers, ATurnedStencilEndsTheSameAtAnyRateOfMoves) {
    PanelScene scene(ToolSet().stencil({300, 300, 500, 450}).file());
    scene.mouse.click(scene.onScreen({400, 375}));
    keyboard::press(VK_PRIOR, Modifiers::None, 30);
    ASSERT_TRUE(PanelScene::says(scene.panel(0), "lblAngle1", "30.0° "));
    // The end of a press keeps what the keys have done as a step of its own.
    scene.mouse.click(scene.onScreen({400, 375}));
    expectSameAtAnyRate(scene, {{{487, 325}, {300, 440}}, {{524, 390}, {380, 330}}},
                        [&] { return placeOf(scene); });
}

TEST_F(HeldModifiers, AMeasuringToolEndsTheSameAtAnyRateOfMoves) {
    PanelScene scene(
        ToolSet().measure({{200, 500}, {300, 500}}, {{200, 560}, {260, 600}}, false).file());
    expectSameAtAnyRate(scene,
                        {{{300, 500}, {201, 500}},  // onto the other end
                         {{200, 560}, {290, 630}}},
                        [&] {
                            const DesktopWindow panel = scene.panel(0);
                            std::string said;
                            for (const char* label :
                                 {"lblLengthA", "lblAngleVertA", "lblLengthB", "lblAngleVertB"}) {
                                said += PanelScene::control(panel, label).text();
                            }
                            return said;
                        });
}

TEST_F(HeldModifiers, AFastShrinkOfACornerPastTheCentreKeepsTheOppositeCorner) {
    PanelScene scene(ToolSet().stencil({300, 300, 499, 399}).file());
    const DesktopWindow panel = scene.panel(0);
    scene.mouse.drag(scene.onScreen({499, 399}), scene.onScreen({310, 180}), 1);
    // 44 by 22 pixels.
    EXPECT_TRUE(PanelScene::says(panel, "lblSizeWidth", "W = 44 "));
    EXPECT_TRUE(PanelScene::says(panel, "lblSizeHeight", "H = 22 "));
    EXPECT_TRUE(PanelScene::says(panel, "lblPositionLeft", "left = 300 "));
    EXPECT_TRUE(PanelScene::says(panel, "lblPositionTop", "top = 300 "));
}

}  // namespace
}  // namespace ormala::test
