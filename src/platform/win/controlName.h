#pragma once

#include <windows.h>

#include <string>
#include <string_view>

namespace ormala {

/// Gives a control without a name its own one, such as "scrInner" or "cmdMove(3)", by which
/// automation tools and tests find it: the window property `Name`, whose value is a global atom.
/// `Window` takes it back at the end.
void setControlName(HWND window, std::string_view name);

/// Empty for a window without a name.
std::string controlName(HWND window);

void removeControlName(HWND window);

}  // namespace ormala
