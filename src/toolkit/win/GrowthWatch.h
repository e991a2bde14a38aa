#pragma once

#include "base/Event.h"
#include "platform/win/Timer.h"
#include "platform/win/Window.h"

namespace ormala {

/// Looks whether the mouse comes near a window whose small buttons grow: often while it is near, a
/// few times a second while it is elsewhere, and not at all while the window cannot be seen.
class GrowthWatch {
  public:
    /// The window must outlive it, and hands on what comes to a timer with this number.
    GrowthWatch(const Window& window, UINT_PTR timer) : window_(window), timer_(timer) {}

    /// The window may have been shown, hidden, minimised or brought back.
    void windowChanged(int dpi);
    /// The mouse is over the window, at any time while it is.
    void mouseCame(int dpi);
    /// Looks where the mouse is: at each tick.
    void look(int dpi);

    [[nodiscard]] bool isMouseNear() const { return near_; }
    /// The mouse has come near, or has gone.
    Event<> changed;

  private:
    [[nodiscard]] bool isSeen() const;

    const Window& window_;
    Timer timer_;
    bool near_ = false;
};

}  // namespace ormala
