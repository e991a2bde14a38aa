#pragma once

#include <windows.h>

#include "modAPI/PixelRect.h"
#include "platform/win/handles.h"

namespace ormala {

/// What the screen shows of an area, layered windows included, on its way to the clipboard. What
/// lies beyond the screens is black.
class ScreenPicture {
  public:
    explicit ScreenPicture(const RECT& area);

    [[nodiscard]] PixelSize size() const { return size_; }
    /// False if the system had no memory for it, or took it.
    [[nodiscard]] bool isHere() const { return static_cast<bool>(memory_); }

    enum class Answer { taken, held, refused };
    /// Asks once. `held`: another program has the clipboard open at the moment.
    Answer putOnClipboard(HWND owner);

  private:
    PixelSize size_;
    Handle<HGLOBAL, &GlobalFree> memory_;
};

}  // namespace ormala
