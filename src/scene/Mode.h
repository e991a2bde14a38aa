#pragma once

#include <array>

namespace ormala {

/// What the worksheet is for: to work on the tools, to lie over another program as a stencil, or
/// to be out of the way. The numbers are those of the options file and of the system menu.
enum class Mode { edit, templateMode, pause };

inline constexpr std::array allModes{Mode::edit, Mode::templateMode, Mode::pause};

constexpr int numberOf(Mode mode) {
    return static_cast<int>(mode);
}

/// A number from outside need not be one of a mode.
constexpr bool isMode(Mode mode) {
    return mode >= allModes.front() && mode <= allModes.back();
}

}  // namespace ormala
