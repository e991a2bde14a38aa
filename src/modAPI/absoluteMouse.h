#pragma once

namespace ormala {

/// The absolute coordinate, in 1/65536 of all monitors together, that the system turns back into
/// the same pixel. They begin at `origin` and are `size` pixels long in that direction.
int absoluteMouseCoordinate(int pixel, int origin, int size);

}  // namespace ormala
