#pragma once

#include "modAPI/PixelRect.h"
#include "platform/win/TipWindow.h"

namespace ormala {

/// A tip that stands where its owner wants it, as long as the owner wants it. The mouse goes
/// through it.
class PlacedTip {
  public:
    /// `owner` must outlive it.
    explicit PlacedTip(HWND owner);

    /// The size that a text takes, in pixels.
    [[nodiscard]] PixelSize measure(const std::string& text);
    /// Shows the text measured last with its upper left corner there on the screen.
    void show(PixelPoint corner);
    void hide();
    [[nodiscard]] bool isShown() const { return isShown_; }

  private:
    TipWindow window_;
    HWND owner_;
    bool isShown_ = false;
};

}  // namespace ormala
