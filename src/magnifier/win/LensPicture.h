#pragma once

#include <string_view>

#include "base/Event.h"
#include "platform/win/BackBuffer.h"
#include "platform/win/Window.h"
#include "widgets/lookColors.h"

namespace ormala {

/// A part of the magnifier's window that shows a picture kept in memory. Its mouse messages go to
/// its parent.
class LensPicture : public Window {
  public:
    /// A child of `parent`, without a size. `name` is its control name.
    LensPicture(HWND parent, int id, std::string_view name);
    ~LensPicture() override { destroy(); }

    /// Moves the window, and gives the picture the same size; its content may be lost.
    void setPlace(const PixelRect& box);
    [[nodiscard]] const BackBuffer& picture() const { return picture_; }
    /// The right and the lower rim of the window that show the ground instead of the picture.
    void setRim(int pixels);
    /// The picture has become another one.
    void setChanged() { isShown_ = false; }
    [[nodiscard]] bool isShown() const { return isShown_; }
    /// Puts a picture that has changed on the screen, in the coordinates of the parent.
    void show(HDC parentContext);

    /// The system wants to have the window painted, which is done from the picture afterwards.
    Event<> painting;

  private:
    std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    LRESULT onPaint();
    void copyTo(HDC context, PixelPoint corner) const;

    BackBuffer picture_;
    PixelPoint corner_;
    bool isShown_ = true;
    int rim_ = 0;
};

/// The ground of the window where it shows nothing.
inline constexpr Color lensGround = dark::fieldGround & figures;

}  // namespace ormala
