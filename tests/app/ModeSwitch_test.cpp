#include "app/ModeSwitch.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ormala {
namespace {

std::string text(Mode mode) {
    return std::to_string(numberOf(mode));
}

std::string text(bool value) {
    return value ? "yes" : "no";
}

/// Notes what is asked of the windows, in its order.
class NotedWindows : public ModePort {
  public:
    void SyncModeButtons(Mode mode, bool worksheetMaxSized) override {
        steps.push_back("buttons " + text(mode) + " " + text(worksheetMaxSized));
    }
    void refresh() override { steps.emplace_back("refresh"); }
    void AdjustFormHeight(Mode mode, Mode former) override {
        steps.push_back("height " + text(former) + " to " + text(mode));
    }
    void keyboardToControlWindow() override { steps.emplace_back("keyboard to control"); }
    void keyboardToProgramBelow() override { steps.emplace_back("keyboard below"); }
    [[nodiscard]] bool MaxSized() const override { return maxSized; }
    void showWorksheet(const ModeWindows& windows) override {
        steps.push_back("worksheet " + text(windows.worksheet) + " clickable " +
                        text(windows.clickable) + " frame " + text(windows.frame));
    }
    void showMode(Mode mode, bool minimise) override {
        steps.push_back("show " + text(mode) + (minimise ? " minimised" : ""));
    }

    std::vector<std::string> steps;
    bool maxSized = false;
};

using Steps = std::vector<std::string>;

class ModeSwitchTest : public testing::Test {
  protected:
    Steps stepsOf(Mode mode, bool minimise = false) {
        windows_.steps.clear();
        modes_.SetMode(mode, minimise);
        return windows_.steps;
    }
    void keepBorder(bool kept) {
        view_.set([kept](Options& options) { options.templateWithBorder = kept; });
    }

