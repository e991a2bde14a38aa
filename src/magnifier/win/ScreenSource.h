#pragma once

#include "modAPI/PixelRect.h"
#include "modAPI/colors.h"
#include "platform/win/BackBuffer.h"
#include "platform/win/handles.h"

namespace ormala {

/// The screens, as something to copy from many times a second. What the system has to look up for
/// that is kept until `reopen`, which is due whenever the screens may be others.
class ScreenSource {
  public:
    ScreenSource() { reopen(); }

    void reopen();
    /// Fills the buffer from the place `source` of the virtual screen, in its pixels. What lies
    /// outside `bounds` or between the screens, and all while the screen is locked, is in the
    /// colour `ground`.
    void copyTo(const BackBuffer& buffer, PixelPoint source, const PixelRect& bounds,
                Color ground) const;

  private:
    void copy(HDC screen, const BackBuffer& buffer, PixelPoint source, const PixelRect& bounds,
              Color ground) const;

    /// None with several monitors.
    ContextHandle screen_;
    /// Screens of different sizes leave gaps.
    bool gaps_ = false;
};

}  // namespace ormala
