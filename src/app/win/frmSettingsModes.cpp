#include "app/win/frmSettings.h"
// Needs the system's basic types, which come with the window.
#include <shellapi.h>

#include <array>
#include <utility>

#include "app/win/KeyboardHandover.h"
#include "app/win/screens.h"
#include "language/MlStringModule.h"
#include "platform/win/monitors.h"
#include "platform/win/text.h"
#include "platform/win/windowOrder.h"
#include "scene/Input.h"

// Modes and commands of the control window.

namespace ormala {

namespace {

WindowState stateOf(HWND window) {
    if (IsIconic(window) != FALSE) {
        return WindowState::minimised;
    }
    return IsZoomed(window) != FALSE ? WindowState::maximised : WindowState::normal;
}

std::wstring programFolder() {
    std::wstring path(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length =
            GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
        if (length < path.size()) {
            path.resize(length);
            return path.substr(0, path.find_last_of(L'\\') + 1);
        }
        path.resize(path.size() * 2);
    }
}

/// With the program that the user opens such files with.
bool openFile(HWND window, const std::wstring& path) {
    constexpr INT_PTR lastError = 32;
    const HINSTANCE answer =
        ShellExecuteW(window, nullptr, path.c_str(), nullptr, nullptr, SW_SHOWNORMAL);
    return reinterpret_cast<INT_PTR>(answer) > lastError;
}

bool fileIsThere(const std::wstring& path) {
    return GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

}  // namespace

void frmSettings::SetMode(int mode, bool minimise) {
    const int former = mode_;
    // A menu must not outlive the sight of its owner, which may go now.
    EndMenu();
    lit_ = mode;
    bar_->showMode(mode, worksheetMaxSized_);
    RedrawWindow(handle(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    AdjustFormHeight(mode, former);
    if (mode != mode::edit && !minimise) {
        // Before its window goes, so that the system passes it on to none.
        takeKeyboardFromWorksheet();
    }
    applyModeToWindows(mode);
    mode_ = mode;
    UpdateCaption();
    SyncSystemMenu(mode);
    view_->modeChanged(mode);
    if (minimise) {
        ShowWindow(handle(), SW_MINIMIZE);
    }
    if (mode != mode::edit && worksheetHasKeyboard()) {
        giveKeyboardToProgramBelow();
    }
}

/// The worksheet or its frame. Both obey no keys but in edit mode.
bool frmSettings::worksheetHasKeyboard() const {
    const HWND front = GetForegroundWindow();
    return front != nullptr && (front == worksheet_->handle() || front == resizer_->handle());
}

void frmSettings::takeKeyboardFromWorksheet() {
    if (worksheetHasKeyboard() && isVisible() && IsIconic(handle()) == FALSE) {
        SetForegroundWindow(handle());
    }
}

void frmSettings::applyModeToWindows(int mode) {
    if (mode < 0 || mode >= mode::count) {
        return;
    }
    const ModeWindows windows = windowsOf(mode);
    if (mode == mode::edit) {
        worksheet_->setBackground(colorRef(options_.worksheetColor));
    }
    worksheet_->setClickable(windows.clickable);
    if (!windows.worksheet) {
        worksheet_->hide();
    } else if (!worksheet_->isVisible()) {
        worksheet_->show();
    }
    if (windows.frame) {
        resizer_->show();
    } else {
        resizer_->hide();
    }
    setWorksheetMaxSized(windows.worksheetMaxSized);
    if (mode == mode::edit) {
        layOutAnew();
    }
}

void frmSettings::layOutAnew() {
    if (worksheet_->MaxSized()) {
        worksheet_->narrowAndWiden();
    } else {
        resizer_->widenAndNarrow();
    }
    raiseAboveAll();
}

void frmSettings::raiseAboveAll() {
    if (IsIconic(handle()) != FALSE) {
        // Even without being moved, a minimised window could forget where it stood.
        return;
    }
    raiseWithoutActivating(handle(), HWND_TOPMOST);
    raiseWithoutActivating(handle());
    raiseLens(true);
}

void frmSettings::putWindowsAside(bool aside) {
    LensPane& lens = view_->lens();
    // Below it lies the program that the drag is for.
    worksheet_->setTransparentToMouse(aside);
    if (aside) {
        lensAside_ = lens.lens().isVisible();
        frameAside_ = resizer_->isVisible();
        lens.setAside(true);
        resizer_->hide();
        return;
    }
    if (frameAside_) {
        resizer_->show();
    }
    if (lensAside_) {
        lens.setAside(false);
    }
}

ModeWindows frmSettings::windowsOf(int mode) const {
    return windowsOfMode(mode, worksheet_->MaxSized(), options_.templateWithBorder);
}

void frmSettings::setWorksheetMaxSized(bool maxSized) {
    if (std::exchange(worksheetMaxSized_, maxSized) != maxSized) {
        bar_->showMode(lit_, maxSized);
    }
}

void frmSettings::worksheetWindowNormal() {
    resizer_->showNormal();
    setWorksheetMaxSized(false);
}

SettingsHeight::Present frmSettings::present() const {
    const WindowState state = stateOf(handle());
    RECT place = rectangle();
    if (state == WindowState::minimised) {
        WINDOWPLACEMENT placement{};
        placement.length = sizeof placement;
        GetWindowPlacement(handle(), &placement);
        place = placement.rcNormalPosition;
    }
    return {state, static_cast<int>(place.bottom - place.top),
            layout().shortHeight + static_cast<int>(frameSize().cy)};
}

SIZE frmSettings::frameSize() const {
    RECT frame{0, 0, 0, 0};
    AdjustWindowRectExForDpi(&frame, static_cast<DWORD>(GetWindowLongPtrW(handle(), GWL_STYLE)),
                             FALSE, static_cast<DWORD>(GetWindowLongPtrW(handle(), GWL_EXSTYLE)),
                             static_cast<UINT>(dpi_));
    return {frame.right - frame.left, frame.bottom - frame.top};
}

void frmSettings::AdjustFormHeight(int mode, int formerMode) {
    if (const auto height = height_.adjust(mode, formerMode, present())) {
        takeHeight(*height);
    }
}

void frmSettings::SyncSystemMenu(int mode) {
    const HMENU menu = GetSystemMenu(handle(), FALSE);
    for (int i = 0; i < mode::count; ++i) {
        EnableMenuItem(menu, static_cast<UINT>(menuCommandOfMode(i)),
                       static_cast<UINT>(MF_BYCOMMAND | (i == mode ? MF_GRAYED : MF_ENABLED)));
    }
}

void frmSettings::UpdateCaption() {
    setCaption(captionOfMode(mode_));
}

void frmSettings::ShowHelp() {
    const std::array file{MlString(265, "help_en.html")};
    const std::wstring name = wide(file[0]);
    const std::wstring path = fileIsThere(name) ? name : programFolder() + name;
    if (fileIsThere(path) && openFile(handle(), path)) {
        SetMode(mode::pause, false);
    } else {
        messages_.showError(MlFormat(MlString(562, "The help could not be opened:%n%0"), file));
    }
}

void frmSettings::stepHistory(OverlayItem& item, bool back) {
    tools_->stepHistory(item, back);
}

void frmSettings::raiseControlWindowAt(POINT screen) {
    const RECT place = rectangle();
    if (isVisible() && IsIconic(handle()) == FALSE && PtInRect(&place, screen) != FALSE) {
        SetWindowPos(handle(), HWND_TOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
        SetFocus(handle());
    }
}

PanelLayout::Window frmSettings::layoutWindow() const {
    const SettingsLayout places = layout();
    const SettingsHeight::Present now = present();
    const int below = static_cast<int>(workAreaAround(handle()).bottom - rectangle().top);
    return {places.picOuter.left, places.picOuter.top, static_cast<int>(frameSize().cy), below,
            now.height == now.shortHeight && mode_ == mode::templateMode};
}

void frmSettings::takeHeight(int height) {
    const RECT place = rectangle();
    SetWindowPos(handle(), nullptr, 0, 0, place.right - place.left, height,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void frmSettings::execute(Command command) {
    if (const int mode = modeOfCommand(command); mode >= 0) {
        SetMode(mode, minimises(command));
    } else if (command == Command::worksheetNormal) {
        worksheetWindowNormal();
    } else if (command == Command::help) {
        ShowHelp();
    } else if (!view_->execute(command)) {
        tools_->execute(command);
    }
}

void frmSettings::closeProgram() {
    PostMessageW(handle(), WM_CLOSE, 0, 0);
}

}  // namespace ormala
