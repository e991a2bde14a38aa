#pragma once

#include <windows.h>

namespace ormala {

// The system's high contrast, in which all windows of controls have its colours.

/// Whether it was on when it was last asked for.
bool isHighContrast();

/// Whether a message tells a top-level window that the colours of the system may be others.
bool tellsOfColors(UINT message, WPARAM wParam);

/// Takes a window and all in it to the colours that the system has now.
void followColors(HWND window);

}  // namespace ormala
