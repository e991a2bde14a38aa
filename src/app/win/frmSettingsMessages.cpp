#include "app/win/frmSettings.h"
// Needs the system's basic types, which come with the window.
#include <windowsx.h>

#include <algorithm>
#include <utility>

#include "app/win/screens.h"
#include "app/win/settingsIds.h"
#include "app/win/tabStops.h"
#include "scene/Input.h"

// Messages and keys of the control window.

namespace ormala {

namespace {

/// In front of the worksheet, once that has come to the front itself.
constexpr UINT wmRaise = WM_APP + 2;

}  // namespace

std::optional<LRESULT> frmSettings::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (closed_) {
        return std::nullopt;
    }
    switch (message) {
        case WM_ERASEBKGND:
            return onErase(reinterpret_cast<HDC>(wParam));
        case WM_ACTIVATEAPP:
            focus_.programActivated(wParam != FALSE);
            return std::nullopt;
        case WM_ACTIVATE:
            return onActivate(wParam, reinterpret_cast<HWND>(lParam));
        case WM_WINDOWPOSCHANGED:
            if ((reinterpret_cast<const WINDOWPOS*>(lParam)->flags & SWP_NOZORDER) == 0) {
                // A magnifier beside the mouse stays in front of it.
                raiseLens(true);
            }
            return std::nullopt;
        case WM_MOUSEACTIVATE:
            return onMouseActivate(wParam, lParam);
        case WM_SETFOCUS:
            return onFocus();
        case wmRaise:
            raiseAboveAll();
            return 0;
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
        case WM_TIMER:
            return onTimer(wParam);
        case WM_COMMAND:
            return onCommand(wParam);
        case WM_CLOSE:
            life_.close();
            return 0;
        case WM_QUERYENDSESSION:
            return life_.queryEndOfSession((lParam & ENDSESSION_CRITICAL) != 0) ? TRUE : FALSE;
        case WM_ENDSESSION:
            // The windows stay, since a message of one of them may be in hand at this moment.
            life_.endOfSession(wParam != FALSE);
            return 0;
        default:
            return onOwnMessage(message, wParam, lParam);
    }
}

/// Messages that a part of the window has sent.
std::optional<LRESULT> frmSettings::onOwnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (view_) {
        if (const auto result = view_->onMessage(message, wParam)) {
            return result;
        }
    }
    return tools_ ? tools_->onMessage(message, lParam) : std::nullopt;
}

