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

}  // namespace ormala::test
