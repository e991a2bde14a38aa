#pragma once

#include <windows.h>

#include <optional>
#include <string>

#include "platform/win/OwnQuestion.h"

namespace ormala {

/// What a control says of itself to screen readers and automation programs.
struct AccessibleFacts {
    std::string name;
    std::string value;
    /// One of the ROLE_SYSTEM_ numbers.
    long role = 0;
    /// STATE_SYSTEM_ bits besides those that follow from the window itself.
    long state = 0;
    /// Such as "Alt+S"; empty for none.
    std::string shortcut;
    /// What the default action is called, empty if there is none, and the message that does it.
    std::string action;
    UINT actionMessage = 0;
};

/// The facts that an accessible-facts message wants to have: it is sent to a control that answers
/// WM_GETOBJECT with `answerAccessible`, which fills them and answers TRUE. Since the facts are
/// asked of the window each time, an object may outlive it, and may be asked on any thread.
AccessibleFacts& wantedFacts(LPARAM lParam);

/// Readies the thread of the windows, for its lifetime, to hand objects to other programs.
class AccessibleThread {
  public:
    AccessibleThread();
    AccessibleThread(const AccessibleThread&) = delete;
    AccessibleThread& operator=(const AccessibleThread&) = delete;
    ~AccessibleThread();

  private:
    bool ready_;
};

/// The answer to WM_GETOBJECT; nothing, so that the system answers, for all objects but the client
/// area.
std::optional<LRESULT> answerAccessible(HWND window, WPARAM wParam, LPARAM lParam);

}  // namespace ormala
