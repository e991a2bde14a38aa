#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "e2e/StencilModel.h"
#include "e2e/ToolPanel.h"

namespace ormala::test {
namespace {

struct Press {
    const char* button;
    Modifiers modifiers;
    double degrees;
};

/// From an angle of 0.
constexpr Press turns[] = {
    {"cmdAngle(0)", Modifiers::None, 1},     {"cmdAngle(0)", Modifiers::Alt, 0.1},
    {"cmdAngle(0)", Modifiers::Ctrl, 9},     {"cmdAngle(0)", Modifiers::Shift, 11.3},
    {"cmdAngle(1)", Modifiers::None, 359},   {"cmdAngle(1)", Modifiers::Alt, 359.9},
    {"cmdAngle(1)", Modifiers::Ctrl, 351},   {"cmdAngle(1)", Modifiers::Shift, 348.8},
    {"cmdAngleZero", Modifiers::Ctrl, 90},   {"cmdAngleZero", Modifiers::Alt, 180},
    {"cmdAngleZero", Modifiers::Shift, 270},
};

/// Rounded like the program does, halves away from zero.
double whole(double value) {
    return value < 0 ? std::ceil(value - 0.5) : std::floor(value + 0.5);
}

/// One stencil, whose panel is played.
class StencilCommands : public testing::Test {
  protected:
    void expectSides(double left, double right, double top, double bottom) const {
        EXPECT_TRUE(panel.shows("lblPositionLeft", whole(left)));
        EXPECT_TRUE(panel.shows("lblPositionRight", whole(right)));
        EXPECT_TRUE(panel.shows("lblPositionTop", whole(top)));
        EXPECT_TRUE(panel.shows("lblPositionBottom", whole(bottom)));
    }
    void expectStart() const { expectSides(205, 365, 155, 257); }
    void expectCentre(double x, double y) const { expectSides(x - 80, x + 80, y - 51, y + 51); }
    /// By the mouse: the next press is no second one of a double click, which repeats the first.
    void undo() const {
        ASSERT_TRUE(waitUntil([&] { return panel.isEnabled("cmdUndo"); }));
        panel.press("cmdUndo");
        ASSERT_TRUE(waitUntil([&] { return !panel.isEnabled("cmdUndo"); }));
    }
    void expectDragInTheProgramBelow() const {
        const BackdropReport report = scene.backdrop().waitFor(
            "drag", [](const BackdropReport& seen) { return seen.leftUp == 1; });
        EXPECT_EQ(report.leftDown, 1);
        EXPECT_EQ(report.lastDown(), scene.onScreen({205, 155}));
        EXPECT_EQ(report.lastUp(), scene.onScreen({365, 257}));
        EXPECT_GE(report.dragMoves, 1);
    }
    /// Puts the mouse where it touches nothing.
    void stepAside() { scene.mouse.moveTo(scene.onScreen({150, 330})); }
    Picture stencilPicture() {
        stepAside();
        const ScreenPoint corner = scene.onScreen({190, 140});
        return screen::waitUntilStill({corner.x, corner.y, corner.x + 190, corner.y + 130});
    }

