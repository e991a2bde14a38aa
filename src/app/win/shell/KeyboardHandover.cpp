#include "app/win/shell/KeyboardHandover.h"

#include <dwmapi.h>

#include "app/keyboardHeir.h"

namespace ormala {

namespace {

/// The system keeps some windows of suspended programs shown, but out of sight.
bool isCloaked(HWND window) {
    DWORD cloaked = 0;
    return SUCCEEDED(DwmGetWindowAttribute(window, DWMWA_CLOAKED, &cloaked, sizeof cloaked)) &&
           cloaked != 0;
}

TopWindow describe(HWND window) {
    constexpr LONG_PTR aside = WS_EX_TOPMOST | WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE;
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    TopWindow facts;
    facts.ofThisProgram = process == GetCurrentProcessId();
    facts.shown = IsWindowVisible(window) != FALSE && !isCloaked(window);
    facts.enabled = IsWindowEnabled(window) != FALSE;
    facts.minimised = IsIconic(window) != FALSE;
    facts.standsAside = (GetWindowLongPtrW(window, GWL_EXSTYLE) & aside) != 0;
    return facts;
}

}  // namespace

void giveKeyboardToProgramBelow() {
    HWND heir = nullptr;
    // From the front to the back, until one is found.
    EnumWindows(
        [](HWND window, LPARAM found) -> BOOL {
            if (!inheritsKeyboard(describe(window))) {
                return TRUE;
            }
            *reinterpret_cast<HWND*>(found) = window;
            return FALSE;
        },
        reinterpret_cast<LPARAM>(&heir));
    SetForegroundWindow(heir != nullptr ? heir : GetShellWindow());
}

}  // namespace ormala
