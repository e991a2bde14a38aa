#pragma once

#include <windows.h>

namespace ormala {

// What puts the windows of all programs together on the screen.

/// Returns when all that has been drawn is on the screen.
void waitForComposition();

/// Whether the system keeps a window that is shown out of sight, as those of suspended programs.
bool isCloaked(HWND window);

}  // namespace ormala
