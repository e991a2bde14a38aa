#pragma once

#include <windows.h>

#include <optional>

#include "modAPI/colors.h"
#include "scene/PixelRect.h"

namespace ormala {

/// The colours of all windows of controls.
namespace dark {
constexpr Color ground = 0x606060;
constexpr Color fieldGround = rgb(74, 74, 74);
constexpr Color text = rgb(255, 230, 0);
constexpr Color quietText = rgb(255, 255, 192);
constexpr Color dimText = rgb(150, 150, 150);
constexpr Color outline = rgb(64, 64, 64);
constexpr Color dimOutline = rgb(84, 84, 84);
constexpr Color on = rgb(187, 168, 0);
constexpr Color hoverMark = rgb(225, 153, 71);
constexpr Color focusMark = rgb(140, 170, 230);
/// The ground of a field that is disabled, whose text the system draws in grey.
constexpr Color dimField = rgb(64, 64, 64);
constexpr Color onText = rgb(31, 31, 31);
}  // namespace dark

/// The answer to the WM_CTLCOLOR messages of a window on the ground, for its children of the
/// system; nothing for any other message.
std::optional<LRESULT> darkControlColors(UINT message, WPARAM wParam);

/// The same of a window that is itself a field for entering something.
std::optional<LRESULT> fieldColors(UINT message, WPARAM wParam);

/// Fills a rectangle with one colour.
void fillRect(HDC context, const RECT& area, Color color);

/// Draws a line of that width along the inside of a rectangle.
void frameRect(HDC context, const PixelRect& box, int line, Color color);

/// The outline and ground of a field for entering something.
void paintField(HDC context, const RECT& area, bool enabled, bool focused, int dpi);

}  // namespace ormala
