#include "app/commands.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace ormala {
namespace {

TEST(Commands, EachHasARowOfItsOwnInItsPlace) {
    std::set<std::string> names;
    for (std::size_t i = 0; i < buttonCount; ++i) {
        const CommandDesign& design = commandDesigns()[i];
        EXPECT_EQ(static_cast<std::size_t>(design.command), i);
        EXPECT_NE(design.tip, 0);
        names.insert(design.name);
    }
    EXPECT_EQ(names.size(), buttonCount);
}

TEST(Commands, PauseDisablesWhatWorksOnTools) {
    // The eleven buttons that pause takes away.
    for (const Command command :
         {Command::addStencil, Command::addMeasure, Command::newTools, Command::load, Command::save,
          Command::saveAs, Command::screenShot, Command::grid, Command::circleCompass,
          Command::crossHair, Command::referenceLines}) {
        EXPECT_TRUE(stateOfCommand(command, Mode::edit, false).enabled);
        EXPECT_TRUE(stateOfCommand(command, Mode::templateMode, false).enabled);
        EXPECT_FALSE(stateOfCommand(command, Mode::pause, false).enabled);
    }
    for (const Command command : {Command::editMode, Command::templateMode, Command::pauseMode,
                                  Command::lens, Command::options, Command::help}) {
        EXPECT_TRUE(stateOfCommand(command, Mode::pause, false).enabled);
    }
}

TEST(Commands, TheMinimisingTwinOfTheCurrentModeIsHidden) {
    const auto shown = [](Command command, Mode mode) {
        return stateOfCommand(command, mode, false).visible;
    };
    EXPECT_TRUE(shown(Command::pauseAndMinimise, Mode::edit));
    EXPECT_TRUE(shown(Command::templateAndMinimise, Mode::edit));
    EXPECT_TRUE(shown(Command::pauseAndMinimise, Mode::templateMode));
    EXPECT_FALSE(shown(Command::templateAndMinimise, Mode::templateMode));
    EXPECT_FALSE(shown(Command::pauseAndMinimise, Mode::pause));
    EXPECT_TRUE(shown(Command::templateAndMinimise, Mode::pause));
}

TEST(Commands, TheWorksheetComesBackIntoItsFrameOnlyFromTheFullScreen) {
    for (const Mode mode : allModes) {
        EXPECT_TRUE(stateOfCommand(Command::worksheetNormal, mode, true).enabled);
        EXPECT_FALSE(stateOfCommand(Command::worksheetNormal, mode, false).enabled);
    }
}

TEST(Commands, ModesAndTheirMinimisingTwinsLeadToTheirMode) {
    EXPECT_EQ(modeChangeOf(Command::editMode), (ModeChange{Mode::edit, false}));
    EXPECT_EQ(modeChangeOf(Command::templateMode), (ModeChange{Mode::templateMode, false}));
    EXPECT_EQ(modeChangeOf(Command::pauseMode), (ModeChange{Mode::pause, false}));
    EXPECT_EQ(modeChangeOf(Command::templateAndMinimise), (ModeChange{Mode::templateMode, true}));
    EXPECT_EQ(modeChangeOf(Command::pauseAndMinimise), (ModeChange{Mode::pause, true}));
    EXPECT_EQ(modeChangeOf(Command::save), std::nullopt);
}

TEST(Commands, TheModesAreOneOfThree) {
    for (const CommandDesign& design : commandDesigns()) {
        const auto change = modeChangeOf(design.command);
        EXPECT_EQ(controlTypeOf(design.command) == 2, change && !change->minimise);
    }
}

TEST(Commands, EachWindowOpensItsPageOfTheOptions) {
    EXPECT_EQ(optionsPageOf(Command::options), 0);
    EXPECT_EQ(optionsPageOf(Command::worksheetOptions), 1);
    EXPECT_EQ(optionsPageOf(Command::lensOptions), 2);
    EXPECT_EQ(optionsPageOf(Command::help), std::nullopt);
}

}  // namespace
}  // namespace ormala
