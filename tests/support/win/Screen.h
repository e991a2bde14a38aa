#pragma once

#include "support/win/Picture.h"
#include "support/win/ScreenGeometry.h"
#include "support/win/Wait.h"

namespace ormala::test::screen {

/// Makes the process see the screen's own pixels on monitors of any DPI. To be called before the
/// first window.
void usePhysicalPixels();

/// All monitors together; its upper left corner can be negative.
ScreenRect virtualScreen();
ScreenRect primaryMonitor();

/// What the screen shows now, layered windows included, the mouse pointer not. The rectangle must
/// have a pixel at least. Throws std::runtime_error if the system refuses.
Picture capture(const ScreenRect& rect);
Color pixel(ScreenPoint point);

/// Waits until the rectangle has not changed for `quiet`, and returns it. Throws std::runtime_error
/// if it is still changing at the deadline.
Picture waitUntilStill(const ScreenRect& rect, milliseconds quiet = milliseconds{100},
                       milliseconds deadline = usualDeadline);

}  // namespace ormala::test::screen
