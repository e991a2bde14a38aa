#pragma once

#include <windows.h>

namespace ormala {

/// The monitor that the window is on, or is next to.
MONITORINFO monitorAround(HWND window);

/// What that monitor has for windows.
RECT workAreaAround(HWND window);

}  // namespace ormala
