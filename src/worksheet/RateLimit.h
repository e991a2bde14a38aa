#pragma once

namespace ormala {

/// Lets something happen only so often. The clock is in seconds since midnight, so that it falls
/// back once a day.
class RateLimit {
  public:
    /// In seconds, from one time to the next.
    constexpr explicit RateLimit(float interval) : interval_(interval) {}

    /// Whether it is time again; if so, `now` is the time of the last one.
    bool due(float now) {
        refused_ = now >= last_ && now - last_ < interval_;
        if (!refused_) {
            last_ = now;
        }
        return !refused_;
    }
    /// Whether the last question came too early.
    [[nodiscard]] bool refused() const { return refused_; }

  private:
    float interval_;
    float last_ = 0;
    bool refused_ = false;
};

}  // namespace ormala
