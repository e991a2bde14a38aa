#pragma once

#include <windows.h>

namespace ormala {

/// Puts what the screen shows where the worksheet lies on the clipboard, without the control
/// window, which is moved out of the way meanwhile. Windows that are hidden for it must have been
/// hidden before.
void takeScreenShot(HWND control, HWND worksheet);

}  // namespace ormala
