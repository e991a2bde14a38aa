#pragma once

#include <windows.h>

#include "base/Event.h"

namespace ormala {

/// Tells when the user turns away. While the screen is locked, or the user is no more before it,
/// nothing can be seen: all timers rest.
class ScreenLock {
  public:
    /// The window, which must outlive it, gets WM_WTSSESSION_CHANGE from now on.
    explicit ScreenLock(HWND window);
    ~ScreenLock();
    ScreenLock(const ScreenLock&) = delete;
    ScreenLock& operator=(const ScreenLock&) = delete;

    /// For WM_WTSSESSION_CHANGE, with what it tells.
    void take(WPARAM change) const;

    /// For WM_POWERBROADCAST, with what it tells.
    void takePower(WPARAM event) const;

    /// The user has turned away.
    Event<> locked;
    /// The computer goes to sleep, and may lose its power there. It waits two seconds at most.
    Event<> suspended;

  private:
    HWND window_;
};

}  // namespace ormala
