#pragma once

namespace ormala {

/// Paints what has to be painted, and lets the other programs and the composition of the desktop
/// show what was covered. Input waits, so that no command comes in between.
void letScreenSettle();

}  // namespace ormala
