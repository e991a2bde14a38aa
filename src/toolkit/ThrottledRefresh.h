#pragma once

namespace ormala {

/// Limits how often a panel writes its read-outs, since its tool changes with every move of the
/// mouse. Times are seconds since midnight, so that the clock falls back once a day.
class ThrottledRefresh {
  public:
    enum class Step {
        now,        ///< write them and stop the timer
        startTimer  ///< start the timer anew; its tick asks again, with force
    };

    /// The timer of the last refresh of a burst.
    static constexpr int timerMilliseconds = 110;

    /// `repeating` says that a button of the panel is held and repeats its step.
    Step ask(float now, bool force, bool repeating) {
        constexpr float interval = 0.1F;
        constexpr float repeatInterval = 0.04F;
        const float passed = now - last_;
        if (!force && passed >= 0 && passed < (repeating ? repeatInterval : interval)) {
            return Step::startTimer;
        }
        last_ = now;
        return Step::now;
    }

  private:
    float last_ = -1;
};

}  // namespace ormala
