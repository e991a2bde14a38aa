#pragma once

#include "modAPI/colors.h"
#include "scene/PixelRect.h"

namespace ormala {

/// What is keyed out of the worksheet's frame: the hole in which the worksheet lies.
inline constexpr Color frameKeyColor = 0xC0C0C0;

/// Where the frame stands on a first start: centred, with the golden section of the screen's size.
PixelRect defaultFramePlace(PixelSize screen);

/// The worksheet's place in the frame's client area: five pixels inside, at any resolution.
PixelRect worksheetInFrame(PixelSize client);

/// The least outer size that a user can give the frame.
PixelSize leastFrameSize(int dpi);

/// Tells a frame that was sized, and must be painted again, from one that was only moved.
class FrameSizeMemory {
  public:
    /// True if the outer size differs from the one of the last call.
    bool changedTo(PixelSize outer);

  private:
    PixelSize last_;
};

}  // namespace ormala
