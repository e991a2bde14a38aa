#pragma once

#include "modAPI/PixelRect.h"

namespace ormala {

/// Where the frame stands on a first start: centred, with the golden section of the screen's size.
PixelRect defaultFramePlace(PixelSize screen);

/// The worksheet's place in the frame's client area: five pixels inside, at any resolution.
PixelRect worksheetInFrame(PixelSize client);

/// The edges of a monitor at which a bar hides until the mouse comes there.
struct HiddenBars {
    bool left = false;
    bool top = false;
    bool right = false;
    bool bottom = false;
};

/// Where a worksheet lies that fills its screen: all of what is `free` there for windows, without
/// the pixel at an edge by which a hidden bar is called, and never the whole monitor. A window that
/// covers one counts as a program in full screen: some window managers lift it above the windows
/// that have to stay in front of the worksheet, and others put the task bar and all messages behind
/// it.
PixelRect fullScreenPlace(const PixelRect& monitor, const PixelRect& free,
                          const HiddenBars& bars = {});

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

/// Sees to it that the worksheet lies exactly in the hole of its frame, wherever a window manager
/// has put either of them.
class HoleKeeper {
  public:
    enum class Step { rest, putNow, putLater };

    /// Whether the worksheet, which lies at `actual`, has to be put into `hole` once more: at once,
    /// or, if that has been of no use, when the system has had time to come to rest. One that will
    /// not have it there is let be in the end, until the hole is another one.
    Step next(const PixelRect& actual, const PixelRect& hole);

  private:
    PixelRect hole_;
    int tries_ = 0;
};

}  // namespace ormala
