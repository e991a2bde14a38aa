#include "app/commands.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace ormala {
namespace {

TEST(Commands, EachHasARowOfItsOwnInItsPlace) {
    std::set<std::string> names;
    for (std::size_t i = 0; i < commandCount; ++i) {
        const CommandDesign& design = commandDesigns()[i];
        EXPECT_EQ(static_cast<std::size_t>(design.command), i);
        EXPECT_NE(design.tip, 0);
        names.insert(design.name);
    }
    EXPECT_EQ(names.size(), commandCount);
}

TEST(Commands, PauseDisablesWhatWorksOnTools) {
    // The eleven buttons that pause takes away.
    for (const Command command :
         {Command::addStencil, Command::addMeasure, Command::newTools, Command::load, Command::save,
          Command::saveAs, Command::screenShot, Command::grid, Command::circleCompass,
          Command::crossHair, Command::referenceLines}) {
        EXPECT_TRUE(stateOfCommand(command, mode::edit, false).enabled);
        EXPECT_TRUE(stateOfCommand(command, mode::templateMode, false).enabled);
        EXPECT_FALSE(stateOfCommand(command, mode::pause, false).enabled);
    }
    for (const Command command : {Command::editMode, Command::templateMode, Command::pauseMode,
                                  Command::lens, Command::options, Command::help}) {
        EXPECT_TRUE(stateOfCommand(command, mode::pause, false).enabled);
    }
}

TEST(Commands, TheMinimisingTwinOfTheCurrentModeIsHidden) {
    const auto shown = [](Command command, int mode) {
        return stateOfCommand(command, mode, false).visible;
    };
    EXPECT_TRUE(shown(Command::pauseAndMinimise, mode::edit));
    EXPECT_TRUE(shown(Command::templateAndMinimise, mode::edit));
    EXPECT_TRUE(shown(Command::pauseAndMinimise, mode::templateMode));
    EXPECT_FALSE(shown(Command::templateAndMinimise, mode::templateMode));
    EXPECT_FALSE(shown(Command::pauseAndMinimise, mode::pause));
    EXPECT_TRUE(shown(Command::templateAndMinimise, mode::pause));
}

TEST(Commands, TheWorksheetComesBackIntoItsFrameOnlyFromTheFullScreen) {
    for (int mode = 0; mode < mode::count; ++mode) {
        EXPECT_TRUE(stateOfCommand(Command::worksheetNormal, mode, true).enabled);
        EXPECT_FALSE(stateOfCommand(Command::worksheetNormal, mode, false).enabled);
    }
}

TEST(Commands, EachToggleShowsTheStateOfItsOwn) {
    EXPECT_EQ(toggleOf(Command::lens, {.lens = true}), true);
    EXPECT_EQ(toggleOf(Command::grid, {.grid = true}), true);
    EXPECT_EQ(toggleOf(Command::crossHair, {.crossHair = true}), true);
    EXPECT_EQ(toggleOf(Command::referenceLines, {.referenceLines = true}), true);
    EXPECT_EQ(toggleOf(Command::circleCompass, {.circleCompass = true}), true);
    int toggles = 0;
    for (const CommandDesign& design : commandDesigns()) {
        if (const auto on = toggleOf(design.command, {})) {
            EXPECT_FALSE(*on);
            ++toggles;
        }
    }
    EXPECT_EQ(toggles, 5);
}

TEST(Commands, ModesAndTheirMinimisingTwinsKnowTheirMode) {
    EXPECT_EQ(modeOfCommand(Command::editMode), mode::edit);
    EXPECT_EQ(modeOfCommand(Command::templateMode), mode::templateMode);
    EXPECT_EQ(modeOfCommand(Command::pauseMode), mode::pause);
    EXPECT_EQ(modeOfCommand(Command::templateAndMinimise), mode::templateMode);
    EXPECT_EQ(modeOfCommand(Command::pauseAndMinimise), mode::pause);
    EXPECT_EQ(modeOfCommand(Command::save), -1);
    EXPECT_TRUE(minimises(Command::templateAndMinimise));
    EXPECT_TRUE(minimises(Command::pauseAndMinimise));
    EXPECT_FALSE(minimises(Command::pauseMode));
}

}  // namespace
}  // namespace ormala
