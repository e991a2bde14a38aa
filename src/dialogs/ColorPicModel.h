#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/Event.h"
#include "dialogs/MousePicking.h"
#include "dialogs/palettes.h"

namespace ormala {

/// What the colour picker holds and decides: the colour, the mark on its field, mouse, keys and
/// blinking. Places are pixels of the shown palette.
class ColorPicModel : public MousePicking {
  public:
    ColorPicModel();

    [[nodiscard]] Color RGBColor() const { return rgbColor_; }
    /// Kept within black and white. The mark goes to the first field of that colour; where there is
    /// none, to the one that comes nearest. Raises no `RGBChanged`.
    void setRGBColor(Color color);
    /// The colour of the field under the mark becomes the chosen one.
    void SetRGBColorToCurrentPixelColor();

    /// Such as "#FFE600".
    [[nodiscard]] std::string valueText() const override;

    [[nodiscard]] int PictureIndex() const { return pictureIndex_; }
    /// An index beyond an end takes the palette at that end. The mark goes to the colour.
    void setPictureIndex(int index);
    /// The size of a field in pixels, each kept within 1 and 100.
    [[nodiscard]] int SizeFactorX() const { return factor_.width; }
    [[nodiscard]] int SizeFactorY() const { return factor_.height; }
    void setSizeFactorX(int factor);
    void setSizeFactorY(int factor);

    /// The palette fills just that room from now on, whichever it is; its fields may differ by a
    /// pixel.
    void setRoom(PixelSize room);

    [[nodiscard]] const Palette& palette() const { return paletteOf(pictureIndex_); }
    /// Of the whole palette in pixels.
    [[nodiscard]] PixelSize size() const;
    /// The field under the mark, and its pixels.
    [[nodiscard]] PixelPoint field() const { return field_; }
    [[nodiscard]] PixelRect fieldBox(PixelPoint field) const;
    [[nodiscard]] PixelRect shpSelected() const { return fieldBox(field_); }
    /// At rest black or white, whichever stands out; blinking while the focus is here.
    [[nodiscard]] Color markColor() const;

    void press(PixelPoint point) override;
    void move(PixelPoint point) override;
    void doubleClick() override { doubleClicked_ = true; }
    void release(PixelPoint point) override;
    void cancel() override;
    /// An arrow key picks the next field; false for any other key.
    bool keyDown(int key);

    void setFocus(bool focused);
    /// Wants to be called each 30 ms while the focus is here.
    void tick();

    /// The user has picked a field, be it the same one again. A handler must not destroy the
    /// picker.
    Event<> RGBChanged;
    /// Raised last: a handler may destroy the picker.
    Event<> DoubleClick;

  private:
    [[nodiscard]] PixelPoint fieldAt(PixelPoint point) const;
    void PickAt(PixelPoint point);
    void pickField(PixelPoint field);

    Color rgbColor_ = 0;
    int pictureIndex_ = 0;
    PixelSize factor_{10, 10};
    std::optional<PixelSize> room_;
    PixelPoint field_;
    bool mouseIsDown_ = false;
    bool doubleClicked_ = false;
    bool hasFocus_ = false;
    std::vector<Color> blinkColors_;
    std::size_t blinkIndex_ = 0;
};

}  // namespace ormala
