#pragma once

#include <optional>

#include "stencil/RatioChoice.h"
#include "widgets/win/ChoiceList.h"
#include "widgets/win/ModalDialog.h"
#include "widgets/win/OptionGroup.h"

namespace ormala {

/// The dialog in which the user picks one of the special ratios.
class frmRatio : public ModalDialog {
  public:
    /// Both must outlive it; they are in the user's language by the time that they are shown.
    frmRatio(const SpecialRatios& ratios, const TextForm& form);
    ~frmRatio() override { destroy(); }

    /// Shows the dialog; the ratio that is picked, or nothing if the user cancels.
    std::optional<double> EditRatio(HWND owner, double current);

  private:
    void makeControls() override;
    void layOut() override;
    void ApplyLanguage() override;
    [[nodiscard]] HWND firstFocus() const override { return lstRatio_.handle(); }
    void command(int id, int notification) override;
    void paint(HDC context) override;
    std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

    void fillList();
    void showPreview();
    [[nodiscard]] PixelRect preview(double ratio) const;

    RatioChoice choice_;
    ChoiceList lstRatio_;
    OptionGroup optInvert_;
    StandardControl lblPreviewOld_;
    StandardControl lblPreviewNew_;
    std::unique_ptr<ZelvikButtonXP> cmdOK_;
    std::unique_ptr<ZelvikButtonXP> cmdCancel_;
    Subscription inverting_;
};

}  // namespace ormala
