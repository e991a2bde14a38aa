#pragma once

#include <windows.h>

#include <functional>
#include <span>

#include "modAPI/PixelRect.h"

namespace ormala {

/// What a drag in another program asks of the system; tests play a system of their own.
struct DragSystem {
    /// Whether the system lets this program speak to the window. It does not where the other
    /// program has more rights, as one that runs as administrator.
    std::function<bool(HWND window)> admits;
    /// How many of the records the system takes, from the first one on.
    std::function<UINT(std::span<INPUT> records)> send;
    /// Whether the user's main button is the right one of the device.
    std::function<bool()> areButtonsSwapped;
};

/// The real one.
DragSystem windowsDragSystem();

/// Presses the main mouse button at `from` and lets it go at `to`, in screen pixels on any monitor,
/// and returns when the program of `target`, the window at `from`, has got it. False, and the mouse
/// stays where it is, if the system refuses the input.
bool sendDrag(HWND target, PixelPoint from, PixelPoint to, const DragSystem& system);

}  // namespace ormala
