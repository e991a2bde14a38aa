#pragma once

#include <functional>
#include <optional>

#include "scene/Command.h"

namespace ormala {

/// The windows that have commands on keys. The frame passes its keys on to the worksheet.
enum class KeyWindow { control, worksheet, magnifier };

/// What a key asks for in a window; nothing leaves it to the control or the tool that has the
/// keyboard. `key` is a code of `key`, `modifiers` the bits of `modifier`.
std::optional<Command> commandOfKey(int key, int modifiers, KeyWindow window);

/// Lets the command of a key be executed: true if there is one.
bool obeyKey(int key, int modifiers, KeyWindow window, const std::function<void(Command)>& execute);

}  // namespace ormala
