#pragma once

#include <windows.h>

#include "base/Event.h"
#include "modAPI/PixelRect.h"

namespace ormala {

/// The monitor that the window is on, or is next to.
MONITORINFO monitorAround(HWND window);
/// The same for a place.
MONITORINFO monitorAround(const RECT& place);

/// The bounds of all screens together; those of the primary one where the system does not tell.
RECT virtualScreen();

/// What that monitor has for windows.
RECT workAreaAround(HWND window);

/// Whether a message says that the monitors, or what they have for windows, may be others than
/// before.
bool tellsOfScreens(UINT message, WPARAM wParam);
/// Raises the event if so.
void tellOfScreens(const Event<>& changed, UINT message, WPARAM wParam);

/// Where the mouse is on the screens.
POINT cursorPlace();
PixelPoint mousePoint();

}  // namespace ormala
