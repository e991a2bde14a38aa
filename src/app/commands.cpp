#include "app/commands.h"

#include "widgets/PanelDesign.h"

namespace ormala {

const std::array<CommandDesign, commandCount>& commandDesigns() {
    static constexpr std::array<CommandDesign, commandCount> designs{{
        {Command::editMode, "btnMode(0)", 156, 157, roundAtLeft},
        {Command::templateMode, "btnMode(1)", 162, 163, square},
        {Command::pauseMode, "btnMode(2)", 60, 161, roundAtRight},
        {Command::templateAndMinimise, "cmdTemplateMin", 0, 155, roundAtLeft},
        {Command::pauseAndMinimise, "cmdPauseMin", 0, 154, roundAtRight},
        {Command::addStencil, "cmdAddGrid", 152, 153, roundAtLeft},
        {Command::addMeasure, "cmdAddMeasure", 151, 63, roundAtRight},
        {Command::newTools, "cmdNew", 0, 170, roundAtLeft},
        {Command::load, "cmdLoad", 0, 168, square},
        {Command::save, "cmdSave", 0, 169, square},
        {Command::saveAs, "cmdSaveAs", 0, 150, roundAtRight},
        {Command::worksheetNormal, "cmdWorksheetWindowNormal", 0, 164, 0},
    }};
    return designs;
}

CommandState stateOfCommand(Command command, int mode, bool worksheetMaxSized) {
    switch (command) {
        case Command::templateAndMinimise:
            return {mode != mode::templateMode, true};
        case Command::pauseAndMinimise:
            return {mode != mode::pause, true};
        case Command::addStencil:
        case Command::addMeasure:
        case Command::newTools:
        case Command::load:
        case Command::save:
        case Command::saveAs:
            return {true, mode != mode::pause};
        case Command::worksheetNormal:
            return {true, worksheetMaxSized};
        default:
            return {};
    }
}

int modeOfCommand(Command command) {
    switch (command) {
        case Command::editMode:
            return mode::edit;
        case Command::templateMode:
        case Command::templateAndMinimise:
            return mode::templateMode;
        case Command::pauseMode:
        case Command::pauseAndMinimise:
            return mode::pause;
        default:
            return -1;
    }
}

bool minimises(Command command) {
    return command == Command::templateAndMinimise || command == Command::pauseAndMinimise;
}

}  // namespace ormala
