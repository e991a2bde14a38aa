#include "modAPI/constants.h"
#include "modAPI/rectangles.h"
#include "stencil/SetRatioGridFixture.h"

// The buttons of a stencil's panel.

namespace ormala {
namespace {

class SetRatioGridButtonsTest : public SetRatioGridFixture {};

constexpr Rect plain{100, 100, 300, 200};

TEST_F(SetRatioGridButtonsTest, AClickIsOneStepOfUndo) {
    start(plain);
    step("cmdMove(7)");
    EXPECT_EQ(tool_.RectBound(), (Rect{100, 100, 301, 200}));
    EXPECT_EQ(view_.texts[StencilControl::lblPositionRight], "right = 301 ");
    EXPECT_EQ(undoSteps(), 1);
    panel_->Undo();
    EXPECT_EQ(tool_.RectBound(), plain);
}

TEST_F(SetRatioGridButtonsTest, AWholeRunIsOneStepOfUndo) {
    start(plain);
    press("cmdMove(1)");
    tick(10 + 30);
    panel_->release();
    EXPECT_EQ(tool_.RectBound().left, 131);
    EXPECT_EQ(undoSteps(), 1);
    panel_->Undo();
    EXPECT_EQ(tool_.RectBound(), plain);
}

TEST_F(SetRatioGridButtonsTest, AModifierMovesByTheGridAndSlowly) {
    settings_.grid = {50, 50, 0, 0};
    start(plain);
    press("cmdMove(1)", modifier::alt);
    EXPECT_EQ(RectCenter(tool_.RectBound()), (Point{250, 150}));
    tick(10 + 4);
    panel_->release();
    EXPECT_EQ(RectCenter(tool_.RectBound()), (Point{350, 150}));
}

TEST_F(SetRatioGridButtonsTest, ARunRefreshesMoreOftenThanADrag) {
    start(plain);
    later(1);
    press("cmdMove(1)");
    tick(10);
    view_.refreshes = 0;
    for (int i = 0; i < 10; ++i) {
        later(0.05F);
        tick(1);
    }
    EXPECT_EQ(view_.refreshes, 10);
    panel_->release();
    view_.refreshes = 0;
    for (int i = 0; i < 10; ++i) {
        later(0.05F);
        change(plain);
    }
    EXPECT_EQ(view_.refreshes, 5);
}

TEST_F(SetRatioGridButtonsTest, AStepThatIsRefusedStoresNothing) {
    start({100, 100, 122, 200});
    step("cmdMove(5)");
    EXPECT_EQ(tool_.RectBound(), (Rect{100, 100, 122, 200}));
    EXPECT_EQ(undoSteps(), 0);
    EXPECT_FALSE(view_.enabling.undo);
}

TEST_F(SetRatioGridButtonsTest, TheSpaceBarStepsAtEachPressAndStoresAtTheKeyUp) {
    start(plain);
    pressKey("cmdMove(3)");
    pressKey("cmdMove(3)");
    tick(30);
    EXPECT_EQ(tool_.RectBound().top, 102);
    EXPECT_EQ(undoSteps(), 0);
    panel_->releaseKey();
    EXPECT_EQ(undoSteps(), 1);
    pressKey("cmdAngle(0)");
    panel_->releaseKey();
    EXPECT_NEAR(tool_.RotationAngle(), pi / 180, 1e-12);
    EXPECT_EQ(undoSteps(), 2);
}

TEST_F(SetRatioGridButtonsTest, AKeyThatIsLetGoLeavesTheRunOfTheMouse) {
    start(plain);
    press("cmdMove(1)");
    tick(11);
    pressKey("cmdMove(3)");
    panel_->releaseKey();
    tick(1);
    EXPECT_EQ(tool_.RectBound().left, 103);
    EXPECT_EQ(tool_.RectBound().top, 100);
    EXPECT_EQ(undoSteps(), 0);
    panel_->release();
    EXPECT_EQ(undoSteps(), 1);
}

TEST_F(SetRatioGridButtonsTest, ARunEndsWithItsPanel) {
    start(plain);
    press("cmdMove(1)");
    tick(15);
    const Rect last = tool_.RectBound();
    panel_.reset();
    tick(15);
    EXPECT_EQ(tool_.RectBound(), last);
}

TEST_F(SetRatioGridButtonsTest, ARunEndsWhenThePanelIsRemovedOrPaused) {
    start(plain);
    press("cmdMove(1)");
    panel_->setHidden(true);
    tick(30);
    EXPECT_EQ(tool_.RectBound().left, 101);
    panel_->setHidden(false);
    press("cmdMove(1)");
    panel_->setPause(true);
    tick(30);
    EXPECT_EQ(tool_.RectBound().left, 102);
    EXPECT_EQ(undoSteps(), 2);
}

TEST_F(SetRatioGridButtonsTest, UndoDuringARunTakesTheRunBack) {
    start(plain);
    press("cmdMove(1)");
    tick(15);
    panel_->Undo();
    EXPECT_EQ(tool_.RectBound(), plain);
    tick(30);
    EXPECT_EQ(tool_.RectBound(), plain);
}

TEST_F(SetRatioGridButtonsTest, UndoInADragWaitsForItsEnd) {
    start(plain);
    press("cmdMove(1)");
    panel_->release();
    const Rect moved = tool_.RectBound();
    ASSERT_NE(moved, plain);
    const Point grip = tool_.grips()[0].center();
    const MouseInput at{mouseButton::left, 0, static_cast<float>(grip.x),
                        static_cast<float>(grip.y)};
    tool_.mouseDown(at, {});
    panel_->Undo();
    EXPECT_EQ(tool_.RectBound(), moved);
    tool_.mouseUp(at, {});
    panel_->Undo();
    EXPECT_EQ(tool_.RectBound(), plain);
}

TEST_F(SetRatioGridButtonsTest, TheModifiersOfTheAngleChooseTheStep) {
    constexpr double degree = pi / 180;
    start(plain, 1);
    const auto after = [this](int index, int shift) {
        tool_.setRotationAngle(10 * degree);
        step("cmdAngle(" + std::to_string(index) + ")", shift);
        return tool_.RotationAngle() / degree;
    };
    EXPECT_NEAR(after(0, 0), 11, 1e-9);
    EXPECT_NEAR(after(1, 0), 9, 1e-9);
    EXPECT_NEAR(after(0, modifier::alt), 10.1, 1e-9);
    EXPECT_NEAR(after(1, modifier::alt), 9.9, 1e-9);
    EXPECT_NEAR(after(0, modifier::shift), 22.5, 1e-9);
    EXPECT_NEAR(after(1, modifier::shift), 0, 1e-9);
    EXPECT_NEAR(after(0, modifier::ctrl | modifier::shift), 18, 1e-9);
}

TEST_F(SetRatioGridButtonsTest, CtrlAtTenDegreesGoesToEighteenAndTheOtherButtonToNine) {
    constexpr double degree = pi / 180;
    start(plain, 10 * degree);
    step("cmdAngle(0)", modifier::ctrl);
    EXPECT_NEAR(tool_.RotationAngle(), 18 * degree, 1e-9);
    step("cmdAngle(1)", modifier::ctrl);
    EXPECT_NEAR(tool_.RotationAngle(), 9 * degree, 1e-9);
}

TEST_F(SetRatioGridButtonsTest, AngleZeroIsAStepOfUndo) {
    start(plain, 1);
    click("cmdAngleZero");
    EXPECT_EQ(tool_.RotationAngle(), 0);
    later(1);
    click("cmdAngleZero", modifier::ctrl);
    EXPECT_EQ(tool_.RotationAngle(), pi / 2);
    EXPECT_EQ(view_.texts[StencilControl::lblAngle1], "90.0\u00b0 ");
    EXPECT_EQ(undoSteps(), 2);
}

TEST_F(SetRatioGridButtonsTest, FullSizeFitsTheWorksheetUnturned) {
    start(plain, 1);
    click("cmdFullSize");
    EXPECT_EQ(tool_.RectBound(), (Rect{0, 0, 999, 799}));
    EXPECT_EQ(tool_.RotationAngle(), 0);
    EXPECT_EQ(undoSteps(), 1);
}

TEST_F(SetRatioGridButtonsTest, MoveCenterKeepsSizeAndAngle) {
    settings_.grid = {300, 300, 0, 0};
    start(plain, 1);
    click("cmdMoveCenter", modifier::shift);
    EXPECT_EQ(tool_.RectBound(), (Rect{400, 350, 600, 450}));
    EXPECT_EQ(tool_.RotationAngle(), 1);
    click("cmdMoveCenter", modifier::ctrl);
    EXPECT_EQ(RectCenter(tool_.RectBound()), (Point{600, 300}));
    EXPECT_EQ(undoSteps(), 2);
}

TEST_F(SetRatioGridButtonsTest, AChosenRatioKeepsHeightAndCentre) {
    start({100, 100, 299, 199});
    commands_.ratio = 1.5;
    click("cmdEditRatio");
    EXPECT_EQ(commands_.ratiosShown, std::vector{2.0});
    EXPECT_EQ(tool_.RectBound(), (Rect{125, 100, 274, 199}));
    EXPECT_EQ(undoSteps(), 1);
}

TEST_F(SetRatioGridButtonsTest, NoRatioOrTheSameOneChangesNothing) {
    start({100, 100, 299, 199});
    click("cmdEditRatio");
    commands_.ratio = 2;
    click("cmdEditRatio");
    EXPECT_EQ(tool_.RectBound(), (Rect{100, 100, 299, 199}));
    EXPECT_EQ(undoSteps(), 0);
}

TEST_F(SetRatioGridButtonsTest, ChosenPatternsAreAStepOfUndoAndShow) {
    start(plain);
    const int pictures = patternPictures();
    PatternList patterns;
    patterns[0] = {18, 1};
    commands_.patterns = patterns;
    commands_.tabLeft = 3;
    click("cmdSelectPattern");
    EXPECT_EQ(tool_.PatternList(), patterns);
    EXPECT_EQ(patternPictures(), pictures + 1);
    EXPECT_EQ(undoSteps(), 1);
    click("cmdSelectPattern");
    EXPECT_EQ(commands_.tabsOpened, (std::vector{0, 3}));
}

TEST_F(SetRatioGridButtonsTest, ACancelledChoiceOfPatternsLeavesTheStencil) {
    start(plain);
    const PatternList before = tool_.PatternList();
    const int pictures = patternPictures();
    click("cmdSelectPattern");
    EXPECT_EQ(tool_.PatternList(), before);
    EXPECT_EQ(patternPictures(), pictures);
    EXPECT_EQ(undoSteps(), 0);
}

TEST_F(SetRatioGridButtonsTest, ColourAndLineComeFromTheirDialogsAndAreNoStepsOfUndo) {
    start(plain);
    commands_.color = 0x123456;
    commands_.lineStyle = 4;
    click("cmdColor");
    click("cmdLineStyle");
    EXPECT_EQ(tool_.Color(), 0x123456);
    EXPECT_EQ(view_.buttons[StencilControl::cmdColor].back, 0x123456);
    EXPECT_EQ(tool_.LineWidth(), 4);
    EXPECT_EQ(undoSteps(), 0);
}

TEST_F(SetRatioGridButtonsTest, ThePauseButtonTurnsThePauseOver) {
    click("cmdPause");
    EXPECT_TRUE(panel_->Pause());
    click("cmdPause");
    EXPECT_FALSE(panel_->Pause());
}

TEST_F(SetRatioGridButtonsTest, TheRemovalMayDestroyThePanel) {
    view_.onRemove = [this] { panel_.reset(); };
    click("cmdDelete");
    EXPECT_EQ(view_.removeRequests, 1);
    EXPECT_EQ(panel_, nullptr);
}

TEST_F(SetRatioGridButtonsTest, ThePreviewOfTheMouseActionComesWithItsTimer) {
    hover(true);
    EXPECT_TRUE(previewIsComing());
    EXPECT_FALSE(tool_.PreviewMouseAction());
    panel_->timerTicked(PanelTimer::tmrDelayMousePreview);
    EXPECT_FALSE(previewIsComing());
    EXPECT_TRUE(tool_.PreviewMouseAction());
    hover(false);
    EXPECT_FALSE(tool_.PreviewMouseAction());
}

TEST_F(SetRatioGridButtonsTest, AMouseThatLeavesEarlySeesNoPreview) {
    hover(true);
    hover(false);
    EXPECT_FALSE(previewIsComing());
    EXPECT_FALSE(tool_.PreviewMouseAction());
}

TEST_F(SetRatioGridButtonsTest, TheMouseActionEndsItsPreview) {
    hover(true);
    panel_->timerTicked(PanelTimer::tmrDelayMousePreview);
    click("cmdSendMouseInput");
    EXPECT_EQ(commands_.mouseActions, std::vector<const ctlRatioGrid*>{&tool_});
    EXPECT_FALSE(tool_.PreviewMouseAction());
    EXPECT_FALSE(previewIsComing());
}

TEST_F(SetRatioGridButtonsTest, APausedPanelShowsNoPreview) {
    hover(true);
    panel_->timerTicked(PanelTimer::tmrDelayMousePreview);
    panel_->setPause(true);
    EXPECT_FALSE(tool_.PreviewMouseAction());
}

TEST_F(SetRatioGridButtonsTest, ThePictureHasBlackLinesOnGrey) {
    const auto pixels = view_.pixelsOf(StencilControl::imgPattern, {40, 40});
    EXPECT_EQ(pixels.at(0), 0xFF000000U);
    EXPECT_EQ(pixels.at(40 * 3 + 3), 0xFF686868U);
}

}  // namespace
}  // namespace ormala
