#include "platform/win/highContrast.h"

#include "platform/win/composition.h"

namespace ormala {

namespace {

bool askSystem() {
    HIGHCONTRASTW setting{};
    setting.cbSize = sizeof setting;
    return SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof setting, &setting, 0) != FALSE &&
           (setting.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

/// Asked for once for all colours, of which a painting needs thousands.
bool& lastAnswer() {
    static bool on = askSystem();
    return on;
}

}  // namespace

bool isHighContrast() {
    return lastAnswer();
}

bool tellsOfColors(UINT message, WPARAM wParam) {
    return message == WM_SYSCOLORCHANGE || message == WM_THEMECHANGED ||
           (message == WM_SETTINGCHANGE && wParam == SPI_SETHIGHCONTRAST);
}

void followColors(HWND window) {
    lastAnswer() = askSystem();
    if ((GetWindowLongPtrW(window, GWL_STYLE) & WS_CAPTION) == WS_CAPTION) {
        darkenFrame(window);
    }
    EnumChildWindows(
        window,
        [](HWND child, LPARAM) -> BOOL {
            // The system tells top-level windows only.
            SendMessageW(child, WM_SYSCOLORCHANGE, 0, 0);
            return TRUE;
        },
        0);
    RedrawWindow(window, nullptr, nullptr,
                 RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
}

}  // namespace ormala
