#pragma once

#include <functional>

#include "base/Event.h"

namespace ormala {

/// The run of steps of a button that is held: one at the press, then after a pause one at each tick
/// of the clock, more slowly with a modifier. A run ends once, however it ends.
class RepeatButton {
  public:
    using Action = std::function<void()>;

    /// `clock` ticks every 40 ms and must outlive it. `finished` is called at the end of each run.
    RepeatButton(Event<>& clock, Action finished);

    /// The mouse has pressed the button, with these modifiers for the whole run.
    void press(int shift, Action step);
    /// A key acts as the button: one step, at each press and at each repetition by the keyboard.
    void pressKey(const Action& step);
    /// The button or the key is let go, or the button has lost the mouse. Nothing without a run.
    void release();

    [[nodiscard]] bool running() const { return running_; }

  private:
    void tick();

    Event<>& clock_;
    Action finished_;
    Action step_;
    Subscription ticks_;
    int ticksToWait_ = 0;
    int ticksBetween_ = 0;
    bool running_ = false;
};

}  // namespace ormala
