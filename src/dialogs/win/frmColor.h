#pragma once

#include "dialogs/win/ColorPic.h"
#include "dialogs/win/DialogFrame.h"
#include "widgets/win/ModalDialog.h"
#include "widgets/win/OptionGroup.h"

namespace ormala {

/// The dialog in which the user picks a colour from one of the palettes: buttons with their
/// pictures and the keys Page Up and Page Down change the palette. It begins with one that has the
/// present colour. Beneath the palette stands the present colour beside the picked one.
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

    void showPalette(int index);
    void onKey(int key);
    void showPicked() const;

    Color present_ = 0;
    DialogFrame FormFrame_;
    std::unique_ptr<ColorPic> ColorPicker_;
    OptionGroup btnPalette_;
    std::unique_ptr<ZelvikButtonXP> cmdOK_;
    std::vector<Subscription> handlers_;
};

}  // namespace ormala
