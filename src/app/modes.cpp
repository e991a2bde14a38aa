#include "app/modes.h"

#include "language/MlStringModule.h"

namespace ormala {

namespace {

constexpr int captionIds[] = {303, 304, 305};
constexpr int nameIds[] = {156, 162, 60};

std::string textOf(const int (&ids)[mode::count], int mode) {
    return mode >= 0 && mode < mode::count ? MlString(ids[mode], {}) : std::string{};
}

}  // namespace

std::string captionOfMode(int mode) {
    return applicationTitle + textOf(captionIds, mode);
}

std::string nameOfMode(int mode) {
    return textOf(nameIds, mode);
}

Color colorOfToggle(bool on) {
    return on ? rgb(187, 168, 0) : rgb(112, 112, 112);
}

ModeWindows windowsOfMode(int mode, bool maxSized, bool withBorder) {
    switch (mode) {
        case mode::edit:
            return {true, true, !maxSized, maxSized};
        case mode::templateMode:
            return {true, false, !maxSized && withBorder, maxSized && withBorder};
        default:
            return {};
    }
}

}  // namespace ormala
