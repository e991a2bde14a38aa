#pragma once

#include <windows.h>

namespace ormala {

// What puts the windows of all programs together on the screen.

/// Returns when all that has been drawn is on the screen.
void waitForComposition();

/// Whether the system keeps a window that is shown out of sight, as those of suspended programs.
bool isCloaked(HWND window);

/// Title bar and border are dark, as what they frame; in high contrast they are the system's.
void darkenFrame(HWND window);

/// The window is there and gone at once, so that a picture of the screen has no trace of it.
void showWithoutFading(HWND window);

}  // namespace ormala
