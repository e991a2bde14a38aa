#pragma once

#include <windows.h>

namespace ormala {

/// The control of a window that the Tab key goes to from the focus, or backwards; null if there is
/// none. Neighbours follow each other by their control IDs, and the panels of a list as they stand
/// below each other.
HWND nextTabStop(HWND window, HWND focus, bool backwards);

}  // namespace ormala
