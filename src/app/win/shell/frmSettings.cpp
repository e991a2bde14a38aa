#include "app/win/shell/frmSettings.h"

#include <wtsapi32.h>

#include <algorithm>
#include <array>

#include "app/keyTables.h"
#include "app/modes.h"
#include "app/win/shell/settingsIds.h"
#include "platform/win/controlDpi.h"
#include "platform/win/fills.h"
#include "platform/win/monitors.h"
#include "platform/win/windowOrder.h"
#include "scene/Input.h"
#include "widgets/lookColors.h"
#include "widgets/win/buttonNeighbours.h"
#include "widgets/win/tabStops.h"

namespace ormala {

namespace {

WindowDesign settingsDesign() {
    WindowDesign design;
    design.className = L"frmSettings";
    design.style =
        WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_THICKFRAME | WS_MINIMIZEBOX | WS_CLIPCHILDREN;
    design.extendedStyle = WS_EX_CONTROLPARENT;
    return design;
}

bool isOfThisThread(HWND window) {
    return window != nullptr && GetWindowThreadProcessId(window, nullptr) == GetCurrentThreadId();
}

}  // namespace

frmSettings::Parts::Parts(const frmSettings& window, clsGlobalEvents& globalEvents)
    : bar(window),
      look(window.handle()),
      fontSizeBox(window.handle(), globalEvents),
      screenLock(window.handle()) {}

frmSettings::frmSettings(const Ports& ports) : ports_(ports) {
    create(settingsDesign());
    size_.placeFirst();
    parts_ = std::make_unique<Parts>(*this, ports_.globalEvents);
    buttonPressed_ =
        parts_->bar.chosen.subscribe([this](Command command) { chosen.raise(command); });
    layOutControls();
    modeMenu_.addTo(handle());
}

void frmSettings::RefreshRuntimeStrings() {
    parts_->bar.ApplyLanguage();
    parts_->look.ApplyLanguage();
    modeMenu_.RefreshRuntimeStrings(ports_.view.options().mode);
    showMode();
}

void frmSettings::showMode() {
    const Mode mode = ports_.view.options().mode;
    setCaption(captionOfMode(mode));
    modeMenu_.SyncSystemMenu(mode);
}

void frmSettings::layOutControls() {
    // A window that is just being made may come to another resolution.
    if (parts_ == nullptr) {
        return;
    }
    parts_->bar.layOut(size_.layout(), size_.dpi());
    parts_->look.layOut(size_.layout(), size_.dpi());
}

PixelRect frmSettings::listPlace() const {
    PixelRect list = size_.layout().picOuter;
    // The margin below it is that at its left.
    list.bottom = std::max(static_cast<int>(clientRectangle().bottom) - list.left, list.top);
    return list;
}

void frmSettings::raise() const {
    // Even without being moved, a minimised window could forget where it stood.
    if (IsIconic(handle()) == FALSE) {
        raiseWithoutActivating(handle(), HWND_TOPMOST);
        raiseWithoutActivating(handle());
    }
}

std::optional<LRESULT> frmSettings::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    using Result = std::optional<LRESULT>;
    using Handler = Result (*)(frmSettings&, WPARAM, LPARAM);
    static constexpr std::array<std::pair<UINT, Handler>, 21> handlers{{
        {WM_ERASEBKGND, [](frmSettings& self, WPARAM w, LPARAM) { return self.onErase(w); }},
        {WM_SIZE, [](frmSettings& self, WPARAM w, LPARAM) { return self.onSize(w); }},
        {WM_GETMINMAXINFO,
         [](frmSettings& self, WPARAM, LPARAM l) { return self.onGetMinMaxInfo(l); }},
        {WM_DPICHANGED,
         [](frmSettings& self, WPARAM w, LPARAM l) { return self.onDpiChanged(w, l); }},
        {WM_ACTIVATE, [](frmSettings& self, WPARAM w, LPARAM l) { return self.onActivate(w, l); }},
        {WM_MOUSEACTIVATE,
         [](frmSettings& self, WPARAM, LPARAM) { return self.onMouseActivate(); }},
        {WM_SYSCOMMAND,
         [](frmSettings& self, WPARAM w, LPARAM l) { return self.onSysCommand(w, l); }},
        {WM_COMMAND, [](frmSettings& self, WPARAM w, LPARAM) { return self.onCommand(w); }},
        {WM_WINDOWPOSCHANGED, [](frmSettings& self, WPARAM, LPARAM l) { return self.onPlaced(l); }},
        {WM_ACTIVATEAPP,
         [](frmSettings& self, WPARAM w, LPARAM) {
             self.ports_.focus.programActivated(w != FALSE);
             return Result();
         }},
        {WM_SETFOCUS,
         [](frmSettings& self, WPARAM, LPARAM) {
             self.keyboardArrived.raise();
             return Result(0);
         }},
        {WM_DISPLAYCHANGE,
         [](frmSettings& self, WPARAM w, LPARAM) { return self.onScreens(WM_DISPLAYCHANGE, w); }},
        {WM_SETTINGCHANGE,
         [](frmSettings& self, WPARAM w, LPARAM) { return self.onScreens(WM_SETTINGCHANGE, w); }},
        {WM_SETCURSOR, [](frmSettings& self, WPARAM, LPARAM) { return self.onMouseOver(); }},
        {WM_WTSSESSION_CHANGE,
         [](frmSettings& self, WPARAM w, LPARAM) { return self.onSessionChange(w); }},
        {WM_POWERBROADCAST, [](frmSettings& self, WPARAM w, LPARAM) { return self.onPower(w); }},
        {WM_TIMER, [](frmSettings& self, WPARAM w, LPARAM) { return self.onTimer(w); }},
        {DeferredCalls::message,
         [](frmSettings& self, WPARAM, LPARAM) {
             self.calls_.runNext();
             return Result(0);
         }},
        {WM_CLOSE, [](frmSettings& self, WPARAM, LPARAM) { return self.onClose(); }},
        {WM_QUERYENDSESSION,
         [](frmSettings& self, WPARAM, LPARAM l) {
             return Result(self.ports_.life.queryEndOfSession((l & ENDSESSION_CRITICAL) != 0));
         }},
        {WM_ENDSESSION,
         [](frmSettings& self, WPARAM w, LPARAM l) {
             // The windows stay, since a message of one of them may be in hand at this moment.
             self.ports_.life.endOfSession(w != FALSE, (l & ENDSESSION_CLOSEAPP) != 0);
             return Result(0);
         }},
    }};
    const auto* const found =
        std::ranges::find(handlers, message, &std::pair<UINT, Handler>::first);
    return found != handlers.end() ? found->second(*this, wParam, lParam) : std::nullopt;
}

