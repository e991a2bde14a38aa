#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "dialogs/ColorPicModel.h"
#include "dialogs/win/PickerControl.h"
#include "platform/win/Timer.h"

namespace ormala {

/// Shows one of the palettes, on which the user picks a colour by mouse or arrow keys. A mark
/// stands on the chosen field and blinks while the focus is here.
class ColorPic : public PickerControl {
  public:
    /// A visible child of `parent` in its corner. `name` is its control name.
    ColorPic(HWND parent, int id, std::string_view name);
    ~ColorPic() override { destroy(); }

    [[nodiscard]] Color RGBColor() const { return model_.RGBColor(); }
    /// Kept within black and white. The mark goes to the first field of that colour; where there is
    /// none, to the one that comes nearest. Raises no `RGBChanged`.
    void setRGBColor(Color color);
    /// The colour of the field under the mark becomes the chosen one.
    void SetRGBColorToCurrentPixelColor();

    [[nodiscard]] int PictureIndex() const { return model_.PictureIndex(); }
    /// The palette that is shown; see `palettes.h`.
    void setPictureIndex(int index);
    /// The size of a field in pixels of the screen, each kept within 1 and 100. The control takes
    /// the size of its palette.
    [[nodiscard]] int SizeFactorX() const { return model_.SizeFactorX(); }
    [[nodiscard]] int SizeFactorY() const { return model_.SizeFactorY(); }
    void setSizeFactorX(int factor);
    void setSizeFactorY(int factor);
    /// The upper left corner in the parent's pixels.
    void place(PixelPoint corner) const;
    /// A place that the palette fills from now on, whichever it is.
    void place(const PixelRect& room);
    /// The mouse picks without taking the focus, and gives it back to the window that has lost it
    /// to the press. Keys get it as ever.
    void leaveFocusToOthers();

    [[nodiscard]] const Palette& palette() const { return model_.palette(); }
    /// The pixels of a field, and of the field under the mark.
    [[nodiscard]] PixelRect fieldBox(PixelPoint field) const { return model_.fieldBox(field); }
    [[nodiscard]] PixelRect shpSelected() const { return model_.shpSelected(); }

    /// The user has picked a field, be it the same one again. A handler must not destroy the
    /// picker.
    Event<> RGBChanged;
    /// Raised once the colour is final: a handler may destroy the picker.
    Event<> DoubleClick;
    /// A key that the picker leaves to its owner.
    Event<int> KeyDown;

  private:
    std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void draw(HDC context) override;
    LRESULT onFocus(bool focused);
    LRESULT onTimer();
    std::optional<LRESULT> onKeyDown(int key);
    LRESULT onRelease(LPARAM lParam);
    void giveFocusBack();
    void resize();

    ColorPicModel model_;
    Timer Timer1_{1};
    bool leavesFocus_ = false;
    /// Of another window, at the press that has brought this one to the front.
    HWND formerFocus_ = nullptr;
    Subscription changing_;
    Subscription ending_;
};

}  // namespace ormala
