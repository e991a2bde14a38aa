#include "app/keyTables.h"

#include <algorithm>
#include <array>

#include "scene/Input.h"

namespace ormala {

namespace {

/// Whatever is held besides.
constexpr int any = -1;

constexpr unsigned control = 1U << static_cast<unsigned>(KeyWindow::control);
constexpr unsigned worksheet = 1U << static_cast<unsigned>(KeyWindow::worksheet);
constexpr unsigned magnifier = 1U << static_cast<unsigned>(KeyWindow::magnifier);
constexpr unsigned everywhere = control | worksheet | magnifier;

struct KeyRow {
    int key;
    int modifiers;
    unsigned windows;
    Command command;
};

/// The first row that fits holds.
constexpr std::array rows{
    KeyRow{key::f1, any, everywhere, Command::help},
    KeyRow{key::f2, any, everywhere, Command::editMode},
    KeyRow{key::f3, modifier::shift, everywhere, Command::pauseAndMinimise},
    KeyRow{key::f3, any, everywhere, Command::pauseMode},
    KeyRow{key::f4, modifier::shift, everywhere, Command::templateAndMinimise},
    KeyRow{key::f4, any, everywhere, Command::templateMode},
    KeyRow{key::f12, any, control, Command::options},
    KeyRow{key::f12, any, worksheet, Command::worksheetOptions},
    KeyRow{key::f12, any, magnifier, Command::lensOptions},
    KeyRow{key::menu, any, worksheet, Command::worksheetMenu},
    KeyRow{key::menu, any, magnifier, Command::lensMenu},
    KeyRow{key::f10, modifier::shift, worksheet, Command::worksheetMenu},
    KeyRow{key::f10, modifier::shift, magnifier, Command::lensMenu},
    KeyRow{key::tab, modifier::shift, worksheet, Command::previousTool},
    KeyRow{key::tab, any, worksheet, Command::nextTool},
    KeyRow{key::z, modifier::ctrl, control | worksheet, Command::undo},
    KeyRow{key::y, modifier::ctrl, control | worksheet, Command::redo},
    KeyRow{key::pageDown, modifier::ctrl, control, Command::nextPanel},
    KeyRow{key::pageUp, modifier::ctrl, control, Command::previousPanel},
    KeyRow{key::f6, 0, everywhere, Command::nextPart},
    KeyRow{key::f6, modifier::shift, everywhere, Command::previousPart},
    KeyRow{key::c, modifier::ctrl, control | worksheet, Command::copyReadOuts},
    KeyRow{key::c, modifier::ctrl, magnifier, Command::copyColor},
};

/// The system's own key for closing a window.
bool closesWindow(int key, int modifiers) {
    return key == key::f4 && (modifiers & modifier::alt) != 0;
}

}  // namespace

std::optional<Command> commandOfKey(int key, int modifiers, KeyWindow window) {
    const unsigned bit = 1U << static_cast<unsigned>(window);
    const auto* const row = std::ranges::find_if(rows, [&](const KeyRow& each) {
        return each.key == key && (each.modifiers == any || each.modifiers == modifiers) &&
               (each.windows & bit) != 0;
    });
    if (row == rows.end() || closesWindow(key, modifiers)) {
        return std::nullopt;
    }
    return row->command;
}

bool obeyKey(int key, int modifiers, KeyWindow window,
             const std::function<void(Command)>& execute) {
    const auto command = commandOfKey(key, modifiers, window);
    if (command) {
        execute(*command);
    }
    return command.has_value();
}

}  // namespace ormala
