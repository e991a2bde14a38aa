#pragma once

namespace ormala {

/// When what is held repeats itself: at the ticks of a clock of 40 ms, after a pause from the press
/// on.
class HeldTicks {
  public:
    /// The press; each later step then leaves `between` ticks out.
    void begin(int between) {
        constexpr int afterPress = 10;
        toWait_ = afterPress;
        between_ = between;
    }
    /// A tick of the clock; true if a step is due.
    bool tick() {
        if (toWait_ > 0) {
            --toWait_;
            return false;
        }
        toWait_ = between_;
        return true;
    }

  private:
    int toWait_ = 0;
    int between_ = 0;
};

}  // namespace ormala
