#include "worksheet/Sheet.h"

#include "worksheet/SheetFixture.h"

namespace ormala {
namespace {

/// Two stencils and a measurement; the window has the focus, and so has the first tool.
class SheetFocusTest : public SheetFixture {
  protected:
    SheetFocusTest() { sheet_.windowGotFocus(); }

    FakeOverlayItem& first_ = add(stencil);
    FakeOverlayItem& measure_ = add(measurement);
    FakeOverlayItem& second_ = add(stencil);
};

TEST_F(SheetFocusTest, TheUsersChangeOfFocusSelects) {
    sheet_.giveFocus(second_);
    EXPECT_EQ(sheet_.focused(), &second_);
    EXPECT_EQ(sheet_.selected(), &second_);
    EXPECT_TRUE(second_.focused);
    EXPECT_FALSE(first_.focused);
    EXPECT_EQ(port_.remembered, 0);
}

TEST_F(SheetFocusTest, TheFormerToolLosesTheFocus) {
    sheet_.giveFocus(second_);
    sheet_.giveFocus(measure_);
    EXPECT_FALSE(second_.focused);
    EXPECT_TRUE(measure_.focused);
}

TEST_F(SheetFocusTest, TheToolWithTheFocusDoesNotGetItAgain) {
    sheet_.giveFocus(second_);
    log_.clear();
    sheet_.giveFocus(second_);
    EXPECT_TRUE(log_.empty());
}

TEST_F(SheetFocusTest, AHiddenToolDoesNotTakeTheFocus) {
    sheet_.setVisible(measure_, false);
    sheet_.giveFocus(measure_);
    EXPECT_EQ(sheet_.focused(), &first_);
    EXPECT_FALSE(measure_.focused);
}

TEST_F(SheetFocusTest, AnActivationGivesTheFocusToTheSelectedToolInsteadOfTheRememberedOne) {
    sheet_.giveFocus(second_);
    sheet_.windowLostFocus();
    sheet_.SelectControl(measure_);
    port_.inFront = false;
    sheet_.windowGotFocus();
    EXPECT_EQ(sheet_.focused(), &measure_);
    EXPECT_EQ(sheet_.selected(), &measure_);
    EXPECT_TRUE(measure_.focused);
    EXPECT_FALSE(second_.focused);
    EXPECT_GE(port_.remembered, 1);
}

TEST_F(SheetFocusTest, AnActivationSelectsNothing) {
    sheet_.windowLostFocus();
    sheet_.SelectControl(second_);
    sheet_.RemoveControl(second_);
    ASSERT_EQ(sheet_.selected(), nullptr);
    port_.inFront = false;
    sheet_.windowGotFocus();
    EXPECT_EQ(sheet_.selected(), nullptr);
    EXPECT_EQ(sheet_.focused(), &first_);
    EXPECT_TRUE(first_.focused);
    EXPECT_EQ(port_.remembered, 1);
}

TEST_F(SheetFocusTest, AnActivationWithTheSelectedToolRememberedGivesItTheFocusOnce) {
    sheet_.giveFocus(second_);
    sheet_.windowLostFocus();
    EXPECT_FALSE(second_.focused);
    log_.clear();
    port_.inFront = false;
    sheet_.windowGotFocus();
    EXPECT_EQ(log_, ToolLog{"stencil 1 gotFocus"});
    EXPECT_TRUE(second_.focused);
}

TEST_F(SheetFocusTest, TheFocusOfAWindowWithoutToolsIsNobodys) {
    for (const OverlayItem* item : {&first_, &second_, &measure_}) {
        sheet_.setVisible(*item, false);
    }
    sheet_.windowLostFocus();
    sheet_.windowGotFocus();
    EXPECT_EQ(sheet_.focused(), nullptr);
    sheet_.focusNext(false);
    EXPECT_EQ(sheet_.focused(), nullptr);
}

TEST_F(SheetFocusTest, TheSelectedToolGetsTheFocusOnRequest) {
    sheet_.SelectControl(measure_);
    sheet_.SetFocusToSelectedControl();
    EXPECT_EQ(sheet_.focused(), &measure_);
    EXPECT_TRUE(measure_.focused);
}

TEST_F(SheetFocusTest, TheSelectedToolGetsAFocusThatIsFree) {
    sheet_.giveFocus(second_);
    sheet_.SelectControl(measure_);
    sheet_.giveFreeFocusToSelectedControl();
    EXPECT_EQ(sheet_.focused(), &second_) << "it has one";
    sheet_.RemoveControl(second_);
    sheet_.SelectControl(measure_);
    sheet_.giveFreeFocusToSelectedControl();
    EXPECT_EQ(sheet_.focused(), &measure_);
    sheet_.putAside(measure_);
    sheet_.windowLostFocus();
    sheet_.SelectControl(first_);
    sheet_.giveFreeFocusToSelectedControl();
    EXPECT_EQ(sheet_.focused(), nullptr) << "the keyboard is elsewhere";
}

TEST_F(SheetFocusTest, WithoutASelectedToolTheRequestChangesNothing) {
    sheet_.giveFocus(second_);
    sheet_.RemoveControl(second_);
    log_.clear();
    sheet_.SetFocusToSelectedControl();
    EXPECT_EQ(sheet_.focused(), nullptr);
    EXPECT_TRUE(log_.empty());
}

TEST_F(SheetFocusTest, AHiddenSelectedToolDoesNotGetTheFocus) {
    sheet_.SelectControl(first_);
    sheet_.putAside(first_);
    ASSERT_EQ(sheet_.selected(), &first_);
    log_.clear();
    sheet_.SetFocusToSelectedControl();
    EXPECT_NE(sheet_.focused(), &first_);
    EXPECT_TRUE(log_.empty());
}

TEST_F(SheetFocusTest, AHiddenToolKeepsNoFocus) {
    sheet_.giveFocus(first_);
    sheet_.putAside(first_);
    EXPECT_EQ(sheet_.focused(), nullptr);
    EXPECT_FALSE(first_.focused);
}

TEST_F(SheetFocusTest, ADestroyedToolKeepsNoFocus) {
    sheet_.giveFocus(second_);
    sheet_.RemoveControl(second_);
    EXPECT_EQ(sheet_.focused(), nullptr);
}

TEST_F(SheetFocusTest, AllOthersLoseTheFocusButTheGivenOne) {
    const int former = first_.focusLosses;
    sheet_.RemoveFocusFromOtherControls(first_);
    EXPECT_EQ(first_.focusLosses, former);
    EXPECT_GE(second_.focusLosses, 1);
    EXPECT_GE(measure_.focusLosses, 1);
}

TEST_F(SheetFocusTest, TabWalksThroughTheArraysInARing) {
    sheet_.giveFocus(first_);
    sheet_.focusNext(false);
    EXPECT_EQ(sheet_.focused(), &second_);
    sheet_.focusNext(false);
    EXPECT_EQ(sheet_.focused(), &measure_);
    sheet_.focusNext(false);
    EXPECT_EQ(sheet_.focused(), &first_);
    EXPECT_EQ(sheet_.selected(), &first_);
}

TEST_F(SheetFocusTest, ShiftTabWalksTheRingBackwards) {
    sheet_.giveFocus(first_);
    sheet_.focusNext(true);
    EXPECT_EQ(sheet_.focused(), &measure_);
    sheet_.focusNext(true);
    EXPECT_EQ(sheet_.focused(), &second_);
    sheet_.focusNext(true);
    EXPECT_EQ(sheet_.focused(), &first_);
}

TEST_F(SheetFocusTest, TabSkipsHiddenTools) {
    sheet_.giveFocus(first_);
    sheet_.setVisible(second_, false);
    sheet_.focusNext(false);
    EXPECT_EQ(sheet_.focused(), &measure_);
}

TEST_F(SheetFocusTest, TabKeepsTheOrderOfTheArraysWhateverIsInFront) {
    sheet_.SelectControl(first_);
    sheet_.giveFocus(measure_);
    sheet_.focusNext(false);
    EXPECT_EQ(sheet_.focused(), &first_);
}

TEST_F(SheetFocusTest, WithoutAFocusTabStartsAtItsEndOfTheRing) {
    sheet_.giveFocus(second_);
    sheet_.RemoveControl(second_);
    sheet_.focusNext(true);
    EXPECT_EQ(sheet_.focused(), &measure_);
    sheet_.setVisible(measure_, false);
    sheet_.focusNext(false);
    EXPECT_EQ(sheet_.focused(), &first_);
}

TEST_F(SheetFocusTest, WhileItIsHeldTheToolsLearnOfNoFocusOfTheWindow) {
    sheet_.giveFocus(second_);
    const int losses = second_.focusLosses;
    log_.clear();
    sheet_.setFocusHeld(true, true);
    sheet_.windowLostFocus();
    sheet_.windowGotFocus();
    sheet_.windowLostFocus();
    EXPECT_EQ(second_.focusLosses, losses);
    EXPECT_TRUE(log_.empty());
}

TEST_F(SheetFocusTest, AtTheEndOfTheHoldTheToolsLearnWhoHasTheFocusThen) {
    sheet_.giveFocus(second_);
    const int losses = second_.focusLosses;
    sheet_.setFocusHeld(true, true);
    sheet_.windowLostFocus();
    sheet_.setFocusHeld(false, false);
    EXPECT_EQ(second_.focusLosses, losses + 1);
    EXPECT_FALSE(second_.focused);
    sheet_.setFocusHeld(true, false);
    sheet_.windowGotFocus();
    EXPECT_FALSE(second_.focused);
    sheet_.setFocusHeld(false, true);
    EXPECT_TRUE(second_.focused);
}

TEST_F(SheetFocusTest, AHoldThatEndsAsItBeganTellsNothing) {
    sheet_.giveFocus(second_);
    log_.clear();
    sheet_.setFocusHeld(true, true);
    sheet_.windowLostFocus();
    sheet_.windowGotFocus();
    sheet_.setFocusHeld(false, true);
    EXPECT_TRUE(log_.empty());
    EXPECT_TRUE(second_.focused);
}

}  // namespace
}  // namespace ormala
