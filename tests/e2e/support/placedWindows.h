#pragma once

#include <vector>

#include "e2e/support/DesktopWindow.h"

namespace ormala::test {

/// Wine's name for the display's own window; 0 for one that has none.
UINT_PTR displayWindow(const DesktopWindow& window);

/// Whether those of the windows that are shown lie where the display shows them. Its window manager
/// takes a new window into a frame some time after the program has shown it, and Wine believes for
/// a moment that it lies in the corner of the screen: what is clicked by its place then is
/// something else. Always so on a display that is not the stage's own.
bool arePlaced(const std::vector<DesktopWindow>& windows);

/// Makes the window manager of the stage begin anew, which takes each window into a new frame.
void placeAnew();

/// A window manager that lags can tell a place in vain, or take a window for one that has gone, and
/// stays at that: after some seconds the windows are moved to and fro, and then placed anew.
void waitUntilPlaced(const std::vector<DesktopWindow>& windows);

}  // namespace ormala::test
