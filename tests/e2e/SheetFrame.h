#pragma once

#include "e2e/SheetScene.h"

// The frame about the worksheet of a scene, as a user meets it.
namespace ormala::test {

DesktopWindow frameOf(const SheetScene& scene);
/// Where the worksheet belongs on the screen: in the frame's client area, but for the margin.
ScreenRect holeOf(const SheetScene& scene);
/// Waits until the worksheet lies there.
bool worksheetFits(const SheetScene& scene);
/// A point of the title bar that the control window does not cover at a first start.
ScreenPoint titleBarOf(const SheetScene& scene);

/// Moves and sizes a window from outside: a window manager listens to no synthetic mouse.
void place(const DesktopWindow& window, const ScreenRect& rect);
/// The same without a change of the size.
void moveTo(const DesktopWindow& window, ScreenPoint origin);

}  // namespace ormala::test
