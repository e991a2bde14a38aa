#pragma once

#include <array>

#include "app/commands.h"
#include "modAPI/PixelRect.h"

namespace ormala {

/// Where things stand in the client area of the control window, in its monitor's pixels.
struct SettingsLayout {
    explicit SettingsLayout(int dpi);

    [[nodiscard]] const PixelRect& boxOf(Command command) const {
        return buttons[static_cast<std::size_t>(command)];
    }

    /// In the order of the commands.
    std::array<PixelRect, buttonCount> buttons;
    /// The ground of the buttons.
    PixelRect gradToolbar;
    /// What belongs to the look of the worksheet: a label for both sliders, the sliders, and the
    /// palette's upper left corner with the side of a field.
    PixelRect lblTransparency;
    PixelRect sldTransEditMode;
    PixelRect sldTransTemplateMode;
    PixelPoint colorWorksheet;
    int colorField = 0;
    /// The path line.
    PixelRect lblPath;
    /// The info line, which lies over the list.
    PixelRect lblInfo;
    /// The list of panels; its bottom follows the window.
    PixelRect picOuter;
    /// Of the client area: the fixed width, the least height and the one that a window has before
    /// its list is filled.
    int width = 0;
    int shortHeight = 0;
    int firstHeight = 0;

  private:
    void placeLook(int dpi);
};

/// Of the list of panels, in pixels.
int listScrollBarWidth(int dpi);
/// What a step of the arrows and a part of the wheel's glide move the list by.
int listSmallChange(int dpi);

}  // namespace ormala
