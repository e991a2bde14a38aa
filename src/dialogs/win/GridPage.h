#pragma once

#include "dialogs/OptionValues.h"
#include "dialogs/win/ColorPic.h"
#include "dialogs/win/OptionsPage.h"
#include "dialogs/win/ctlLineSelect.h"

namespace ormala {

/// The grid on the background of the worksheet.
class GridPage : public OptionsPage {
  public:
    /// The grid must outlive the page.
    GridPage(HWND parent, int id, BackgroundGrid& grid);

    void ApplyLanguage() override;

  private:
    /// Two sliders, and the check box that couples them.
    struct Pair {
        CoupledValues values;
        std::unique_ptr<ctlSlider> x;
        std::unique_ptr<ctlSlider> y;
        std::unique_ptr<CheckButton> same;

        void show() const;
        void showCopy(ctlSlider& slider, int value) const;
    };

    void makeLook();
    void bind(Pair& pair);
    void showColor() const;
    void paint(HDC context) override;

    BackgroundGrid& grid_;
    OptionGroup optGridMode_;
    Pair size_;
    Pair offset_;
    StandardControl lblGridLine_;
    std::unique_ptr<ctlLineSelect> GridLineSelect_;
    StandardControl lblGridColor_;
    std::unique_ptr<ColorPic> colpicGrid_;
};

}  // namespace ormala
