#pragma once

#include <windows.h>

namespace ormala {

// Controls and their windows are laid out for the resolution of their monitor times the size of
// text that the user has chosen for all programs, so that they hold the larger type.

/// On a monitor of that resolution.
int controlDpi(int monitorDpi);
/// In a window, on its present monitor.
int controlDpi(HWND window);

/// Reads the size of text anew, as it may be another one after a WM_SETTINGCHANGE.
void readTextSize();

}  // namespace ormala
