#pragma once

#include "base/Event.h"
#include "platform/win/Timer.h"
#include "platform/win/Window.h"

namespace ormala {

/// A timer with a window of its own, which nobody sees. It comes once each time it is started.
class LaterTimer : private Window {
  public:
    LaterTimer();
    ~LaterTimer() override { destroy(); }

    /// Anew, if it runs already; 0 milliseconds stop it.
    void start(UINT milliseconds) { timer_.start(handle(), milliseconds); }

    Event<> due;

  private:
    std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

    Timer timer_{1};
};

}  // namespace ormala
