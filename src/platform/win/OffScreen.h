#pragma once

#include <windows.h>

namespace ormala {

/// Keeps a window off all screens for its lifetime, if it stands on them in its normal state. It is
/// moved rather than hidden, which would change the focus and the order of the windows.
class OffScreen {
  public:
    explicit OffScreen(HWND window);
    OffScreen(const OffScreen&) = delete;
    OffScreen& operator=(const OffScreen&) = delete;
    ~OffScreen();

  private:
    HWND window_;
    RECT place_{};
    bool moved_ = false;
};

}  // namespace ormala
