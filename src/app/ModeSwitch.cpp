#include "app/ModeSwitch.h"

#include <utility>

#include "app/commands.h"

namespace ormala {

void ModeSwitch::SetMode(Mode mode, bool minimise) {
    lit_ = mode;
    port_.SyncModeButtons(mode, worksheetMaxSized_);
    port_.refresh();
    port_.AdjustFormHeight(mode, GetMode());
    if (mode != Mode::edit && !minimise) {
        port_.keyboardToControlWindow();
    }
    if (isMode(mode)) {
        const ModeWindows windows = windowsOf(mode);
        port_.showWorksheet(windows);
        setWorksheetMaxSized(windows.worksheetMaxSized);
    }
    view_.setMode(mode);
    port_.showMode(mode, minimise);
    if (mode != Mode::edit) {
        // Neither worksheet nor frame obeys a key but in edit mode.
        port_.keyboardToProgramBelow();
    }
    switched.raise();
}

bool ModeSwitch::execute(Command command) {
    const auto change = modeChangeOf(command);
    if (change) {
        SetMode(change->mode, change->minimise);
    }
    return change.has_value();
}

void ModeSwitch::refreshTemplateMode() {
    if (GetMode() == Mode::templateMode) {
        SetMode(Mode::templateMode, false);
    }
}

void ModeSwitch::setWorksheetMaxSized(bool maxSized) {
    if (std::exchange(worksheetMaxSized_, maxSized) != maxSized) {
        port_.SyncModeButtons(lit_, maxSized);
    }
}

void ModeSwitch::worksheetResized() {
    setWorksheetMaxSized(windowsOf(lit_).worksheetMaxSized);
}

ModeWindows ModeSwitch::windowsOf(Mode mode) const {
    return windowsOfMode(mode, port_.MaxSized(), view_.options().templateWithBorder);
}

}  // namespace ormala
