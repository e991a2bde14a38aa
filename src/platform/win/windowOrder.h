#pragma once

#include <windows.h>

namespace ormala {

/// Puts a window behind `after`, at first on top, without activating it and without touching its
/// owner's place.
inline void raiseWithoutActivating(HWND window, HWND after = HWND_TOP) {
    SetWindowPos(window, after, 0, 0, 0, 0,
                 SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE | SWP_NOOWNERZORDER);
}

}  // namespace ormala
