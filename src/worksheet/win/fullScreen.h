#pragma once

#include <windows.h>

#include "modAPI/PixelRect.h"

namespace ormala {

/// Where a worksheet that is on a window's monitor fills it. Pixels of the screen.
PixelRect fullScreenPlaceAround(HWND window);

/// Tells the shell that a window which covers a monitor is no program in full screen, for which it
/// would hide the task bar and hold back its messages. Before the window is shown.
void keepFromFullScreenMode(HWND window);
/// Before the window ends.
void forgetFullScreenMode(HWND window);

}  // namespace ormala
