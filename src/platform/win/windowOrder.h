#pragma once

#include <windows.h>

namespace ormala {

/// Puts a window behind `after`, at first on top, without activating it and without touching its
/// owner's place.
inline void raiseWithoutActivating(HWND window, HWND after = HWND_TOP) {
    SetWindowPos(window, after, 0, 0, 0, 0,
                 SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE | SWP_NOOWNERZORDER);
}

/// Raises a window that is to be in front of `other`, also where the display has another order than
/// the system: one that the system has in front of `other` is put behind it first, since a call
/// that changes nothing does not reach a window manager that has raised `other` by itself. A
/// minimised window is left alone: even without being moved it could forget where it stood.
inline void raiseAgainOver(HWND window, HWND other) {
    if (IsIconic(window) != FALSE) {
        return;
    }
    HWND above = GetWindow(other, GW_HWNDPREV);
    while (above != nullptr && above != window) {
        above = GetWindow(above, GW_HWNDPREV);
    }
    if (above == window) {
        raiseWithoutActivating(window, other);
    }
    raiseWithoutActivating(window);
}

/// The same where another program has the foreground: there a display may show `other` in front
/// when it comes back. A hidden window is left alone.
inline void raiseAgainBesideAnotherProgram(HWND window, HWND other) {
    DWORD front = 0;
    GetWindowThreadProcessId(GetForegroundWindow(), &front);
    if (front != GetCurrentProcessId() && IsWindowVisible(window) != FALSE) {
        raiseAgainOver(window, other);
    }
}

}  // namespace ormala
