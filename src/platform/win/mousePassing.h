#pragma once

#include <windows.h>

namespace ormala {

/// Sends a mouse message of a control on to its parent, in the parent's coordinates. False for
/// every other message, and for the wheel, which the system passes on itself.
bool passMouseToParent(HWND control, UINT message, WPARAM wParam, LPARAM lParam);

}  // namespace ormala
