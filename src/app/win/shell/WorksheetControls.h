#pragma once

#include "app/settingsLayout.h"
#include "base/Event.h"
#include "dialogs/win/ColorPic.h"
#include "widgets/win/Label.h"
#include "widgets/win/ctlSlider.h"

namespace ormala {

/// The controls in the control window by which the user sets how the worksheet looks: a slider of
/// transparency for each mode that shows it, and a palette for its colour.
class WorksheetControls {
  public:
    /// Children of `parent`, without places until `layOut`.
    explicit WorksheetControls(HWND parent);

    void layOut(const SettingsLayout& layout, int dpi);
    void ApplyLanguage();

    /// Percent.
    [[nodiscard]] int transparencyEditMode() const { return valueOf(sldTransEditMode_); }
    [[nodiscard]] int transparencyTemplateMode() const { return valueOf(sldTransTemplateMode_); }
    [[nodiscard]] Color worksheetColor() const { return colorWorksheet_.RGBColor(); }
    void setTransparencyEditMode(int percent);
    void setTransparencyTemplateMode(int percent);
    void setWorksheetColor(Color color) { colorWorksheet_.setRGBColor(color); }

    /// What the user changes.
    Event<>& transparencyEditModeChanged() { return sldTransEditMode_.Change; }
    Event<>& transparencyTemplateModeChanged() { return sldTransTemplateMode_.Change; }
    Event<>& worksheetColorChanged() { return colorWorksheet_.RGBChanged; }

  private:
    static int valueOf(const ctlSlider& slider);
    void alignTracks();

    Label lblTransparency_;
    ctlSlider sldTransEditMode_;
    ctlSlider sldTransTemplateMode_;
    ColorPic colorWorksheet_;
};

}  // namespace ormala
