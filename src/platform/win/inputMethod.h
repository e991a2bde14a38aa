#pragma once

#include <windows.h>

namespace ormala {

/// For a window whose keys are commands and never text: no input method takes them for its letters
/// or opens its windows over it.
void takeNoInputMethod(HWND window);

}  // namespace ormala
