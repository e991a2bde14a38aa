#pragma once

namespace ormala {

/// Limits the broadcasts of a mouse that is outside the worksheet to ten in a second. The clock is
/// in seconds since midnight, so that it falls back once a day.
class OutsidePoll {
  public:
    /// Whether it is time for a poll; if so, `now` is the time of the last one.
    bool due(float now) {
        constexpr float interval = 0.1F;
        const bool passed = now < last_ || now - last_ >= interval;
        if (passed) {
            last_ = now;
        }
        return passed;
    }

  private:
    float last_ = 0;
};

}  // namespace ormala
