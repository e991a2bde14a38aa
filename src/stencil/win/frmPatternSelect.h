#pragma once

#include <array>
#include <memory>

#include "platform/win/StandardControl.h"
#include "stencil/PatternChoice.h"
#include "stencil/win/ctlPatternSelect.h"
#include "widgets/win/ModalDialog.h"
#include "widgets/win/ZelvikButtonXP.h"

namespace ormala {

/// The dialog in which the user fills the five pattern slots of a stencil.
class frmPatternSelect : public ModalDialog {
  public:
    frmPatternSelect();
    ~frmPatternSelect() override { destroy(); }

    /// Whether the user has confirmed: only then `patterns` takes the choice and `tab`, 0 to 4, the
    /// page that was open last. A null owner is the active window.
    [[nodiscard]] bool SelectPattern(PatternList& patterns, int& tab, HWND owner);

  private:
    struct Tab {
        std::unique_ptr<ZelvikButtonXP> button;
        Subscription click;
    };

    void makeControls() override;
    void layOut() override;
    void ApplyLanguage() override;
    [[nodiscard]] HWND firstFocus() const override;
    void paint(HDC context) override;
    std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

    void makeTab(int tab);
    void makeButtons();
    void openTab(int tab);
    void showTab(int tab);
    void showChange();
    void fillBox(HDC context, const PixelRect& designed, Color color) const;
    void drawPreview(const DRAWITEMSTRUCT& item) const;

    std::unique_ptr<PatternChoice> choice_ = std::make_unique<PatternChoice>(PatternList{}, 0);
    Subscription change_;
    std::array<Tab, patternSlots> btnTab_;
    std::unique_ptr<ctlPatternSelect> PatternSelect_;
    StandardControl lblPreview_;
    StandardControl picPreview_;
    std::unique_ptr<ZelvikButtonXP> cmdOK_;
    std::unique_ptr<ZelvikButtonXP> cmdCancel_;
};

}  // namespace ormala
