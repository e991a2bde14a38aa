#pragma once

#include <windows.h>

namespace ormala {

/// Lists, scroll bars and buttons of a control of the system are drawn by its dark theme, where the
/// system has one, and in high contrast as the system draws them. Of a combo field the list that
/// drops down too.
void darkenControl(HWND control);

}  // namespace ormala
