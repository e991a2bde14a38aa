#pragma once

#include <array>
#include <cstddef>
#include <optional>

#include "pictures/pictures.h"
#include "scene/Command.h"
#include "scene/Mode.h"

namespace ormala {

inline constexpr std::size_t buttonCount = static_cast<std::size_t>(Command::help) + 1;

/// A command of the control window that has a button.
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

const std::array<CommandDesign, buttonCount>& commandDesigns();

/// What a mode makes of a command's button.
struct CommandState {
    bool visible = true;
    bool enabled = true;

    bool operator==(const CommandState&) const = default;
};

/// `worksheetMaxSized` says whether a full-screen worksheet can be brought back into its frame.
CommandState stateOfCommand(Command command, Mode mode, bool worksheetMaxSized);

/// The kind of a command's button: 0 a push button, 1 a toggle, 2 one of several.
int controlTypeOf(Command command);

/// Where a mode's command leads.
struct ModeChange {
    Mode mode = Mode::edit;
    bool minimise = false;

    bool operator==(const ModeChange&) const = default;
};

/// Nothing for a command that changes no mode.
std::optional<ModeChange> modeChangeOf(Command command);

/// The page of the options dialog that the command opens, from 0.
std::optional<int> optionsPageOf(Command command);

}  // namespace ormala
