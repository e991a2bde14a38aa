#pragma once

#include <windows.h>

#include <optional>

#include "scene/AccessibleParts.h"

namespace ormala {

/// Sent to a window that answers WM_GETOBJECT with `answerAccessibleTree`: a question about its
/// parts, to which lParam points and which `answerPartsQuestion` answers. Since the window is asked
/// each time, an object may outlive it and any of its parts, and may be asked on any thread.
constexpr UINT accessiblePartsMessage = WM_USER + 0x301;

LRESULT answerPartsQuestion(AccessibleParts& parts, LPARAM lParam);

/// The answer to WM_GETOBJECT; nothing, so that the system answers, for all objects but the client
/// area. Each tool is an object of its own, and its grips are its simple children.
std::optional<LRESULT> answerAccessibleTree(HWND window, WPARAM wParam, LPARAM lParam);

}  // namespace ormala
