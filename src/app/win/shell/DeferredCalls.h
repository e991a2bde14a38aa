#pragma once

#include <windows.h>

#include <deque>
#include <functional>
#include <utility>

namespace ormala {

/// Calls that are made once the event is over in which they were asked for, by a message to a
/// window. A menu or a question has a message loop of its own, and a panel that removes itself must
/// not be gone within its own event.
class DeferredCalls {
  public:
    static constexpr UINT message = WM_APP + 1;

    void add(HWND window, std::function<void()> call) {
        calls_.push_back(std::move(call));
        PostMessageW(window, message, 0, 0);
    }

    /// The message has come: makes the oldest call.
    void runNext() {
        if (!calls_.empty()) {
            const auto call = std::move(calls_.front());
            calls_.pop_front();
            call();
        }
    }

  private:
    std::deque<std::function<void()>> calls_;
};

}  // namespace ormala