LRESULT frmSettings::onErase(HDC context) {
    constexpr COLORREF ground = 0x606060;
    const RECT client = clientRectangle();
    SetDCBrushColor(context, ground);
    FillRect(context, &client, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
    return 1;
}

LRESULT frmSettings::onSize(WPARAM kind) {
    const WindowState state = kind == SIZE_MINIMIZED   ? WindowState::minimised
                              : kind == SIZE_MAXIMIZED ? WindowState::maximised
                                                       : WindowState::normal;
    if (height_.resized(state)) {
        AdjustFormHeight(mode_, mode_);
    }
    if (tools_ && state != WindowState::minimised) {
        PixelRect list = layout().picOuter;
        const int bottom = static_cast<int>(clientRectangle().bottom) - list.left;
        list.bottom = std::max(bottom, list.top);
        tools_->resize(list);
        tools_->UpdatePanelLayout(false, false);
    }
    return 0;
}

LRESULT frmSettings::onGetMinMaxInfo(LPARAM lParam) {
    auto& limits = *reinterpret_cast<MINMAXINFO*>(lParam);
    const SIZE frame = frameSize();
    const int width = layout().width + static_cast<int>(frame.cx);
    limits.ptMinTrackSize.x = width;
    limits.ptMaxTrackSize.x = width;
    limits.ptMinTrackSize.y = layout().shortHeight + frame.cy;
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
    const SettingsHeight::Present former = present();
    const int formerDpi = std::exchange(dpi_, static_cast<int>(HIWORD(wParam)));
    layOutControls();
    const RECT& place = *reinterpret_cast<const RECT*>(lParam);
    const SIZE frame = frameSize();
    const auto height = height_.movedToDpi(formerDpi, dpi_, former, place.bottom - place.top,
                                           layout().shortHeight + frame.cy);
    if (height) {
        SetWindowPos(handle(), nullptr, place.left, place.top, layout().width + frame.cx, *height,
                     SWP_NOZORDER | SWP_NOACTIVATE);
    }
    InvalidateRect(handle(), nullptr, FALSE);
    return 0;
}

LRESULT frmSettings::onDisplayChange() {
    bringOntoScreens(handle());
    if (resizer_) {
        bringOntoScreens(resizer_->handle());
    }
    if (view_) {
        bringOntoScreens(view_->lens().lens().handle());
    }
    return 0;
}

LRESULT frmSettings::onActivate(WPARAM kind, HWND other) {
    if (LOWORD(kind) == WA_INACTIVE) {
        focus_.controlDeactivated();
        if (other != nullptr && other == worksheet_->handle()) {
            // A worksheet that comes to the front must not cover the panels.
            PostMessageW(handle(), wmRaise, 0, 0);
        }
    } else {
        const bool fromOwnWindow =
            other != nullptr && GetWindowThreadProcessId(other, nullptr) == GetCurrentThreadId();
        focus_.controlActivated(handle(), fromOwnWindow);
    }
    return DefWindowProcW(handle(), WM_ACTIVATE, kind, reinterpret_cast<LPARAM>(other));
}

LRESULT frmSettings::onMouseActivate(WPARAM wParam, LPARAM lParam) {
    const DWORD place = GetMessagePos();
    focus_.pressed(tools_->hasPanelAt({GET_X_LPARAM(place), GET_Y_LPARAM(place)}));
    return DefWindowProcW(handle(), WM_MOUSEACTIVATE, wParam, lParam);
}

LRESULT frmSettings::onFocus() {
    if (focus_.passesKeyboardOn()) {
        tools_->giveFocusToPanel();
    }
    return 0;
}

LRESULT frmSettings::onTimer(WPARAM id) {
    if (id == tmrButtonBig) {
        bar_->growButtons(dpi_);
    } else if (id == tmrFast) {
        tools_->tick();
    } else {
        view_->tick(id);
    }
    return 0;
}

LRESULT frmSettings::onCommand(WPARAM wParam) {
    if (LOWORD(wParam) == idFontSize && HIWORD(wParam) == BN_CLICKED) {
        constexpr int large = 9;
        constexpr int normal = 8;
        const bool ticked = SendMessageW(check1_.handle(), BM_GETCHECK, 0, 0) == BST_CHECKED;
        globalEvents_.ChangeFontSize(ticked ? large : normal);
    }
    return 0;
}

bool frmSettings::preview(const MSG& message) {
    if (tools_ && tools_->swallows(message)) {
        return true;
    }
    const bool own =
        !closed_ && (message.hwnd == handle() || IsChild(handle(), message.hwnd) != FALSE);
    if (!own || message.message != WM_KEYDOWN) {
        return false;
    }
    const int key = static_cast<int>(message.wParam);
    return onKey(key) || (key == VK_TAB && focusNextControl(heldModifiers()));
}

bool frmSettings::focusNextControl(int shift) {
    if ((shift & ~modifier::shift) != 0) {
        return false;
    }
    const HWND next = nextTabStop(handle(), GetFocus(), shift == modifier::shift);
    if (next != nullptr) {
        SetFocus(next);
        tools_->ensureControlVisible(next);
    }
    return true;
}

/// Of the selected tool, as the worksheet does it.
bool frmSettings::stepHistoryOfSelected(bool back) {
    if (OverlayItem* const tool = worksheet_->sheet().selected()) {
        stepHistory(*tool, back);
    }
    return true;
}

bool frmSettings::onKey(int key) {
    const bool shiftOnly = heldModifiers() == modifier::shift;
    const bool ctrlOnly = heldModifiers() == modifier::ctrl;
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
        case key::f12:
            ShowOptions(0);
            return true;
        case key::z:
        case key::y:
            return ctrlOnly && stepHistoryOfSelected(key == key::z);
        default:
            return false;
    }
}

}  // namespace ormala
