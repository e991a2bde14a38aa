#pragma once

#include <optional>

#include "magnifier/PointerPicture.h"
#include "magnifier/lensOverlays.h"
#include "magnifier/win/LensPicture.h"
#include "magnifier/win/ScreenSource.h"

namespace ormala {

/// The enlarged image with everything that lies on it. All its bitmaps are made with the layout,
/// none in a frame.
class LensImage {
  public:
    explicit LensImage(HWND parent);

    [[nodiscard]] LensPicture& picLens() { return picLens_; }
    void setPlace(const LensLayout& layout);
    /// One frame: captures the screen at `source` and draws the image with the pointer, which may
    /// be null, unless it is the same picture with the same look as in the last frame. What lies
    /// outside `bounds` shows the ground.
    void refresh(const LensImageLook& look, HCURSOR pointer, PixelPoint source,
                 const PixelRect& bounds);
    /// What the last frame shows of the screen at a place of what was captured, as a plain colour;
    /// none if it has no such place.
    [[nodiscard]] std::optional<Color> colorAt(PixelPoint place) const;
    /// The screens or the pointers may be others: both are asked for anew in the next frame.
    void screenChanged();

  private:
    void takePointer(HCURSOR pointer);

    /// With `picBuff` as its picture.
    LensPicture picLens_;
    ScreenSource screen_;
    BackBuffer picInter_;
    /// What the last frame shows, and how.
    BackBuffer lastPicture_;
    std::optional<LensImageLook> lastLook_;
    /// The pointer that the picture is of; null while there is none to be seen.
    std::optional<HCURSOR> knownPointer_;
    PointerPicture pointerPicture_;
};

}  // namespace ormala
