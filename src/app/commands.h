#pragma once

#include <array>
#include <cstddef>
#include <optional>

#include "app/modes.h"
#include "pictures/pictures.h"

namespace ormala {

/// The commands of the control window that have a button, in the order of the Tab key. The first
/// three are the modes, in their order.
enum class Command {
    editMode,
    templateMode,
    pauseMode,
    templateAndMinimise,
    pauseAndMinimise,
    addStencil,
    addMeasure,
    newTools,
    load,
    save,
    saveAs,
    lens,
    grid,
    crossHair,
    referenceLines,
    circleCompass,
    screenShot,
    worksheetNormal,
    options,
    help,
};

inline constexpr std::size_t commandCount = static_cast<std::size_t>(Command::help) + 1;

struct CommandDesign {
    Command command;
    /// Of its button.
    const char* name;
    Picture picture;
    /// Rows of the text table; 0 for none.
    int caption;
    int tip;
    /// Which of its sides are round, so that neighbours form a bar.
    int cornerStyle;
};

const std::array<CommandDesign, commandCount>& commandDesigns();

/// What a mode makes of a command's button.
struct CommandState {
    bool visible = true;
    bool enabled = true;

    bool operator==(const CommandState&) const = default;
};

/// `worksheetMaxSized` says whether a full-screen worksheet can be brought back into its frame.
CommandState stateOfCommand(Command command, int mode, bool worksheetMaxSized);

/// What is shown or works on the worksheet besides the tools.
struct ToggleStates {
    bool lens = false;
    bool grid = false;
    bool crossHair = false;
    bool referenceLines = false;
    bool circleCompass = false;

    bool operator==(const ToggleStates&) const = default;
};

/// Whether the command's toggle is on; nothing for a command that is no toggle.
std::optional<bool> toggleOf(Command command, const ToggleStates& states);

/// The mode that the command switches to, or -1.
int modeOfCommand(Command command);

/// Whether the command minimises the control window.
bool minimises(Command command);

}  // namespace ormala
