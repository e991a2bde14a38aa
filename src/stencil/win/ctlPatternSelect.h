#pragma once

#include <array>
#include <memory>
#include <vector>

#include "platform/win/StandardControl.h"
#include "platform/win/Window.h"
#include "platform/win/fonts.h"
#include "stencil/PatternPage.h"
#include "stencil/PatternTable.h"
#include "stencil/win/RotationList.h"
#include "widgets/win/ZelvikButtonXP.h"

namespace ormala {

/// Shows the patterns under their headings and a list of rotations, and lets the user
/// change the one setting of its page. The owner hears of it by the page's event.
class ctlPatternSelect : public Window {
  public:
    /// A visible child of `parent`. The page must outlive its being shown.
    ctlPatternSelect(HWND parent, int id, PatternPage& page);
    ~ctlPatternSelect() override { destroy(); }

    /// Shows the setting of this page from now on.
    void setPage(PatternPage& page);
    void ApplyLanguage();
    /// Its upper left corner in the parent's pixels; it has the size of its controls.
    void place(PixelPoint corner, int dpi);
    /// The chosen pattern's button, or the first one.
    [[nodiscard]] HWND chosen() const;

  private:
    /// A picture button with its name beneath.
    struct Choice {
        Choice(HWND parent, int id, const std::string& nameEnd);
        /// Of its own making: all labels stand behind all buttons, where no key goes to them.
        void makeLabel(HWND parent, DWORD style);

        std::string suffix;
        ZelvikButtonXP button;
        StandardControl label;
        Subscription click;
    };

    std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void Initialize();
    void makePatterns();
    void makeNoPattern();
    void makeTexts();
    void showSetting();
    void move(HWND child, const PixelRect& designed, HFONT font) const;
    void eraseGround(HDC context) const;

    PatternPage* page_;
    int dpi_ = 96;
    FontHandle font_;
    FontHandle headingFont_;
    /// By their index in the `PatternTable`.
    std::vector<std::unique_ptr<Choice>> patterns_;
    std::unique_ptr<Choice> noPattern_;
    std::array<StandardControl, 3> lblPatternGroup_;
    StandardControl lblRotation_;
    RotationList cboRotation_;
    Subscription rotationPicked_;
};

}  // namespace ormala
