#pragma once

#include <windows.h>

#include "modAPI/PixelRect.h"
#include "modAPI/colors.h"

namespace ormala {

/// Fills a rectangle with one colour, without a brush of its own.
void fillRect(HDC context, const RECT& area, Color color);

/// Draws a line of that width along the inside of a rectangle.
void frameRect(HDC context, const PixelRect& box, int line, Color color);

}  // namespace ormala
