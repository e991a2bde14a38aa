#pragma once

#include "base/Event.h"

namespace ormala {

/// Carries a change of the font size from the control window to itself and to the panels. The
/// control window owns the one object.
class clsGlobalEvents {
  public:
    /// Raised by `ChangeFontSize` with the size in points.
    Event<int> FontSizeChange;

    void ChangeFontSize(int Size) const { FontSizeChange.raise(Size); }
};

}  // namespace ormala
