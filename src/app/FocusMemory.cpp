#include "app/FocusMemory.h"

#include <utility>

namespace ormala {

void FocusMemory::programActivated(bool active) {
    foreground_.LastForegroundWindow = nullptr;
    returning_ = active;
    if (!active) {
        controlDeactivated();
    }
}

void FocusMemory::pressed(bool onPanel) {
    pressOnPanel_ = onPanel && !controlActive_;
}

void FocusMemory::controlActivated(Window control, bool fromOwnWindow) {
    const bool cameBack = std::exchange(returning_, false) && !fromOwnWindow;
    controlActive_ = true;
    if (!cameBack || !pressOnPanel_) {
        foreground_.LastForegroundWindow = control;
    }
}

void FocusMemory::controlDeactivated() {
    controlActive_ = false;
    pressOnPanel_ = false;
}

bool FocusMemory::passesKeyboardOn() {
    return !std::exchange(pressOnPanel_, false);
}

bool FocusMemory::panelIsChosen(Window control) {
    return std::exchange(foreground_.LastForegroundWindow, control) == control;
}

}  // namespace ormala
