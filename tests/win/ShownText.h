#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <vector>

#include "modAPI/PixelRect.h"

namespace ormala {

/// A text that a control shows, and the room that the control has for it, in pixels.
struct ShownText {
    std::string text;
    PixelSize needed;
    PixelSize room;

    [[nodiscard]] bool fits() const {
        return needed.width <= room.width && needed.height <= room.height;
    }
};

/// The texts of one control in the layout and the font that it draws them with; for a list those of
/// all its rows. A button that shows only its picture has none. Nothing for a control of unknown
/// kind that has a text.
std::optional<std::vector<ShownText>> shownTexts(HWND control, int dpi);

/// The title of a window in its title bar at that resolution, beside the buttons that are there.
ShownText shownTitle(HWND window, int dpi);

/// The height of one line in the control's own font.
int lineHeightOf(HWND control);

}  // namespace ormala
