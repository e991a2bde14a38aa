#pragma once

#include <windows.h>

#include <functional>
#include <vector>

#include "platform/win/LaterTimer.h"

namespace ormala {

/// Brings windows back that lie on no screen: since the screens are others, or since the system, or
/// who manages the windows, has placed one there.
class LostWindows {
  public:
    /// `windows` tells at any time which there are.
    explicit LostWindows(std::function<std::vector<HWND>()> windows);

    /// All of them are wholly on the screens, at once and once more when all is placed after the
    /// change.
    void screensChanged();
    /// One of them has another place. A lost one comes back when it has rested there for a second.
    void placed(HWND window);

  private:
    void afterRest();
    void bringBack(const std::function<bool(HWND)>& which) const;

    std::function<std::vector<HWND>()> windows_;
    bool screensAreNew_ = false;
    LaterTimer atRest_;
    Subscription due_;
};

}  // namespace ormala