    PanelScene scene{ToolSet().stencil({205, 155, 365, 257}).file(), userOptions()};
    ToolPanel panel{scene};
    ScreenRect sheet = scene.worksheet().clientRect();
    double middleX = std::floor(sheet.width() / 2.0);
    double middleY = std::floor(sheet.height() / 2.0);
};

TEST_F(StencilCommands, TheAngleButtonsTurnByTheirSteps) {
    for (const Press& turn : turns) {
        panel.press(turn.button, turn.modifiers);
        ASSERT_TRUE(panel.shows("lblAngle1", turn.degrees)) << turn.button;
        undo();
        ASSERT_TRUE(panel.shows("lblAngle1", 0)) << turn.button;
    }
}

TEST_F(StencilCommands, TheSpaceBarTurnsByTheSameSteps) {
    for (const Press& turn : turns) {
        // Alt with the space bar opens the window's menu.
        if (turn.modifiers != Modifiers::Alt) {
            panel.pressByKeys(turn.button, turn.modifiers);
            ASSERT_TRUE(panel.shows("lblAngle1", turn.degrees)) << turn.button;
            undo();
        }
    }
}

TEST_F(StencilCommands, FixedAnglesAreThoseOfAFullTurn) {
    for (int i = 0; i < 10; ++i) {
        panel.press("cmdAngle(0)");
    }
    ASSERT_TRUE(panel.shows("lblAngle1", 10));
    panel.press("cmdAngle(0)", Modifiers::Ctrl);
    ASSERT_TRUE(panel.shows("lblAngle1", 18));
    panel.press("cmdAngle(1)", Modifiers::Ctrl);
    ASSERT_TRUE(panel.shows("lblAngle1", 9));
    EXPECT_TRUE(panel.shows("lblAngle2", 0.157));
    panel.press("cmdAngleZero");
    EXPECT_TRUE(panel.shows("lblAngle1", 0));
    expectStart();
}

TEST_F(StencilCommands, AHeldAngleButtonIsOneStepOfUndo) {
    scene.mouse.moveTo(panel.control("cmdAngle(0)").center());
    scene.mouse.press();
    EXPECT_TRUE(waitUntil([&] { return panel.number("lblAngle1") > 5; }));
    scene.mouse.release();
    undo();
    EXPECT_TRUE(panel.shows("lblAngle1", 0));
}

TEST_F(StencilCommands, CenterPutsTheStencilInTheMiddleAndWithCtrlOnTheGrid) {
    const auto snapped = [](double value, int step) {
        return std::floor(value / step + 0.5) * step;
    };
    for (const Modifiers keys : {Modifiers::None, Modifiers::Shift, Modifiers::Alt}) {
        panel.press("cmdMoveCenter", keys);
        expectCentre(middleX, middleY);
        undo();
    }
    panel.press("cmdMoveCenter", Modifiers::Ctrl);
    expectCentre(snapped(middleX, 40), snapped(middleY, 30));
    undo();
    panel.pressByKeys("cmdMoveCenter", Modifiers::Ctrl);
    expectCentre(snapped(middleX, 40), snapped(middleY, 30));
    undo();
    panel.pressByKeys("cmdMoveCenter");
    expectCentre(middleX, middleY);
}

TEST_F(StencilCommands, FullSizeFitsTheStencilIntoTheWorksheet) {
    panel.press("cmdAngle(0)");
    panel.press("cmdFullSize");
    expectSides(0, sheet.width() - 1, 0, sheet.height() - 1);
    EXPECT_TRUE(panel.shows("lblAngle1", 0));
    PanelScene::choose(panel.control("cmdUndo"));
    expectStart();
    EXPECT_TRUE(panel.shows("lblAngle1", 1));
    panel.pressByKeys("cmdFullSize");
    expectSides(0, sheet.width() - 1, 0, sheet.height() - 1);
}

TEST_F(StencilCommands, TheDefaultPlaceIsThatOfAFirstStart) {
    const StencilModel first = StencilModel::ofFirstStart(sheet.width(), sheet.height());
    const auto expectFirst = [&] {
        expectSides(first.center.x - first.halfWidth, first.center.x + first.halfWidth,
                    first.center.y - first.halfHeight, first.center.y + first.halfHeight);
        EXPECT_TRUE(panel.shows("lblRatioWH", 1.618));
    };
    panel.press("cmdAngle(1)");
    panel.press("cmdDefaultPos");
    expectFirst();
    EXPECT_TRUE(panel.shows("lblAngle1", 0));
    PanelScene::choose(panel.control("cmdUndo"));
    expectStart();
    panel.pressByKeys("cmdDefaultPos");
    expectFirst();
}

TEST_F(StencilCommands, UndoAndRedoGoThroughMixedChanges) {
    panel.press("cmdMove(1)");
    ASSERT_TRUE(panel.shows("lblPositionLeft", 206));
    panel.press("cmdAngle(0)", Modifiers::Ctrl);
    ASSERT_TRUE(panel.shows("lblAngle1", 9));
    panel.press("cmdMoveCenter");
    expectCentre(middleX, middleY);
    panel.pressByKeys("cmdAngleZero", Modifiers::Shift);
    ASSERT_TRUE(panel.shows("lblAngle1", 270));
    panel.press("cmdUndo");
    ASSERT_TRUE(panel.shows("lblAngle1", 9));
    panel.press("cmdUndo");
    expectSides(206, 366, 155, 257);
    panel.pressByKeys("cmdUndo");
    ASSERT_TRUE(panel.shows("lblAngle1", 0));
    panel.press("cmdUndo");
    expectStart();
    EXPECT_FALSE(panel.isEnabled("cmdUndo"));
    panel.press("cmdRedo");
    panel.pressByKeys("cmdRedo");
    ASSERT_TRUE(panel.shows("lblAngle1", 9));
    panel.press("cmdRedo");
    panel.press("cmdRedo");
    ASSERT_TRUE(panel.shows("lblAngle1", 270));
    EXPECT_TRUE(waitUntil([&] { return !panel.isEnabled("cmdRedo"); }));
    // A new change ends what could be redone.
    panel.press("cmdUndo");
    ASSERT_TRUE(panel.shows("lblAngle1", 9));
    panel.press("cmdAngle(1)");
    ASSERT_TRUE(panel.shows("lblAngle1", 8));
    EXPECT_TRUE(waitUntil([&] { return !panel.isEnabled("cmdRedo"); }));
}

TEST_F(StencilCommands, PauseHidesTheStencilAndLeavesOnlyItsOwnButton) {
    const Picture shown = stencilPicture();
    panel.press("cmdPause");
    ASSERT_TRUE(waitUntil([&] { return panel.isDown("cmdPause"); }));
    for (const DesktopWindow& control : panel.window().descendants()) {
        if (control.className() == "ZelvikButtonXP") {
            EXPECT_EQ(control.isEnabled(), control.name() == "cmdPause") << control.name();
        }
    }
    const Picture hidden = stencilPicture();
    EXPECT_FALSE(difference(shown, hidden).empty());
    const Color ground = hidden.at(hidden.rect().origin());
    EXPECT_EQ(hidden.count(ground), 190U * 130U);
    panel.press("cmdMove(1)");
    panel.pressByKeys("cmdPause");
    ASSERT_TRUE(waitUntil([&] { return panel.isEnabled("cmdMove(1)"); }));
    EXPECT_FALSE(panel.isDown("cmdPause"));
    EXPECT_FALSE(panel.isEnabled("cmdUndo"));
    expectStart();
    EXPECT_TRUE(difference(shown, stencilPicture()).empty());
}

TEST_F(StencilCommands, TheMouseRemovesTheStencil) {
    panel.press("cmdDelete");
    EXPECT_TRUE(scene.waitForPanels(0));
}

TEST_F(StencilCommands, TheSpaceBarRemovesTheStencil) {
    panel.pressByKeys("cmdDelete");
    EXPECT_TRUE(scene.waitForPanels(0));
}

TEST_F(StencilCommands, SmallButtonsGrowUnderTheMouseAndShrinkAgain) {
    const int growth = MulDiv(4, static_cast<int>(GetDpiForSystem()), USER_DEFAULT_SCREEN_DPI);
    stepAside();
    for (const char* name : {"cmdMove(0)", "cmdMove(17)", "cmdUndo", "cmdAngleZero", "cmdColor"}) {
        const DesktopWindow button = panel.control(name);
        const ScreenRect rest = button.rect();
        if (!button.isEnabled()) {
            scene.mouse.moveTo(rest.center());
            pause(milliseconds{150});
            EXPECT_EQ(button.rect(), rest) << name;
            continue;
        }
        scene.mouse.moveTo(rest.center());
        const ScreenRect grown{rest.left - growth, rest.top - growth, rest.right + growth,
                               rest.bottom + growth};
        EXPECT_TRUE(waitUntil([&] { return button.rect() == grown; })) << name;
        stepAside();
        EXPECT_TRUE(waitUntil([&] { return button.rect() == rest; })) << name;
    }
}

TEST_F(StencilCommands, NoButtonFlickersUnderAMouseAtRest) {
    const ScreenRect place = panel.window().rect();
    const auto buttonPlaces = [&] {
        std::vector<ScreenRect> places;
        for (const DesktopWindow& control : panel.window().descendants()) {
            places.push_back(control.rect());
        }
        return places;
    };
    constexpr milliseconds severalTicks{100};
    constexpr int columns = 8;
    constexpr int rows = 6;
    for (int i = 0; i < columns * rows; ++i) {
        const ScreenPoint mouse{place.left + (2 * (i % columns) + 1) * place.width() / columns / 2,
                                place.top + (2 * (i / columns) + 1) * place.height() / rows / 2};
        scene.mouse.moveTo(mouse);
        pause(severalTicks);
        const auto settled = buttonPlaces();
        pause(severalTicks);
        EXPECT_EQ(buttonPlaces(), settled) << mouse - place.origin();
    }
    scene.mouse.moveTo(panel.control("cmdUndo").center());
    pause(severalTicks);
    const Picture picture = screen::capture(place);
    for (int i = 0; i < 20; ++i) {
        pause(milliseconds{37});
        EXPECT_TRUE(difference(screen::capture(place), picture).empty()) << i;
    }
}

TEST_F(StencilCommands, TheMouseActionDragsInTheProgramBelow) {
    // Where the worksheet lets the mouse through; the panels are there for those who want them.
    const ScreenRect place = scene.settings().rect();
    scene.settings().activate();
    keyboard::press(VK_F4);
    ASSERT_TRUE(waitUntil([&] { return scene.settings().rect().height() < place.height(); }));
    SetWindowPos(scene.settings().handle(), nullptr, 0, 0, place.width(), place.height(),
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    ASSERT_TRUE(waitUntil([&] { return scene.settings().rect() == place; }));
    const DesktopWindow button = panel.control("cmdSendMouseInput");
    for (const bool byKeys : {false, true}) {
        scene.backdrop().reset();
        scene.mouse.moveTo(button.center());
        if (byKeys) {
            panel.pressByKeys("cmdSendMouseInput");
        } else {
            panel.press("cmdSendMouseInput");
        }
        expectDragInTheProgramBelow();
        EXPECT_TRUE(waitUntil([&] { return scene.settings().rect() == place; }));
        EXPECT_TRUE(waitUntil([&] { return Mouse::position() == button.center(); }));
        expectStart();
    }
}

TEST_F(StencilCommands, TheMouseActionInEditModeDragsInTheProgramBelowAndNoGrip) {
    const Picture before = stencilPicture();
    scene.mouse.moveTo(panel.control("cmdSendMouseInput").center());
    scene.backdrop().reset();
    panel.press("cmdSendMouseInput");
    expectDragInTheProgramBelow();
    EXPECT_TRUE(waitUntil([&] { return scene.program().window("frmResizer").isVisible(); }));
    expectStart();
    EXPECT_FALSE(panel.isEnabled("cmdUndo"));
    // A window manager may give the frame, which is back, the keyboard that the panel had.
    scene.settings().activate();
    // Once the preview is over, everything is as before, and the worksheet takes the mouse.
    EXPECT_TRUE(waitUntil([&] { return difference(stencilPicture(), before).empty(); }));
    scene.mouse.drag(scene.onScreen({285, 206}), scene.onScreen({305, 216}));
    expectSides(225, 385, 165, 267);
}

}  // namespace
}  // namespace ormala::test
