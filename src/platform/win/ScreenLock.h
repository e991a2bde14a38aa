#pragma once

#include <windows.h>

#include "base/Event.h"

namespace ormala {

/// While the user has locked the screen, or is no more before it, nothing can be seen: all timers
/// rest.
class ScreenLock {
  public:
    /// The window, which must outlive it, gets WM_WTSSESSION_CHANGE from now on.
    explicit ScreenLock(HWND window);
    ~ScreenLock();
    ScreenLock(const ScreenLock&) = delete;
    ScreenLock& operator=(const ScreenLock&) = delete;

    /// For WM_WTSSESSION_CHANGE, with what it tells.
    void take(WPARAM change);

    /// The user has turned away.
    Event<> locked;

  private:
    HWND window_;
};

}  // namespace ormala
