#include "app/FocusMemory.h"

#include <gtest/gtest.h>

namespace ormala {
namespace {

/// What the system tells, in its order, of the windows of a program.
class FocusMemoryTest : public testing::Test {
  protected:
    FocusMemory::Window control() const { return &control_; }

    void leaveForAnotherProgram() {
        memory_.controlDeactivated();
        memory_.programActivated(false);
    }
    void comeBackByPress(bool onPanel) {
        memory_.pressed(onPanel);
        memory_.programActivated(true);
        memory_.controlActivated(control(), false);
    }
    void comeBackThroughTheWorksheet() {
        memory_.programActivated(true);
        memory_.foreground().LastForegroundWindow = &worksheet_;
    }
    /// The window gets the keyboard and, if it keeps it, the pressed panel takes it.
    bool pressOnPanelSelects() {
        EXPECT_FALSE(memory_.passesKeyboardOn());
        return memory_.panelIsChosen(control());
    }
    /// In a window that is active already.
    bool furtherPressSelects() {
        memory_.pressed(true);
        return memory_.panelIsChosen(control());
    }

    int control_ = 0;
    int worksheet_ = 0;
    FocusMemory memory_;
};

TEST_F(FocusMemoryTest, APressOnAPanelSelectsWhileTheProgramIsInFront) {
    memory_.programActivated(true);
    memory_.controlActivated(control(), false);
    EXPECT_TRUE(furtherPressSelects());
    EXPECT_TRUE(furtherPressSelects());
}

TEST_F(FocusMemoryTest, ThePressOnAPanelThatBringsTheProgramBackSelectsNothing) {
    leaveForAnotherProgram();
    comeBackByPress(true);
    EXPECT_FALSE(pressOnPanelSelects());
    EXPECT_TRUE(furtherPressSelects());
}

TEST_F(FocusMemoryTest, APressBesideThePanelsSwallowsNoLaterOne) {
    leaveForAnotherProgram();
    comeBackByPress(false);
    EXPECT_TRUE(memory_.passesKeyboardOn());
    EXPECT_TRUE(furtherPressSelects());
}

TEST_F(FocusMemoryTest, ReturningByKeysGivesThePanelTheKeyboardAndSwallowsNoPress) {
    // The last press before was on a panel of the active window.
    memory_.controlActivated(control(), true);
    ASSERT_TRUE(furtherPressSelects());
    leaveForAnotherProgram();
    memory_.programActivated(true);
    memory_.controlActivated(control(), false);
    EXPECT_TRUE(memory_.passesKeyboardOn());
    EXPECT_TRUE(furtherPressSelects());
}

TEST_F(FocusMemoryTest, ReturningThroughTheWorksheetSwallowsNoPressOnAPanel) {
    leaveForAnotherProgram();
    comeBackThroughTheWorksheet();
    memory_.pressed(true);
    memory_.controlActivated(control(), true);
    EXPECT_TRUE(pressOnPanelSelects());
}

TEST_F(FocusMemoryTest, ReturningThroughAFrameThatTellsNothingSwallowsNoPressOnAPanel) {
    leaveForAnotherProgram();
    memory_.programActivated(true);
    memory_.pressed(true);
    memory_.controlActivated(control(), true);
    EXPECT_TRUE(pressOnPanelSelects());
}

TEST_F(FocusMemoryTest, APressThatComesFromAnotherWindowOfTheProgramSelects) {
    memory_.controlActivated(control(), true);
    memory_.controlDeactivated();
    memory_.foreground().LastForegroundWindow = &worksheet_;
    memory_.pressed(true);
    memory_.controlActivated(control(), true);
    EXPECT_TRUE(pressOnPanelSelects());
}

TEST_F(FocusMemoryTest, KeyboardGoesToThePanelAgainAfterAPressOnAnother) {
    memory_.controlActivated(control(), true);
    memory_.pressed(true);
    EXPECT_TRUE(memory_.passesKeyboardOn()) << "that press took it already";
}

TEST_F(FocusMemoryTest, WorksheetIsNoLongerInFrontOnceAPanelHasTheKeyboard) {
    memory_.foreground().LastForegroundWindow = &worksheet_;
    EXPECT_FALSE(memory_.panelIsChosen(control()));
    EXPECT_EQ(memory_.foreground().LastForegroundWindow, control());
}

}  // namespace
}  // namespace ormala
