#pragma once

#include <windows.h>

namespace ormala {

/// The button of the same parent that an arrow key leads to from the one with the focus; null if
/// there is none, or `focus` is no button of the program's own.
HWND neighbourOfButton(HWND focus, int key);

}  // namespace ormala
