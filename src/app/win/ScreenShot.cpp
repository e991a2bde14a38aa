#include "app/win/ScreenShot.h"

#include <dwmapi.h>

#include "app/win/OffScreen.h"
#include "platform/win/clipboard.h"

namespace ormala {

namespace {

/// Paints what has to be painted, and lets the other programs and the composition of the desktop
/// show what was covered. Input waits, so that no command comes in between.
void letScreenSettle() {
    constexpr ULONGLONG patience = 120;
    const ULONGLONG end = GetTickCount64() + patience;
    for (ULONGLONG now = GetTickCount64(); now < end; now = GetTickCount64()) {
        MSG message{};
        if (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE | PM_QS_PAINT | PM_QS_SENDMESSAGE) !=
            FALSE) {
            DispatchMessageW(&message);
        } else {
            MsgWaitForMultipleObjects(0, nullptr, FALSE, static_cast<DWORD>(end - now),
                                      QS_PAINT | QS_SENDMESSAGE);
        }
    }
    DwmFlush();
}

}  // namespace

void takeScreenShot(HWND control, HWND worksheet) {
    const OffScreen aside(control);
    letScreenSettle();
    RECT area{};
    GetWindowRect(worksheet, &area);
    copyScreenToClipboard(control, area);
}

}  // namespace ormala
