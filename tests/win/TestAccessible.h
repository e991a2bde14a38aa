#pragma once

#include <windows.h>

#include <string>

namespace ormala {

// What a screen reader is told of a window. Each fails the test if the window does not answer.

std::string accessibleNameOf(HWND window);
std::string accessibleValueOf(HWND window);
/// ROLE_SYSTEM_...
long accessibleRoleOf(HWND window);

}  // namespace ormala
