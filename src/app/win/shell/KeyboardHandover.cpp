#include "app/win/shell/KeyboardHandover.h"

#include "app/keyboardHeir.h"
#include "platform/win/composition.h"

namespace ormala {

namespace {

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
