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

/// What a mode's button says and explains.
std::string nameOfMode(int mode);
std::string tipOfMode(int mode);

/// The colour of a mode's button.
Color colorOfMode(int mode, int currentMode);

/// The number of a mode's entry in the system menu.
constexpr int menuCommandOfMode(int mode) {
    return 1010 + mode;
}

}  // namespace ormala
