#pragma once

#include <windows.h>

#include <optional>

#include "platform/win/OwnQuestion.h"
#include "scene/AccessibleParts.h"

namespace ormala {

/// For an accessible-parts message, which is sent to a window that answers WM_GETOBJECT with
/// `answerAccessibleTree`: it asks for its parts. Since the window is asked each time, an object
/// may outlive it and any of its parts, and may be asked on any thread.
LRESULT answerPartsQuestion(AccessibleParts& parts, LPARAM lParam);

/// The answer to WM_GETOBJECT; nothing, so that the system answers, for all objects but the client
/// area. Each tool is an object of its own, and its grips are its simple children.
std::optional<LRESULT> answerAccessibleTree(HWND window, WPARAM wParam, LPARAM lParam);

}  // namespace ormala
