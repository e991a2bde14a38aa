#pragma once

#include <functional>

#include "base/Clock.h"
#include "widgets/HeldTicks.h"

namespace ormala {

/// The run of steps of a button that is held: one at the press, then after a pause one at each tick
/// of the clock, more slowly with a modifier. A run ends once, and only what began it ends it.
class RepeatButton {
  public:
    using Action = std::function<void()>;

    /// `clock` ticks every 40 ms and must outlive it. `finished` is called at the end of each run.
    RepeatButton(Clock& clock, Action finished);

    /// The mouse has pressed the button, with these modifiers for the whole run.
    void press(int shift, Action step);
    /// A key acts as the button: one step, at each press and at each repetition by the keyboard.
    /// Nothing while the mouse holds the button.
    void pressKey(const Action& step);
    /// The mouse button is let go, or the mouse is lost: ends a run of the mouse.
    void release() { end(Holder::mouse); }
    /// The key is let go, or the focus is lost: ends a run of the key.
    void releaseKey() { end(Holder::key); }
    /// Ends the run, whatever holds it. Nothing without a run.
    void stop() { end(holder_); }

    [[nodiscard]] bool heldByMouse() const { return holder_ == Holder::mouse; }

  private:
    enum class Holder { none, mouse, key };

    void end(Holder holder);
    void tick();

    Clock& clock_;
    Action finished_;
    Action step_;
    Subscription ticks_;
    HeldTicks heldTicks_;
    Holder holder_ = Holder::none;
};

}  // namespace ormala
