#include "modAPI/constants.h"
#include "modAPI/rectangles.h"
#include "stencil/StencilPanelFixture.h"

// The buttons of a stencil's panel.

namespace ormala {
namespace {

class StencilPanelButtonsTest : public StencilPanelFixture {};

constexpr Rect plain{100, 100, 300, 200};

TEST_F(StencilPanelButtonsTest, AClickIsOneStepOfUndo) {
    start(plain);
    click(7);
    EXPECT_EQ(tool_.RectBound(), (Rect{100, 100, 301, 200}));
    EXPECT_EQ(view_.texts["lblPositionRight"], "right = 301 ");
    EXPECT_EQ(undoSteps(), 1);
    panel_->Undo();
    EXPECT_EQ(tool_.RectBound(), plain);
}

TEST_F(StencilPanelButtonsTest, AWholeRunIsOneStepOfUndo) {
    start(plain);
    panel_->pressMove(1, 0);
    tick(10 + 30);
    panel_->release();
    EXPECT_EQ(tool_.RectBound().left, 131);
    EXPECT_EQ(undoSteps(), 1);
    panel_->Undo();
    EXPECT_EQ(tool_.RectBound(), plain);
}

TEST_F(StencilPanelButtonsTest, AModifierMovesByTheGridAndSlowly) {
    settings_.grid = {50, 50, 0, 0};
    start(plain);
    panel_->pressMove(1, modifier::alt);
    EXPECT_EQ(RectCenter(tool_.RectBound()), (Point{250, 150}));
    tick(10 + 4);
    panel_->release();
    EXPECT_EQ(RectCenter(tool_.RectBound()), (Point{350, 150}));
}

TEST_F(StencilPanelButtonsTest, ARunRefreshesMoreOftenThanADrag) {
    start(plain);
    later(1);
    panel_->pressMove(1, 0);
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

TEST_F(StencilPanelButtonsTest, AStepThatIsRefusedStoresNothing) {
    start({100, 100, 122, 200});
    click(5);
    EXPECT_EQ(tool_.RectBound(), (Rect{100, 100, 122, 200}));
    EXPECT_EQ(undoSteps(), 0);
    EXPECT_FALSE(view_.enabling.undo);
}

TEST_F(StencilPanelButtonsTest, TheSpaceBarStepsAtEachPressAndStoresAtTheKeyUp) {
    start(plain);
    panel_->pressMoveKey(3, 0);
    panel_->pressMoveKey(3, 0);
    tick(30);
    EXPECT_EQ(tool_.RectBound().top, 102);
    EXPECT_EQ(undoSteps(), 0);
    panel_->releaseKey();
    EXPECT_EQ(undoSteps(), 1);
    panel_->pressAngleKey(0, 0);
    panel_->releaseKey();
    EXPECT_NEAR(tool_.RotationAngle(), pi / 180, 1e-12);
    EXPECT_EQ(undoSteps(), 2);
}

TEST_F(StencilPanelButtonsTest, AKeyThatIsLetGoLeavesTheRunOfTheMouse) {
    start(plain);
    panel_->pressMove(1, 0);
    tick(11);
    panel_->pressMoveKey(3, 0);
    panel_->releaseKey();
    tick(1);
    EXPECT_EQ(tool_.RectBound().left, 103);
    EXPECT_EQ(tool_.RectBound().top, 100);
    EXPECT_EQ(undoSteps(), 0);
    panel_->release();
    EXPECT_EQ(undoSteps(), 1);
}

TEST_F(StencilPanelButtonsTest, ARunEndsWithItsPanel) {
    start(plain);
    panel_->pressMove(1, 0);
    tick(15);
    const Rect last = tool_.RectBound();
    panel_.reset();
    tick(15);
    EXPECT_EQ(tool_.RectBound(), last);
}

TEST_F(StencilPanelButtonsTest, ARunEndsWhenThePanelIsRemovedOrPaused) {
    start(plain);
    panel_->pressMove(1, 0);
    panel_->setHidden(true);
    tick(30);
    EXPECT_EQ(tool_.RectBound().left, 101);
    panel_->setHidden(false);
    panel_->pressMove(1, 0);
    panel_->setPause(true);
    tick(30);
    EXPECT_EQ(tool_.RectBound().left, 102);
    EXPECT_EQ(undoSteps(), 2);
}

TEST_F(StencilPanelButtonsTest, UndoDuringARunTakesTheRunBack) {
    start(plain);
    panel_->pressMove(1, 0);
    tick(15);
    panel_->Undo();
    EXPECT_EQ(tool_.RectBound(), plain);
    tick(30);
    EXPECT_EQ(tool_.RectBound(), plain);
}

TEST_F(StencilPanelButtonsTest, TheModifiersOfTheAngleChooseTheStep) {
    constexpr double degree = pi / 180;
    start(plain, 1);
    const auto after = [this](int index, int shift) {
        tool_.setRotationAngle(10 * degree);
        panel_->pressAngle(index, shift);
        panel_->release();
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

TEST_F(StencilPanelButtonsTest, CtrlAtTenDegreesGoesToEighteenAndTheOtherButtonToNine) {
    constexpr double degree = pi / 180;
    start(plain, 10 * degree);
    panel_->pressAngle(0, modifier::ctrl);
    panel_->release();
    EXPECT_NEAR(tool_.RotationAngle(), 18 * degree, 1e-9);
    panel_->pressAngle(1, modifier::ctrl);
    panel_->release();
    EXPECT_NEAR(tool_.RotationAngle(), 9 * degree, 1e-9);
}

TEST_F(StencilPanelButtonsTest, AngleZeroIsAStepOfUndo) {
    start(plain, 1);
    panel_->clickAngleZero(0);
    EXPECT_EQ(tool_.RotationAngle(), 0);
    later(1);
    panel_->clickAngleZero(modifier::ctrl);
    EXPECT_EQ(tool_.RotationAngle(), pi / 2);
    EXPECT_EQ(view_.texts["lblAngle1"], "90.0\u00b0 ");
    EXPECT_EQ(undoSteps(), 2);
}

TEST_F(StencilPanelButtonsTest, FullSizeFitsTheWorksheetUnturned) {
    start(plain, 1);
    panel_->clickFullSize();
    EXPECT_EQ(tool_.RectBound(), (Rect{0, 0, 999, 799}));
    EXPECT_EQ(tool_.RotationAngle(), 0);
    EXPECT_EQ(undoSteps(), 1);
}

TEST_F(StencilPanelButtonsTest, MoveCenterKeepsSizeAndAngle) {
    settings_.grid = {300, 300, 0, 0};
    start(plain, 1);
    panel_->clickMoveCenter(modifier::shift);
    EXPECT_EQ(tool_.RectBound(), (Rect{400, 350, 600, 450}));
    EXPECT_EQ(tool_.RotationAngle(), 1);
    panel_->clickMoveCenter(modifier::ctrl);
    EXPECT_EQ(RectCenter(tool_.RectBound()), (Point{600, 300}));
    EXPECT_EQ(undoSteps(), 2);
}

TEST_F(StencilPanelButtonsTest, AChosenRatioKeepsHeightAndCentre) {
    start({100, 100, 299, 199});
    commands_.ratio = 1.5;
    panel_->clickEditRatio();
    EXPECT_EQ(commands_.ratiosShown, std::vector{2.0});
    EXPECT_EQ(tool_.RectBound(), (Rect{125, 100, 274, 199}));
    EXPECT_EQ(undoSteps(), 1);
}

TEST_F(StencilPanelButtonsTest, NoRatioOrTheSameOneChangesNothing) {
    start({100, 100, 299, 199});
    panel_->clickEditRatio();
    commands_.ratio = 2;
    panel_->clickEditRatio();
    EXPECT_EQ(tool_.RectBound(), (Rect{100, 100, 299, 199}));
    EXPECT_EQ(undoSteps(), 0);
}

TEST_F(StencilPanelButtonsTest, ChosenPatternsAreAStepOfUndoAndShow) {
    start(plain);
    view_.patternPictures = 0;
    PatternList patterns;
    patterns[0] = {18, 1};
    commands_.patterns = patterns;
    commands_.tabLeft = 3;
    panel_->clickSelectPattern();
    EXPECT_EQ(tool_.PatternList(), patterns);
    EXPECT_EQ(view_.patternPictures, 1);
    EXPECT_EQ(undoSteps(), 1);
    panel_->clickSelectPattern();
    EXPECT_EQ(commands_.tabsOpened, (std::vector{0, 3}));
}

TEST_F(StencilPanelButtonsTest, ACancelledChoiceOfPatternsLeavesTheStencil) {
    start(plain);
    const PatternList before = tool_.PatternList();
    view_.patternPictures = 0;
    panel_->clickSelectPattern();
    EXPECT_EQ(tool_.PatternList(), before);
    EXPECT_EQ(view_.patternPictures, 0);
    EXPECT_EQ(undoSteps(), 0);
}

TEST_F(StencilPanelButtonsTest, ColourAndLineComeFromTheirDialogsAndAreNoStepsOfUndo) {
    start(plain);
    commands_.color = 0x123456;
    commands_.lineStyle = 4;
    panel_->clickColor();
    panel_->clickLineStyle();
    EXPECT_EQ(tool_.Color(), 0x123456);
    EXPECT_EQ(view_.buttons["cmdColor"].back, 0x123456);
    EXPECT_EQ(tool_.LineWidth(), 4);
    EXPECT_EQ(view_.lineStyle, 4);
    EXPECT_EQ(undoSteps(), 0);
}

TEST_F(StencilPanelButtonsTest, ThePauseButtonTurnsThePauseOver) {
    panel_->togglePause();
    EXPECT_TRUE(panel_->Pause());
    panel_->togglePause();
    EXPECT_FALSE(panel_->Pause());
}

TEST_F(StencilPanelButtonsTest, TheRemovalMayDestroyThePanel) {
    view_.onRemove = [this] { panel_.reset(); };
    panel_->remove();
    EXPECT_EQ(view_.removeRequests, 1);
    EXPECT_EQ(panel_, nullptr);
}

TEST_F(StencilPanelButtonsTest, ThePreviewOfTheMouseActionComesWithItsTimer) {
    panel_->hoverSendMouseInput(true);
    EXPECT_TRUE(commands_.previewTimerRuns);
    EXPECT_FALSE(tool_.PreviewMouseAction());
    panel_->showMousePreview();
    EXPECT_FALSE(commands_.previewTimerRuns);
    EXPECT_TRUE(tool_.PreviewMouseAction());
    panel_->hoverSendMouseInput(false);
    EXPECT_FALSE(tool_.PreviewMouseAction());
}

TEST_F(StencilPanelButtonsTest, AMouseThatLeavesEarlySeesNoPreview) {
    panel_->hoverSendMouseInput(true);
    panel_->hoverSendMouseInput(false);
    EXPECT_FALSE(commands_.previewTimerRuns);
    EXPECT_FALSE(tool_.PreviewMouseAction());
}

TEST_F(StencilPanelButtonsTest, TheMouseActionEndsItsPreview) {
    panel_->hoverSendMouseInput(true);
    panel_->showMousePreview();
    panel_->clickSendMouseInput();
    EXPECT_EQ(commands_.mouseActions, std::vector<const ctlRatioGrid*>{&tool_});
    EXPECT_FALSE(tool_.PreviewMouseAction());
    EXPECT_FALSE(commands_.previewTimerRuns);
}

TEST_F(StencilPanelButtonsTest, APausedPanelShowsNoPreview) {
    panel_->hoverSendMouseInput(true);
    panel_->showMousePreview();
    panel_->setPause(true);
    EXPECT_FALSE(tool_.PreviewMouseAction());
}

TEST_F(StencilPanelButtonsTest, ThePictureHasBlackLinesOnGrey) {
    const PixelImage picture = panel_->patternPicture({40, 40});
    EXPECT_EQ(picture.argb.at(0), 0xFF000000U);
    EXPECT_EQ(picture.argb.at(40 * 3 + 3), 0xFF686868U);
}

}  // namespace
}  // namespace ormala
