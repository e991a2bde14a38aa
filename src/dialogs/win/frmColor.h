#pragma once

#include "dialogs/win/ColorPic.h"
#include "dialogs/win/DialogFrame.h"
#include "widgets/win/ModalDialog.h"

namespace ormala {

/// The dialog in which the user picks a colour from a palette. Beneath the palette stands the
/// present colour beside the picked one.
class frmColor : public ModalDialog {
  public:
    frmColor();
    ~frmColor() override { destroy(); }

    /// Shows the dialog; the colour that is picked, or the present one if the user cancels.
    [[nodiscard]] Color GetColor(HWND owner, Color present);

  private:
    void makeControls() override;
    void layOut() override;
    void ApplyLanguage() override;
    [[nodiscard]] HWND firstFocus() const override { return ColorPicker_->handle(); }
    void paint(HDC context) override;

    void showPicked() const;
    [[nodiscard]] PixelRect palettePlace() const;

    Color present_ = 0;
    DialogFrame FormFrame_;
    std::unique_ptr<ColorPic> ColorPicker_;
    std::unique_ptr<ZelvikButtonXP> cmdOK_;
    Subscription changing_;
    Subscription ending_;
};

}  // namespace ormala
