#pragma once

#include <array>
#include <cstddef>

#include "app/modes.h"

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
    worksheetNormal,
};

inline constexpr std::size_t commandCount = static_cast<std::size_t>(Command::worksheetNormal) + 1;

struct CommandDesign {
    Command command;
    /// Of its button.
    const char* name;
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

/// The mode that the command switches to, or -1.
int modeOfCommand(Command command);

/// Whether the command minimises the control window.
bool minimises(Command command);

}  // namespace ormala
