#pragma once

#include <windows.h>

#include <functional>
#include <optional>

#include "modAPI/SizeAcrossDpi.h"

namespace ormala {

/// Calls `place` until it says that the window lies where it was put, a few times at most. A window
/// that comes to a monitor of another resolution is given another size in the middle of the call
/// that brings it there.
void placeSteadily(const std::function<bool()>& place);

/// Where a top-level window lies that is not minimised, or else where it comes back to: pixels of
/// the screen.
PixelRect normalPlaceOf(HWND window);
/// Neither shows the window nor hides it, nor changes its state.
void setNormalPlace(HWND window, const PixelRect& place);
/// In pixels; a minimised window comes back with it.
void setHeight(HWND window, int height);

/// The place of a top-level window through changes of resolution.
class PlaceAcrossDpi {
  public:
    /// Brings a hidden window to the place of an earlier run, which was stored in the pixels of the
    /// monitor there: until it has been shown, no change of resolution gives it another one.
    /// `place` as for `placeSteadily`.
    void restore(const std::function<bool()>& place);
    /// ShowWindow; ends that.
    void show(HWND window, int command);

    /// Where the window is to lie at `dpi`, as WM_DPICHANGED tells with a suggested place.
    PixelRect at(HWND window, int formerDpi, int dpi, const RECT& suggested);
    /// Puts it there, if there is a place.
    void take(HWND window, const std::optional<PixelRect>& place);

  private:
    SizeAcrossDpi size_;
    bool restored_ = false;
};

}  // namespace ormala
