#include "app/win/shell/ModeStage.h"

#include "app/win/shell/KeyboardHandover.h"
#include "modAPI/colors.h"
#include "platform/win/windowOrder.h"

namespace ormala {

void ModeStage::SyncModeButtons(Mode mode, bool worksheetMaxSized) {
    windows_.settings.bar().showMode(mode, worksheetMaxSized);
}

void ModeStage::refresh() {
    EndMenu();
    RedrawWindow(windows_.settings.handle(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
}

void ModeStage::AdjustFormHeight(Mode mode, Mode former) {
    windows_.settings.size().AdjustFormHeight(mode, former);
}

bool ModeStage::worksheetHasKeyboard() const {
    const HWND front = GetForegroundWindow();
    return front == windows_.worksheet.handle() || front == windows_.resizer.handle();
}

void ModeStage::keyboardToControlWindow() {
    const frmSettings& settings = windows_.settings;
    const bool canBeSeen = settings.isVisible() && IsIconic(settings.handle()) == FALSE;
    if (canBeSeen && worksheetHasKeyboard()) {
        SetForegroundWindow(settings.handle());
    }
}

void ModeStage::keyboardToProgramBelow() {
    if (worksheetHasKeyboard()) {
        giveKeyboardToProgramBelow();
    }
}

bool ModeStage::MaxSized() const {
    return windows_.worksheet.MaxSized();
}

void ModeStage::showWorksheet(const ModeWindows& windows) {
    frmWorksheet& worksheet = windows_.worksheet;
    if (windows.clickable) {
        // In the other modes the colour is the key, and waits.
        worksheet.setBackground(colorRef(windows_.state.options().worksheetColor));
    }
    worksheet.setClickable(windows.clickable);
    worksheet.setShown(windows.worksheet);
    windows_.resizer.setShown(windows.frame);
    if (windows.clickable) {
        layOutAnew();
    }
}

void ModeStage::layOutAnew() {
    if (MaxSized()) {
        windows_.worksheet.narrowAndWiden();
    } else {
        windows_.resizer.widenAndNarrow();
    }
    raiseAgainBesideAnotherProgram(windows_.settings.handle(), windows_.worksheet.handle());
    windows_.view.raiseAboveAll();
}

void ModeStage::showMode(Mode mode, bool minimise) {
    windows_.settings.showMode();
    windows_.view.showMode(mode);
    if (minimise) {
        ShowWindow(windows_.settings.handle(), SW_MINIMIZE);
    }
}

}  // namespace ormala
