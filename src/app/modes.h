#pragma once

#include <string>

#include "modAPI/colors.h"

namespace ormala {

/// The title in front of the window captions and in the names of the program's files.
inline constexpr const char* applicationTitle = "Ormala";

namespace mode {
constexpr int edit = 0;
constexpr int templateMode = 1;
constexpr int pause = 2;
constexpr int count = 3;
}  // namespace mode

/// The caption of the control window: the title and the mode.
std::string captionOfMode(int mode);

/// What a mode's entry in the system menu says.
std::string nameOfMode(int mode);

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
/// its frame. A number that is no mode shows nothing.
ModeWindows windowsOfMode(int mode, bool maxSized, bool withBorder);

/// The number of a mode's entry in the system menu.
constexpr int menuCommandOfMode(int mode) {
    return 1010 + mode;
}

}  // namespace ormala
