#pragma once

#include <optional>
#include <string>

#include "modAPI/colors.h"
#include "scene/Command.h"
#include "scene/Mode.h"

namespace ormala {

/// The caption of the control window: the title and the mode.
std::string captionOfMode(Mode mode);

/// What a mode's entry in the system menu says.
std::string nameOfMode(Mode mode);

/// The colour of the button of a mode, or of anything else, that is on or off.
Color colorOfToggle(bool on);

/// What a mode makes of the worksheet and its frame.
struct ModeWindows {
    bool worksheet = false;
    /// The worksheet takes the mouse, and its tools can be changed.
    bool clickable = false;
    bool frame = false;
    /// The button can be pressed that brings a full-screen worksheet back into its frame.
    bool worksheetMaxSized = false;

    bool operator==(const ModeWindows&) const = default;
};

/// `maxSized` says whether the worksheet fills its screen, `withBorder` whether template mode keeps
/// its frame. What is no mode shows nothing.
ModeWindows windowsOfMode(Mode mode, bool maxSized, bool withBorder);

/// The number of a mode's entry in the system menu.
constexpr int menuCommandOfMode(Mode mode) {
    return 1010 + numberOf(mode);
}

/// What the entry of that number asks for; nothing for one that is no mode's.
std::optional<Command> commandOfSystemMenu(int number);

}  // namespace ormala
