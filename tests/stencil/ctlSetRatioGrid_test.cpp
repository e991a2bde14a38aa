#include "stencil/ctlSetRatioGrid.h"

#include "pictures/linePicture.h"
#include "stencil/SetRatioGridFixture.h"

namespace ormala {
namespace {

constexpr Color onFace = roleColor(rgb(187, 168, 0), ColorRole::highlight);
constexpr Color offFace = roleColor(rgb(112, 112, 112), ColorRole::buttonFace);

class SetRatioGridTest : public SetRatioGridFixture {};

TEST_F(SetRatioGridTest, ShowsTheToolThatItWasGiven) {
    EXPECT_EQ(view_.texts.size(), 13U);
    EXPECT_EQ(view_.look, unselectedLook);
    EXPECT_EQ(&panel_->RefControlControl(), &tool_);
    EXPECT_FALSE(panel_->Hidden());
}

TEST_F(SetRatioGridTest, ABurstOfChangesWritesTheReadOutsOnceAndOnceAfterIt) {
    view_.refreshes = 0;
    view_.timerStarts = 0;
    for (int i = 0; i < 20; ++i) {
        change({0, 0, 100.0 + i, 100});
        later(0.0025F);
    }
    EXPECT_EQ(view_.refreshes, 1);
    EXPECT_EQ(view_.texts[StencilControl::lblPositionRight], "right = 100 ");
    EXPECT_TRUE(view_.refreshTimerRuns());
    EXPECT_EQ(view_.timerStarts, 19);
    later(0.11F);
    panel_->ShowAllProps(true);
    EXPECT_EQ(view_.refreshes, 2);
    EXPECT_EQ(view_.texts[StencilControl::lblPositionRight], "right = 119 ");
    EXPECT_FALSE(view_.refreshTimerRuns());
}

TEST_F(SetRatioGridTest, AHeldButtonRefreshesMoreOften) {
    press("cmdMove(1)");
    later(1);
    view_.refreshes = 0;
    for (int i = 0; i < 4; ++i) {
        change({0, 0, 100.0 + i, 100});
        later(0.05F);
    }
    EXPECT_EQ(view_.refreshes, 4);
    panel_->release();
    change({0, 0, 50, 50});
    EXPECT_EQ(view_.refreshes, 4);
}

TEST_F(SetRatioGridTest, ThePanelOfTheSelectedToolStandsOut) {
    panel_->setSelected(true);
    EXPECT_TRUE(tool_.Selected());
    EXPECT_TRUE(panel_->Selected());
    EXPECT_EQ(view_.look, selectedLook);
    EXPECT_EQ(view_.selections, 1);
    later(1);
    tool_.events().change.raise();
    EXPECT_EQ(view_.selections, 1);
    later(1);
    panel_->setSelected(false);
    EXPECT_EQ(view_.look, unselectedLook);
    EXPECT_EQ(view_.selections, 1);
}

TEST_F(SetRatioGridTest, PassesItsLookOnToTheToolAndToItsButtons) {
    panel_->setColor(0x102030);
    panel_->setLineWidth(5);
    EXPECT_EQ(tool_.Color(), 0x102030);
    EXPECT_EQ(tool_.LineWidth(), 5);
    EXPECT_EQ(view_.buttons[StencilControl::cmdColor].back, 0x102030);
    EXPECT_EQ(view_.pixelsOf(CommonControl::cmdLineStyle, {32, 16}),
              drawLinePicture(5, {32, 16}).argb);
}

TEST_F(SetRatioGridTest, PauseHidesTheToolAndDisablesThePanel) {
    turnTo(1);
    panel_->setPause(true);
    EXPECT_FALSE(visible_[&tool_]);
    EXPECT_EQ(view_.enabling, (PanelEnabling{false, false, false, false}));
    EXPECT_EQ(view_.buttons[CommonControl::cmdPause],
              (ButtonLook{offFace, true, std::nullopt, Picture::hide}));
    later(1);
    panel_->ShowAllProps(true);
    EXPECT_EQ(view_.enabling, (PanelEnabling{false, false, false, false}));
    panel_->setPause(false);
    EXPECT_TRUE(visible_[&tool_]);
    EXPECT_EQ(view_.enabling, (PanelEnabling{true, true, true, false}));
    EXPECT_EQ(view_.buttons[CommonControl::cmdPause],
              (ButtonLook{onFace, false, std::nullopt, Picture::show}));
}

TEST_F(SetRatioGridTest, ANewPanelShowsTheOpenEyeAtOnce) {
    EXPECT_EQ(view_.buttons[CommonControl::cmdPause],
              (ButtonLook{onFace, false, std::nullopt, Picture::show}));
}

TEST_F(SetRatioGridTest, UndoAndRedoLeaveAHiddenToolAlone) {
    turnTo(1);
    panel_->setPause(true);
    panel_->Undo();
    EXPECT_EQ(tool_.RotationAngle(), 1);
    panel_->setPause(false);
    panel_->Undo();
    panel_->setPause(true);
    panel_->Redo();
    EXPECT_EQ(tool_.RotationAngle(), 0);
}

TEST_F(SetRatioGridTest, UndoAndRedoShowTheStateThatCameBack) {
    turnTo(pi / 2);
    EXPECT_EQ(view_.enabling, (PanelEnabling{true, true, true, false}));
    panel_->Undo();
    EXPECT_EQ(tool_.RotationAngle(), 0);
    EXPECT_EQ(view_.enabling, (PanelEnabling{true, true, false, true}));
    later(1);
    panel_->Redo();
    EXPECT_EQ(tool_.RotationAngle(), pi / 2);
    EXPECT_EQ(view_.texts[StencilControl::lblAngle1], "90.0\u00b0 ");
    EXPECT_EQ(view_.enabling, (PanelEnabling{true, true, true, false}));
}

TEST_F(SetRatioGridTest, TheFirstStateIsNoStepOfUndo) {
    turnTo(1);
    panel_->InitializeFinished();
    EXPECT_EQ(view_.enabling, (PanelEnabling{true, true, false, false}));
    EXPECT_FALSE(tool_.History().UndoPossible());
}

TEST_F(SetRatioGridTest, TheDeleteKeyWithoutModifiersAsksForTheRemoval) {
    tool_.keyDown(key::remove, modifier::shift);
    tool_.keyDown(key::remove, modifier::ctrl);
    EXPECT_EQ(view_.removeRequests, 0);
    tool_.keyDown(key::remove, 0);
    EXPECT_EQ(view_.removeRequests, 1);
}

TEST_F(SetRatioGridTest, TheEndKeyBringsTheToolBackToItsDefaultPlace) {
    tool_.CenterToScreen(false, 0, false, true);
    const Rect middle = tool_.RectBound();
    change({0, 0, 50, 50});
    turnTo(1);
    tool_.keyDown(key::end, modifier::alt);
    EXPECT_EQ(tool_.RotationAngle(), 1);
    tool_.keyDown(key::end, 0);
    EXPECT_EQ(tool_.RotationAngle(), 0);
    EXPECT_EQ(tool_.RectBound(), middle);
    panel_->Undo();
    EXPECT_EQ(tool_.RotationAngle(), 1);
}

TEST_F(SetRatioGridTest, TheRightButtonOpensTheMenu) {
    tool_.events().mouseUp.raise({mouseButton::left, 0, 1, 1});
    EXPECT_TRUE(view_.menus.empty());
    tool_.events().mouseUp.raise({mouseButton::right, 0, 1, 1});
    EXPECT_EQ(view_.menus, std::vector<std::string>{"Remove stencil tool "});
}

TEST(ColorButtonLook, ADarkColourHasAWhiteText) {
    EXPECT_EQ(colorButtonLook(rgb(0, 0, 128)).text, rgb(255, 255, 255));
    EXPECT_EQ(colorButtonLook(rgb(255, 255, 0)).text, rgb(0, 0, 0));
    EXPECT_EQ(colorButtonLook(rgb(0, 0, 128)).back, rgb(0, 0, 128));
}

TEST_F(SetRatioGridTest, ReadsOutItsValuesByTheNamesOfTheirRows) {
    start({100, 50, 300, 183});
    EXPECT_EQ(panel_->readOuts(),
              "Center X\t199.5\r\n"
              "Center Y\t116.0\r\n"
              "Size W\t201\r\n"
              "Size H\t134\r\n"
              "Position left\t100\r\n"
              "Position right\t300\r\n"
              "Position top\t50\r\n"
              "Position bottom\t183\r\n"
              "Angle\t0.0°\r\n"
              "Angle\t0.000 rad\r\n"
              "Ratio W:H\t1.500\r\n"
              "Ratio H:W\t0.6667\r\n"
              "Ratio\t3:2  (chemical photo)");
}

TEST_F(SetRatioGridTest, ReadsOutNoLineForARatioWithoutAName) {
    start({100, 50, 300, 150});
    EXPECT_EQ(panel_->readOuts().substr(panel_->readOuts().rfind("Ratio")), "Ratio H:W\t0.5025");
}

TEST_F(SetRatioGridTest, ReadsOutTheToolAsItIsWhileThePanelStillWaits) {
    change({100, 50, 300, 183});
    change({100, 50, 310, 183});
    EXPECT_NE(panel_->readOuts().find("Size W\t211"), std::string::npos);
}

}  // namespace
}  // namespace ormala
