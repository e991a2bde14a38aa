#include "app/win/shell/WorksheetControls.h"

#include <algorithm>
#include <cmath>

#include "language/MlStringModule.h"

namespace ormala {

namespace {

/// Above the IDs of the command bar.
enum WorksheetId { idLabel = 110, idEditMode, idTemplateMode, idColor };

}  // namespace

WorksheetControls::WorksheetControls(HWND parent)
    : lblTransparency_(parent, idLabel, "lblTransparency"),
      sldTransEditMode_(parent, idEditMode, "sldTransEditMode"),
      sldTransTemplateMode_(parent, idTemplateMode, "sldTransTemplateMode"),
      colorWorksheet_(parent, idColor, "colorWorksheet") {
    colorWorksheet_.setPictureIndex(palette::muted);
    // Arrow keys that are meant for a tool must not change the colour.
    colorWorksheet_.leaveFocusToOthers();
}

void WorksheetControls::layOut(const SettingsLayout& layout, int dpi) {
    lblTransparency_.setDpi(dpi);
    lblTransparency_.place(layout.lblTransparency);
    sldTransEditMode_.setDpi(dpi);
    sldTransEditMode_.place(layout.sldTransEditMode);
    sldTransTemplateMode_.setDpi(dpi);
    sldTransTemplateMode_.place(layout.sldTransTemplateMode);
    colorWorksheet_.setSizeFactorX(layout.colorField);
    colorWorksheet_.setSizeFactorY(layout.colorField);
    colorWorksheet_.place(layout.colorWorksheet);
    alignTracks();
}

void WorksheetControls::ApplyLanguage() {
    lblTransparency_.setText(MlString(158, {}));
    sldTransEditMode_.setCaption(MlString(156, {}));
    sldTransTemplateMode_.setCaption(MlString(162, {}));
    sldTransEditMode_.SetTooltip(MlString(159, {}));
    sldTransTemplateMode_.SetTooltip(MlString(160, {}));
    colorWorksheet_.SetTooltip(MlString(3, {}));
    alignTracks();
}

void WorksheetControls::alignTracks() {
    const int room =
        std::max(sldTransEditMode_.captionWidth(), sldTransTemplateMode_.captionWidth());
    sldTransEditMode_.setCaptionRoom(room);
    sldTransTemplateMode_.setCaptionRoom(room);
}

int WorksheetControls::valueOf(const ctlSlider& slider) {
    return static_cast<int>(std::lround(slider.Value()));
}

void WorksheetControls::setTransparencyEditMode(int percent) {
    sldTransEditMode_.setValue(static_cast<float>(percent));
}

void WorksheetControls::setTransparencyTemplateMode(int percent) {
    sldTransTemplateMode_.setValue(static_cast<float>(percent));
}

}  // namespace ormala
