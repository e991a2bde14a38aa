#pragma once

#include <algorithm>
#include <span>

#include "scene/Command.h"

namespace ormala {

/// What an owner does for one command.
template <typename Owner>
struct CommandAction {
    Command command;
    void (*run)(Owner& owner);
};

/// Runs the command by its action; false if there is none.
template <typename Owner>
bool runCommand(std::span<const CommandAction<Owner>> rows, Owner& owner, Command command) {
    const auto row = std::ranges::find(rows, command, &CommandAction<Owner>::command);
    if (row == rows.end()) {
        return false;
    }
    row->run(owner);
    return true;
}

}  // namespace ormala
