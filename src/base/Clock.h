#pragma once

#include <functional>
#include <utility>

#include "base/Event.h"

namespace ormala {

/// A shared clock that runs only while somebody listens.
class Clock {
  public:
    /// `run` starts or stops what calls `tick`.
    explicit Clock(std::function<void(bool running)> run) : run_(std::move(run)) {}

    [[nodiscard]] Subscription subscribe(Event<>::Handler handler) {
        Subscription subscription = ticks_.subscribe(std::move(handler));
        setRunning(true);
        return subscription;
    }
    /// Once nobody listens any more, the next tick is the last one.
    void tick() {
        ticks_.raise();
        setRunning(ticks_.isHeard());
    }

  private:
    void setRunning(bool running) {
        if (std::exchange(running_, running) != running) {
            run_(running);
        }
    }

    std::function<void(bool)> run_;
    Event<> ticks_;
    bool running_ = false;
};

}  // namespace ormala
