#include "app/win/frmSettings.h"
// Needs the system's basic types, which come with the window.
#include <shellapi.h>
#include <windowsx.h>

#include <utility>

#include "app/win/screens.h"
#include "language/MlStringModule.h"
#include "platform/win/text.h"
#include "scene/Input.h"
#include "widgets/GripTool.h"

// Modes, messages and keys of the control window.

namespace ormala {

namespace {

constexpr UINT keepPlaceAndOwner = SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE | SWP_NOOWNERZORDER;

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

bool fileIsThere(const std::wstring& path) {
    return GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

}  // namespace

void frmSettings::SetReferenceLines(bool enabled) {
    options_.showReferenceLines = enabled;
    toolSettings_.showReferenceLines = enabled;
}

void frmSettings::SetMode(int mode, bool minimise) {
    const int former = mode_;
    lit_ = mode;
    InvalidateRect(handle(), nullptr, FALSE);
    UpdateWindow(handle());
    AdjustFormHeight(mode, former);
    applyModeToWindows(mode);
    mode_ = mode;
    UpdateCaption();
    SyncSystemMenu(mode);
    if (minimise) {
        ShowWindow(handle(), SW_MINIMIZE);
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
    SetWindowPos(handle(), HWND_TOPMOST, 0, 0, 0, 0, keepPlaceAndOwner);
    SetWindowPos(handle(), HWND_TOP, 0, 0, 0, 0, keepPlaceAndOwner);
}

ModeWindows frmSettings::windowsOf(int mode) const {
    return windowsOfMode(mode, worksheet_->MaxSized(), options_.templateWithBorder);
}

void frmSettings::setWorksheetMaxSized(bool maxSized) {
    if (std::exchange(worksheetMaxSized_, maxSized) != maxSized) {
        worksheetMaxSizedChanged.raise(maxSized);
    }
}

void frmSettings::worksheetWindowNormal() {
    resizer_->showNormal();
    setWorksheetMaxSized(false);
}

SettingsHeight::Present frmSettings::present() const {
    const RECT place = rectangle();
    return {stateOf(handle()), static_cast<int>(place.bottom - place.top),
            modeBar_.layout().shortHeight + static_cast<int>(frameSize().cy)};
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
        const RECT place = rectangle();
        SetWindowPos(handle(), nullptr, 0, 0, place.right - place.left, *height,
                     SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
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
    const std::wstring name = wide(MlString(265, "help_en.html"));
    const std::wstring path = fileIsThere(name) ? name : programFolder() + name;
    ShellExecuteW(handle(), nullptr, path.c_str(), nullptr, nullptr, SW_SHOWNORMAL);
    SetMode(mode::pause, false);
}

void frmSettings::stepHistory(OverlayItem& item, bool back) {
    auto* tool = dynamic_cast<GripTool*>(&item);
    if (tool == nullptr) {
        return;
    }
    HistoryHelper& history = tool->History();
    // Steps of the keys are in no record yet: without this they would be lost.
    history.Add(false);
    if (back) {
        history.Undo();
    } else {
        history.Redo();
    }
}

void frmSettings::raiseControlWindowAt(POINT screen) {
    const RECT place = rectangle();
    if (isVisible() && IsIconic(handle()) == FALSE && PtInRect(&place, screen) != FALSE) {
        SetWindowPos(handle(), HWND_TOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
        SetFocus(handle());
    }
}

void frmSettings::closeProgram() {
    PostMessageW(handle(), WM_CLOSE, 0, 0);
}

void frmSettings::Scroll(bool down) {
    if (!scrInner_.Scroll(down).empty()) {
        InvalidateRect(handle(), nullptr, FALSE);
    }
}

std::optional<LRESULT> frmSettings::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_PAINT:
            return onPaint();
        case WM_ERASEBKGND:
            return 1;
        case WM_SIZE:
            return onSize(wParam);
        case WM_GETMINMAXINFO:
            return onGetMinMaxInfo(lParam);
        case WM_SYSCOMMAND:
            return onSysCommand(wParam, lParam);
        case WM_DPICHANGED:
            return onDpiChanged(wParam, lParam);
        case WM_DISPLAYCHANGE:
            return onDisplayChange();
        case WM_LBUTTONDOWN:
            return onClick(lParam);
        case WM_KEYDOWN:
            return onKey(static_cast<int>(wParam)) ? std::optional<LRESULT>(0) : std::nullopt;
        case WM_CLOSE:
            unload();
            PostQuitMessage(0);
            return 0;
        case WM_ENDSESSION:
            return onEndSession(wParam != FALSE);
        default:
            return std::nullopt;
    }
}

LRESULT frmSettings::onPaint() {
    const PaintScope scope(handle());
    modeBar_.paint(scope.context(), clientRectangle(), lit_);
    return 0;
}

LRESULT frmSettings::onSize(WPARAM kind) {
    const WindowState state = kind == SIZE_MINIMIZED   ? WindowState::minimised
                              : kind == SIZE_MAXIMIZED ? WindowState::maximised
                                                       : WindowState::normal;
    if (height_.resized(state)) {
        AdjustFormHeight(mode_, mode_);
    }
    return 0;
}

LRESULT frmSettings::onGetMinMaxInfo(LPARAM lParam) {
    auto& limits = *reinterpret_cast<MINMAXINFO*>(lParam);
    const SIZE frame = frameSize();
    const int width = modeBar_.layout().width + static_cast<int>(frame.cx);
    limits.ptMinTrackSize.x = width;
    limits.ptMaxTrackSize.x = width;
    limits.ptMinTrackSize.y = modeBar_.layout().shortHeight + frame.cy;
    return DefWindowProcW(handle(), WM_GETMINMAXINFO, 0, lParam);
}

LRESULT frmSettings::onSysCommand(WPARAM wParam, LPARAM lParam) {
    const LRESULT result = DefWindowProcW(handle(), WM_SYSCOMMAND, wParam, lParam);
    for (int mode = 0; mode < mode::count; ++mode) {
        if (wParam == static_cast<WPARAM>(menuCommandOfMode(mode))) {
            SetMode(mode, false);
        }
    }
    return result;
}

LRESULT frmSettings::onDpiChanged(WPARAM wParam, LPARAM lParam) {
    const int kept = twipsOfPixels(height_.editModeHeight(), dpi_);
    dpi_ = HIWORD(wParam);
    modeBar_.setDpi(dpi_);
    height_.setEditModeHeight(pixelsOfTwips(kept, dpi_));
    const RECT& place = *reinterpret_cast<const RECT*>(lParam);
    SetWindowPos(handle(), nullptr, place.left, place.top, place.right - place.left,
                 place.bottom - place.top, SWP_NOZORDER | SWP_NOACTIVATE);
    InvalidateRect(handle(), nullptr, FALSE);
    return 0;
}

LRESULT frmSettings::onDisplayChange() {
    bringOntoScreens(handle());
    if (resizer_) {
        bringOntoScreens(resizer_->handle());
    }
    return 0;
}

LRESULT frmSettings::onClick(LPARAM lParam) {
    const auto mode = modeBar_.modeAt({GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)});
    if (mode) {
        SetMode(*mode, false);
    }
    return 0;
}

LRESULT frmSettings::onEndSession(bool ending) {
    if (ending) {
        unload();
    }
    return 0;
}

bool frmSettings::onKey(int key) {
    const bool shiftOnly = heldModifiers() == modifier::shift;
    switch (key) {
        case key::f1:
            ShowHelp();
            return true;
        case key::f2:
            SetMode(mode::edit, false);
            return true;
        case key::f3:
            SetMode(mode::pause, shiftOnly);
            return true;
        case key::f4:
            SetMode(mode::templateMode, shiftOnly);
            return true;
        default:
            return false;
    }
}

}  // namespace ormala
