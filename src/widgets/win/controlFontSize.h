#pragma once

#include <windows.h>

namespace ormala {

/// Tells a control with a text the size of its type in points, as wParam. Controls without a type
/// leave it to the default handling, which ignores it.
inline constexpr UINT controlFontSizeMessage = WM_APP + 10;

/// Gives all controls in the container that size of type; those within them are not its own.
void SetFontSizeOfControls(HWND container, int points);

}  // namespace ormala
