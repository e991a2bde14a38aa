#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/win/Window.h"
#include "support/win/Wait.h"

namespace ormala {

/// Plays the user while a modal window runs its own message loop: one step at a time, between the
/// messages. If something does not happen in time the test fails, and the modal windows are closed.
class ModalPlayer : private Window {
  public:
    ModalPlayer();
    ~ModalPlayer() override;

    /// The steps that follow wait for it.
    ModalPlayer& until(std::string what, std::function<bool()> happened);
    ModalPlayer& then(std::function<void()> step);
    /// A key goes down and up in the window that has the focus.
    ModalPlayer& key(int virtualKey);
    /// Waits for a visible window of the thread with this class, which is the active one.
    ModalPlayer& untilActive(const std::string& className);

    [[nodiscard]] bool done() const { return next_ == steps_.size(); }

  private:
    struct Step {
        std::string what;
        std::function<bool()> happened;
    };

    std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void playNext();
    void waitInVain(const std::string& what);
    void giveUp();

    std::vector<Step> steps_;
    std::size_t next_ = 0;
    int ticks_ = 0;
    bool givenUp_ = false;
};

/// The name of a window's class.
std::string classNameOf(HWND window);

/// The child with this control name, at any depth; null if there is none.
HWND namedChild(HWND window, std::string_view name);

}  // namespace ormala