    NotedWindows windows_;
    ViewState view_;
    ModeSwitch modes_{windows_, view_};
};

TEST_F(ModeSwitchTest, EditGoesItsStepsInTheirOrder) {
    modes_.SetMode(Mode::pause, false);
    EXPECT_EQ(stepsOf(Mode::edit), (Steps{"buttons 0 no", "refresh", "height 2 to 0",
                                          "worksheet yes clickable yes frame yes", "show 0"}));
}

TEST_F(ModeSwitchTest, TellsThatAChangeIsComplete) {
    const auto subscription =
        modes_.switched.subscribe([this] { windows_.steps.emplace_back("switched"); });
    EXPECT_EQ(stepsOf(Mode::edit).back(), "switched");
    EXPECT_EQ(stepsOf(Mode::pause).back(), "switched");
}

TEST_F(ModeSwitchTest, TemplateGoesItsStepsInTheirOrder) {
    EXPECT_EQ(stepsOf(Mode::templateMode),
              (Steps{"buttons 1 no", "refresh", "height 0 to 1", "keyboard to control",
                     "worksheet yes clickable no frame no", "show 1", "keyboard below"}));
}

TEST_F(ModeSwitchTest, PauseGoesItsStepsInTheirOrder) {
    EXPECT_EQ(stepsOf(Mode::pause),
              (Steps{"buttons 2 no", "refresh", "height 0 to 2", "keyboard to control",
                     "worksheet no clickable no frame no", "show 2", "keyboard below"}));
}

TEST_F(ModeSwitchTest, AMinimisedControlWindowGetsNoKeyboard) {
    EXPECT_EQ(stepsOf(Mode::pause, true),
              (Steps{"buttons 2 no", "refresh", "height 0 to 2",
                     "worksheet no clickable no frame no", "show 2 minimised", "keyboard below"}));
}

TEST_F(ModeSwitchTest, AModeThatIsThereAlreadyRepeatsTheWork) {
    EXPECT_EQ(stepsOf(Mode::edit), (Steps{"buttons 0 no", "refresh", "height 0 to 0",
                                          "worksheet yes clickable yes frame yes", "show 0"}));
}

TEST_F(ModeSwitchTest, AFullScreenWorksheetHasNoFrameAndItsButton) {
    windows_.maxSized = true;
    EXPECT_EQ(stepsOf(Mode::edit),
              (Steps{"buttons 0 no", "refresh", "height 0 to 0",
                     "worksheet yes clickable yes frame no", "buttons 0 yes", "show 0"}));
    EXPECT_TRUE(modes_.WorksheetMaxSized());
}

TEST_F(ModeSwitchTest, TemplateModeKeepsTheFrameIfTheUserWantsIt) {
    keepBorder(true);
    EXPECT_EQ(stepsOf(Mode::templateMode)[4], "worksheet yes clickable no frame yes");
}

TEST_F(ModeSwitchTest, AFullScreenWorksheetComesBackInTemplateModeOnlyWithTheBorder) {
    windows_.maxSized = true;
    modes_.SetMode(Mode::templateMode, false);
    EXPECT_FALSE(modes_.WorksheetMaxSized());
    keepBorder(true);
    modes_.SetMode(Mode::templateMode, false);
    EXPECT_TRUE(modes_.WorksheetMaxSized());
}

TEST_F(ModeSwitchTest, WhatIsNoModeChangesNoWindowAndIsKept) {
    const Mode none = static_cast<Mode>(7);
    EXPECT_EQ(stepsOf(none), (Steps{"buttons 7 no", "refresh", "height 0 to 7",
                                    "keyboard to control", "show 7", "keyboard below"}));
    EXPECT_EQ(modes_.GetMode(), none);
}

TEST_F(ModeSwitchTest, TheNewModeIsKnownOnlyBeforeItIsShown) {
    struct Watch : NotedWindows {
        void showWorksheet(const ModeWindows&) override { atWorksheet = modes->GetMode(); }
        void showMode(Mode, bool) override { atShow = modes->GetMode(); }
        ModeSwitch* modes = nullptr;
        Mode atWorksheet = Mode::pause;
        Mode atShow = Mode::pause;
    };
    Watch watch;
    ModeSwitch modes(watch, view_);
    watch.modes = &modes;
    modes.SetMode(Mode::templateMode, false);
    EXPECT_EQ(watch.atWorksheet, Mode::edit);
    EXPECT_EQ(watch.atShow, Mode::templateMode);
}

TEST_F(ModeSwitchTest, ACommandOfAModeLeadsThere) {
    EXPECT_TRUE(modes_.execute(Command::pauseAndMinimise));
    EXPECT_EQ(modes_.GetMode(), Mode::pause);
    EXPECT_EQ(windows_.steps[4], "show 2 minimised");
    EXPECT_FALSE(modes_.execute(Command::save));
}

TEST_F(ModeSwitchTest, AChangedBorderTakesEffectInTemplateModeAtOnce) {
    modes_.SetMode(Mode::templateMode, false);
    keepBorder(true);
    windows_.steps.clear();
    modes_.refreshTemplateMode();
    ASSERT_EQ(windows_.steps.size(), 7U);
    EXPECT_EQ(windows_.steps[4], "worksheet yes clickable no frame yes");
}

TEST_F(ModeSwitchTest, AChangedBorderDoesNothingInTheOtherModes) {
    for (const Mode mode : {Mode::edit, Mode::pause}) {
        modes_.SetMode(mode, false);
        windows_.steps.clear();
        modes_.refreshTemplateMode();
        EXPECT_EQ(windows_.steps, Steps{});
    }
}

TEST_F(ModeSwitchTest, AWorksheetThatComesToFillItsScreenLightsItsButtonOnce) {
    windows_.maxSized = true;
    modes_.worksheetResized();
    modes_.worksheetResized();
    EXPECT_EQ(windows_.steps, Steps{"buttons 0 yes"});
    windows_.maxSized = false;
    modes_.worksheetResized();
    EXPECT_FALSE(modes_.WorksheetMaxSized());
}

TEST_F(ModeSwitchTest, ASizeThatComesDuringAChangeIsThatOfTheNewMode) {
    struct Resizing : NotedWindows {
        void showWorksheet(const ModeWindows&) override { modes->worksheetResized(); }
        ModeSwitch* modes = nullptr;
    };
    Resizing windows;
    windows.maxSized = true;
    ModeSwitch modes(windows, view_);
    windows.modes = &modes;
    modes.SetMode(Mode::pause, false);
    EXPECT_EQ(windows.steps, (Steps{"buttons 2 no", "refresh", "height 0 to 2",
                                    "keyboard to control", "show 2", "keyboard below"}));
}

}  // namespace
}  // namespace ormala
