#pragma once

#include <windows.h>

namespace ormala {

/// Puts what the screen shows of an area, layered windows included, on the clipboard as a picture.
/// What lies beyond the screens is black. False if the system has no memory or another program
/// holds the clipboard.
bool copyScreenToClipboard(HWND owner, const RECT& area);

}  // namespace ormala
