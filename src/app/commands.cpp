#include "app/commands.h"

#include "toolkit/PanelDesign.h"

namespace ormala {

const std::array<CommandDesign, buttonCount>& commandDesigns() {
    static constexpr std::array<CommandDesign, buttonCount> designs{{
        {Command::editMode, "btnMode(0)", Picture::modeEdit, 156, 157, roundAtLeft},
        {Command::templateMode, "btnMode(1)", Picture::modeTemplate, 162, 163, square},
        {Command::pauseMode, "btnMode(2)", Picture::modePause, 60, 161, roundAtRight},
        {Command::templateAndMinimise, "cmdTemplateMin", Picture::templateAndMinimize, 0, 155,
         roundAtLeft},
        {Command::pauseAndMinimise, "cmdPauseMin", Picture::pauseAndMinimize, 0, 154, roundAtRight},
        {Command::addStencil, "cmdAddGrid", Picture::addStencil, 152, 153, roundAtLeft},
        {Command::addMeasure, "cmdAddMeasure", Picture::addMeasure, 151, 63, roundAtRight},
        {Command::newTools, "cmdNew", Picture::newTools, 0, 170, roundAtLeft},
        {Command::load, "cmdLoad", Picture::loadTools, 0, 168, square},
        {Command::save, "cmdSave", Picture::saveTools, 0, 169, square},
        {Command::saveAs, "cmdSaveAs", Picture::saveToolsAs, 0, 150, roundAtRight},
        {Command::lens, "chkLens", Picture::lens, 0, 172, roundAtLeft},
        {Command::grid, "chkGrid", Picture::grid, 0, 173, square},
        {Command::crossHair, "chkCrossHair", Picture::crossHair, 0, 338, square},
        {Command::referenceLines, "chkReferenceLines", Picture::referenceLines, 0, 337, square},
        {Command::circleCompass, "chkCircleCompass", Picture::circleCompass, 0, 85, roundAtRight},
        {Command::screenShot, "cmdScreenshot", Picture::screenShot, 0, 171, roundAtLeft},
        {Command::worksheetNormal, "cmdWorksheetWindowNormal", Picture::worksheetWindow, 0, 164,
         roundAtRight},
        {Command::options, "cmdOptions", Picture::options, 0, 165, roundAtLeft},
        {Command::help, "cmdHelp", Picture::help, 0, 167, roundAtRight},
    }};
    return designs;
}

CommandState stateOfCommand(Command command, Mode mode, bool worksheetMaxSized) {
    switch (command) {
        case Command::templateAndMinimise:
            return {mode != Mode::templateMode, true};
        case Command::pauseAndMinimise:
            return {mode != Mode::pause, true};
        case Command::addStencil:
        case Command::addMeasure:
        case Command::newTools:
        case Command::load:
        case Command::save:
        case Command::saveAs:
        case Command::screenShot:
        case Command::grid:
        case Command::circleCompass:
        case Command::crossHair:
        case Command::referenceLines:
            return {true, mode != Mode::pause};
        case Command::worksheetNormal:
            return {true, worksheetMaxSized};
        default:
            return {};
    }
}

int controlTypeOf(Command command) {
    if (command <= Command::pauseMode) {
        return 2;
    }
    const bool toggles = command >= Command::lens && command <= Command::circleCompass;
    return toggles ? 1 : 0;
}

std::optional<ModeChange> modeChangeOf(Command command) {
    switch (command) {
        case Command::editMode:
            return ModeChange{Mode::edit, false};
        case Command::templateMode:
            return ModeChange{Mode::templateMode, false};
        case Command::pauseMode:
            return ModeChange{Mode::pause, false};
        case Command::templateAndMinimise:
            return ModeChange{Mode::templateMode, true};
        case Command::pauseAndMinimise:
            return ModeChange{Mode::pause, true};
        default:
            return std::nullopt;
    }
}

std::optional<int> optionsPageOf(Command command) {
    switch (command) {
        case Command::options:
            return 0;
        case Command::worksheetOptions:
            return 1;
        case Command::lensOptions:
            return 2;
        default:
            return std::nullopt;
    }
}

}  // namespace ormala
