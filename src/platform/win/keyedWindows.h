#pragma once

namespace ormala {

/// Whether the system cuts windows of which a colour is keyed out as shapes of rectangles: Wine
/// does, and ends a program whose shapes have too many of them.
bool cutsKeyedWindowsAsShapes();

}  // namespace ormala
