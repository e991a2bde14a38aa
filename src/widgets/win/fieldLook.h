#pragma once

#include <windows.h>

#include <optional>

#include "modAPI/PixelRect.h"
#include "modAPI/colors.h"

namespace ormala {

/// The answer to the WM_CTLCOLOR messages of a window on the ground, for its children of the
/// system; nothing for any other message.
std::optional<LRESULT> darkControlColors(UINT message, WPARAM wParam);

/// The same of a window that is itself a field for entering something.
std::optional<LRESULT> fieldColors(UINT message, WPARAM wParam);

/// The outline and ground of a field for entering something.
void paintField(HDC context, const RECT& area, bool enabled, bool focused, int dpi);

/// The arrow that opens a list, which points down. `top` is the middle of its upper side, in
/// pixels; it is twice as wide as high.
void paintListArrow(HDC context, PixelPoint top, int height, Color color);

}  // namespace ormala