std::optional<LRESULT> frmSettings::onClose() {
    ports_.life.close();
    return 0;
}

std::optional<LRESULT> frmSettings::onSessionChange(WPARAM change) {
    parts_->screenLock.take(change);
    return 0;
}

std::optional<LRESULT> frmSettings::onPower(WPARAM event) {
    parts_->screenLock.takePower(event);
    return TRUE;
}

std::optional<LRESULT> frmSettings::onErase(WPARAM context) const {
    fillRect(reinterpret_cast<HDC>(context), clientRectangle(), dark::ground);
    return 1;
}

std::optional<LRESULT> frmSettings::onSize(WPARAM kind) {
    const Mode mode = ports_.view.options().mode;
    if (size_.resized(kind)) {
        size_.AdjustFormHeight(mode, mode);
    }
    if (kind != SIZE_MINIMIZED) {
        listPlaced.raise();
    }
    return 0;
}

std::optional<LRESULT> frmSettings::onGetMinMaxInfo(LPARAM limits) const {
    size_.limit(*reinterpret_cast<MINMAXINFO*>(limits));
    return DefWindowProcW(handle(), WM_GETMINMAXINFO, 0, limits);
}

std::optional<LRESULT> frmSettings::onDpiChanged(WPARAM dpi, LPARAM suggested) {
    takeLayout(
        size_.changeDpi(static_cast<int>(HIWORD(dpi)), *reinterpret_cast<const RECT*>(suggested)));
    return 0;
}

