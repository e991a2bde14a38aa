#pragma once

#include "e2e/support/Desktop.h"

namespace ormala::test {

/// Clicks into a window until it is the foremost one. What the window manager still has in hand may
/// take the front from it once more; nobody else does.
inline bool clickToFront(Mouse& mouse, const DesktopWindow& window, ScreenPoint at) {
    constexpr int most = 5;
    constexpr milliseconds soon{1500};
    for (int i = 0; i < most; ++i) {
        mouse.click(at);
        if (waitUntil([&] { return window.isForeground(); }, soon)) {
            return true;
        }
    }
    return false;
}

/// Puts a window in front of another one on the display too, where a window manager that is busy
/// may have them the other way round: a click goes to whatever the display has under the mouse.
/// Both ways, since what the system takes for done it does not do.
inline void bringInFrontOf(const DesktopWindow& other, const DesktopWindow& window) {
    constexpr UINT order = SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_NOOWNERZORDER;
    SetWindowPos(window.handle(), other.handle(), 0, 0, 0, 0, order);
    SetWindowPos(window.handle(), HWND_TOP, 0, 0, 0, 0, order);
    window.settle();
    screen::waitUntilStill(window.rect(), milliseconds{50});
}

}  // namespace ormala::test
