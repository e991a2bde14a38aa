#pragma once

#include "dialogs/win/DialogFrame.h"
#include "dialogs/win/ctlLineSelect.h"
#include "widgets/win/ModalDialog.h"

namespace ormala {

/// The dialog in which the user chooses width and pattern of lines.
class frmLineStyle : public ModalDialog {
  public:
    frmLineStyle();
    ~frmLineStyle() override { destroy(); }

    /// Shows the dialog; the line code that is chosen, or the present one if the user cancels.
    [[nodiscard]] int GetLineStyle(HWND owner, int present);

  private:
    void makeControls() override;
    void layOut() override;
    void ApplyLanguage() override;
    [[nodiscard]] HWND firstFocus() const override { return LineSelect_->handle(); }
    void paint(HDC context) override;

    DialogFrame FormFrame_;
    std::unique_ptr<ctlLineSelect> LineSelect_;
    std::unique_ptr<ZelvikButtonXP> cmdOK_;
    Subscription ending_;
};

}  // namespace ormala
