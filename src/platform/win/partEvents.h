#pragma once

#include <windows.h>

namespace ormala {

// What happens to the parts of a window whose objects `AccessibleTree` makes.

/// Whether any program may want to hear what happens to the parts of windows.
bool partEventsAreHeard();
/// Tells of an event, one of the EVENT_OBJECT_ numbers, at a tool, or at the window as a whole.
void tellPartEvent(HWND window, DWORD event, int tool);

}  // namespace ormala
