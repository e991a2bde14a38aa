#include "platform/win/InputBarrier.h"

namespace ormala {

InputBarrier::InputBarrier(HWND open) {
    EnumThreadWindows(
        GetCurrentThreadId(),
        [](HWND window, LPARAM found) -> BOOL {
            if (IsWindowVisible(window) != FALSE && IsWindowEnabled(window) != FALSE) {
                reinterpret_cast<std::vector<HWND>*>(found)->push_back(window);
            }
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&windows_));
    std::erase(windows_, open);
    for (const HWND window : windows_) {
        EnableWindow(window, FALSE);
    }
}

InputBarrier::~InputBarrier() {
    for (const HWND window : windows_) {
        EnableWindow(window, TRUE);
    }
}

}  // namespace ormala
