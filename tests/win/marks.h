#pragma once

#include <windows.h>

namespace ormala {

/// Round a control that the mouse is over.
constexpr COLORREF hoverMark = RGB(225, 153, 71);
/// Round a control that has the keyboard.
constexpr COLORREF focusMark = RGB(140, 170, 230);

}  // namespace ormala