void frmSettings::takeLayout(const std::optional<PixelRect>& place) {
    layOutControls();
    dpiChanged.raise();
    size_.acrossDpi().take(handle(), place);
    InvalidateRect(handle(), nullptr, FALSE);
}

std::optional<LRESULT> frmSettings::onScreens(UINT message, WPARAM setting) {
    readTextSize();
    if (controlDpi(handle()) != size_.dpi()) {
        takeLayout(size_.changeTextSize());
    }
    tellOfScreens(displayChanged, message, setting);
    return std::nullopt;
}

std::optional<LRESULT> frmSettings::onMouseOver() {
    watch_.mouseCame(size_.dpi());
    return std::nullopt;
}

std::optional<LRESULT> frmSettings::onActivate(WPARAM kind, LPARAM otherWindow) {
    const HWND other = reinterpret_cast<HWND>(otherWindow);
    if (LOWORD(kind) == WA_INACTIVE) {
        ports_.focus.controlDeactivated();
    } else {
        ports_.focus.controlActivated(handle(), isOfThisThread(other));
    }
    return std::nullopt;
}

std::optional<LRESULT> frmSettings::onMouseActivate() const {
    // The press itself is not fetched yet: the place of a message would be that of the one before,
    // from which a tap of a pen or a finger may be far away.
    pressed.raise(cursorPlace());
    return std::nullopt;
}

std::optional<LRESULT> frmSettings::onPlaced(LPARAM place) {
    if ((reinterpret_cast<const WINDOWPOS*>(place)->flags & SWP_NOZORDER) == 0) {
        orderChanged.raise();
    }
    watch_.windowChanged(size_.dpi());
    placed.raise();
    return std::nullopt;
}

std::optional<LRESULT> frmSettings::onSysCommand(WPARAM entry, LPARAM place) {
    const LRESULT result = DefWindowProcW(handle(), WM_SYSCOMMAND, entry, place);
    if (const auto command = commandOfSystemMenu(static_cast<int>(entry))) {
        chosen.raise(*command);
    }
    return result;
}

std::optional<LRESULT> frmSettings::onTimer(UINT_PTR timer) {
    if (timer == tmrButtonBig) {
        watch_.look(size_.dpi());
        parts_->bar.growButtons(size_.dpi());
    } else {
        ticked.raise(timer);
    }
    return 0;
}

std::optional<LRESULT> frmSettings::onCommand(WPARAM notification) {
    if (parts_ != nullptr) {
        parts_->fontSizeBox.onCommand(notification);
    }
    return 0;
}

bool frmSettings::preview(const MSG& message) {
    const bool own = message.hwnd == handle() || IsChild(handle(), message.hwnd) != FALSE;
    if (!own || message.message != WM_KEYDOWN) {
        return false;
    }
    const int key = static_cast<int>(message.wParam);
    const int held = heldModifiers();
    return obeyKey(key, held, KeyWindow::control,
                   [this](Command command) { chosen.raise(command); }) ||
           (key == key::tab && focusNextControl(held)) || focusButtonBeside(key, held);
}

bool frmSettings::focusButtonBeside(int key, int held) const {
    const HWND next = held == 0 ? neighbourOfButton(GetFocus(), key) : nullptr;
    if (next != nullptr) {
        SetFocus(next);
        tabbed.raise(next);
    }
    return next != nullptr;
}

bool frmSettings::focusNextControl(int held) {
    if ((held & ~modifier::shift) != 0) {
        return false;
    }
    tabbing.raise(held == modifier::shift);
    if (const HWND next = nextTabStop(handle(), GetFocus(), held == modifier::shift)) {
        SetFocus(next);
        tabbed.raise(next);
    }
    return true;
}

}  // namespace ormala
