#pragma once

#include "modAPI/PixelRect.h"

namespace ormala {

/// The size of a window that is brought from one resolution to another. Back at the one where it
/// was given its size it has that size again, which the rounding on the way there and back would
/// not leave.
class SizeAcrossDpi {
  public:
    /// The size at `dpi` of a window that was `former` at `formerDpi`, and for which the system
    /// suggests another one.
    PixelSize at(int dpi, PixelSize suggested, int formerDpi, PixelSize former);
    /// What the window then really took.
    void took(PixelSize size) { taken_ = size; }

  private:
    /// Given to it by something else than a change of resolution.
    PixelSize own_;
    int ownDpi_ = 0;
    PixelSize taken_;
};

}  // namespace ormala
