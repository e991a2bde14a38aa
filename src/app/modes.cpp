#include "app/modes.h"

#include <array>
#include <cstddef>

#include "app/version.h"
#include "language/MlStringModule.h"
#include "widgets/lookColors.h"

namespace ormala {

namespace {

constexpr std::array captionIds{303, 304, 305};
constexpr std::array nameIds{156, 162, 60};

std::string textOf(const std::array<int, allModes.size()>& ids, Mode mode) {
    return isMode(mode) ? MlString(ids[static_cast<std::size_t>(mode)], {}) : std::string{};
}

}  // namespace

std::string captionOfMode(Mode mode) {
    return applicationTitle + textOf(captionIds, mode);
}

std::string nameOfMode(Mode mode) {
    return textOf(nameIds, mode);
}

Color colorOfToggle(bool on) {
    return on ? dark::on : dark::off;
}

ModeWindows windowsOfMode(Mode mode, bool maxSized, bool withBorder) {
    switch (mode) {
        case Mode::edit:
            return {true, true, !maxSized, maxSized};
        case Mode::templateMode:
            return {true, false, !maxSized && withBorder, maxSized && withBorder};
        default:
            return {};
    }
}

std::optional<Command> commandOfSystemMenu(int number) {
    constexpr std::array commands{Command::editMode, Command::templateMode, Command::pauseMode};
    for (const Mode mode : allModes) {
        if (number == menuCommandOfMode(mode)) {
            return commands[static_cast<std::size_t>(mode)];
        }
    }
    return std::nullopt;
}

}  // namespace ormala
