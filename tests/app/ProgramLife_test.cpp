#include "app/ProgramLife.h"

#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace ormala {
namespace {

using Steps = std::vector<std::string>;

/// Writes down what is done, and lets a test do something while the question is open.
class NotedEnding : public ProgramEnding {
  public:
    Steps steps;
    bool busy = false;
    bool confirms = true;
    std::function<void()> duringQuestion = [] {};
    std::function<void()> duringSaving = [] {};

    [[nodiscard]] bool isBusy() const override { return busy; }
    bool ConfirmDiscard() override {
        steps.emplace_back("ask");
        duringQuestion();
        return confirms;
    }
    void keep(bool tell) override {
        steps.emplace_back(tell ? "keep" : "keep quietly");
        duringSaving();
    }
    void save() override {
        steps.emplace_back("save");
        duringSaving();
    }
    void showReason(bool isBusy) override {
        steps.emplace_back(isBusy ? "reason: dialog" : "reason: changes");
    }
    void hideReason() override { steps.emplace_back("no reason"); }
    void quit() override { steps.emplace_back("quit"); }

    Steps taken() { return std::exchange(steps, {}); }
};

class ProgramLifeTest : public testing::Test {
  protected:
    NotedEnding ending_;
    ProgramLife life_{ending_};
};

class RunningProgram : public ProgramLifeTest {
  protected:
    RunningProgram() { life_.started(); }
};

TEST_F(ProgramLifeTest, AStartThatIsToldToEndEndsAndSavesNothing) {
    life_.close();
    EXPECT_TRUE(life_.abandoned());
    EXPECT_FALSE(life_.started());
    EXPECT_FALSE(life_.running());
    EXPECT_EQ(ending_.taken(), Steps{"quit"});
    life_.close();
    life_.endOfSession(true, false);
    life_.fail();
    EXPECT_EQ(ending_.taken(), Steps{});
}

TEST_F(ProgramLifeTest, TheEndOfASessionDuringTheStartSavesNothingAndStopsNothing) {
    EXPECT_TRUE(life_.queryEndOfSession(false));
    life_.endOfSession(true, false);
    EXPECT_EQ(ending_.taken(), Steps{});
    EXPECT_TRUE(life_.started());
}

TEST_F(RunningProgram, AConfirmedCloseSavesAndQuits) {
    life_.close();
    EXPECT_EQ(ending_.taken(), (Steps{"ask", "save", "quit"}));
    EXPECT_FALSE(life_.running());
}

TEST_F(RunningProgram, ADeniedCloseChangesNothing) {
    ending_.confirms = false;
    life_.close();
    EXPECT_EQ(ending_.taken(), Steps{"ask"});
    EXPECT_TRUE(life_.running());
}

TEST_F(RunningProgram, ASecondCloseAfterTheFirstDoesNothing) {
    life_.close();
    ending_.taken();
    life_.close();
    EXPECT_EQ(ending_.taken(), Steps{});
}

TEST_F(RunningProgram, ACloseWhileADialogIsOpenDoesNothing) {
    ending_.busy = true;
    life_.close();
    EXPECT_EQ(ending_.taken(), Steps{});
    EXPECT_TRUE(life_.running());
}

TEST_F(RunningProgram, ACloseDuringTheQuestionDoesNotAskAgain) {
    ending_.duringQuestion = [this] { life_.close(); };
    life_.close();
    EXPECT_EQ(ending_.taken(), (Steps{"ask", "save", "quit"}));
}

TEST_F(RunningProgram, ACloseWhileAFailedSaveIsToldDoesNotSaveAgain) {
    ending_.duringSaving = [this] { life_.close(); };
    life_.close();
    EXPECT_EQ(ending_.taken(), (Steps{"ask", "save", "quit"}));
}

TEST_F(RunningProgram, SavesBeforeItAsksWhetherTheSessionMayEnd) {
    EXPECT_TRUE(life_.queryEndOfSession(false));
    EXPECT_EQ(ending_.taken(), (Steps{"keep", "reason: changes", "ask", "no reason"}));
    EXPECT_TRUE(life_.running());
}

TEST_F(RunningProgram, ADeniedEndOfTheSessionKeepsItsReasonUntilTheSystemAnswers) {
    ending_.confirms = false;
    EXPECT_FALSE(life_.queryEndOfSession(false));
    EXPECT_EQ(ending_.taken(), (Steps{"keep", "reason: changes", "ask"}));
    life_.endOfSession(false, false);
    EXPECT_EQ(ending_.taken(), Steps{"no reason"});
}

TEST_F(RunningProgram, ACriticalEndOfTheSessionAsksNothing) {
    ending_.busy = true;
    EXPECT_TRUE(life_.queryEndOfSession(true));
    EXPECT_EQ(ending_.taken(), Steps{"keep"});
}

TEST_F(RunningProgram, TheEndOfTheSessionAsksNothingOverAnOpenDialog) {
    ending_.busy = true;
    EXPECT_FALSE(life_.queryEndOfSession(false));
    EXPECT_EQ(ending_.taken(), (Steps{"keep", "reason: dialog"}));
}

TEST_F(RunningProgram, TheEndOfTheSessionAsksNothingOverTheQuestionOfAClose) {
    ending_.confirms = false;
    ending_.duringQuestion = [this] { EXPECT_FALSE(life_.queryEndOfSession(false)); };
    life_.close();
    EXPECT_EQ(ending_.taken(), (Steps{"ask", "keep", "reason: dialog"}));
}

TEST_F(RunningProgram, ChangesBetweenTheAnnouncementAndTheEndAreSavedToo) {
    life_.queryEndOfSession(false);
    ending_.taken();
    life_.endOfSession(true, false);
    EXPECT_EQ(ending_.taken(), (Steps{"no reason", "keep quietly"}));
}

TEST_F(RunningProgram, AnEndThatNobodyHasAnnouncedTellsOfItsFailures) {
    life_.endOfSession(true, false);
    EXPECT_EQ(ending_.taken(), (Steps{"no reason", "keep"}));
}

TEST_F(RunningProgram, ASessionThatGoesOnIsNotSaved) {
    life_.queryEndOfSession(false);
    ending_.taken();
    life_.endOfSession(false, false);
    EXPECT_EQ(ending_.taken(), Steps{"no reason"});
}

TEST_F(RunningProgram, AProgramThatLivesOnAfterItsSessionAsksAndSavesAsBefore) {
    life_.endOfSession(true, false);
    ending_.taken();
    EXPECT_TRUE(life_.running());
    life_.close();
    EXPECT_EQ(ending_.taken(), (Steps{"ask", "save", "quit"}));
}

TEST_F(RunningProgram, AProgramThatHasToCloseSavesAndEndsWithoutASecondQuestion) {
    EXPECT_TRUE(life_.queryEndOfSession(false));
    ending_.taken();
    life_.endOfSession(true, true);
    EXPECT_EQ(ending_.taken(), (Steps{"no reason", "keep quietly", "quit"}));
    EXPECT_FALSE(life_.running());
    life_.close();
    EXPECT_EQ(ending_.taken(), Steps{});
}

TEST_F(RunningProgram, AProgramThatHasToCloseGoesOnIfTheOthersRefuse) {
    life_.queryEndOfSession(false);
    ending_.taken();
    life_.endOfSession(false, true);
    EXPECT_EQ(ending_.taken(), Steps{"no reason"});
    EXPECT_TRUE(life_.running());
}

TEST_F(RunningProgram, AProgramThatHasToCloseDuringItsQuestionSavesOnce) {
    ending_.duringQuestion = [this] { life_.endOfSession(true, true); };
    EXPECT_FALSE(life_.queryEndOfSession(false));
    EXPECT_EQ(ending_.taken(),
              (Steps{"keep", "reason: changes", "ask", "no reason", "keep quietly", "quit"}));
}

TEST_F(RunningProgram, TheSessionCanEndAfterTheProgramHas) {
    life_.close();
    ending_.taken();
    EXPECT_TRUE(life_.queryEndOfSession(false));
    life_.endOfSession(true, false);
    EXPECT_EQ(ending_.taken(), Steps{});
}

TEST_F(RunningProgram, AFailureSavesOnce) {
    life_.fail();
    life_.fail();
    EXPECT_EQ(ending_.taken(), Steps{"keep"});
    EXPECT_FALSE(life_.running());
}

TEST_F(RunningProgram, AFailureInTheMiddleOfTheQuestionLetsTheCloseEndNothing) {
    ending_.duringQuestion = [this] { life_.fail(); };
    life_.close();
    EXPECT_EQ(ending_.taken(), (Steps{"ask", "keep"}));
}

TEST_F(RunningProgram, AFailureOfTheSavingItselfIsNotTriedAgain) {
    ending_.duringSaving = [] { throw std::runtime_error("no memory"); };
    EXPECT_THROW(life_.fail(), std::runtime_error);
    ending_.taken();
    life_.fail();
    EXPECT_EQ(ending_.taken(), Steps{});
}

}  // namespace
}  // namespace ormala
