#include "app/AutoSave.h"

#include <utility>

namespace ormala {

/// One look is enough for all that happens within an event.
void AutoSave::changed() {
    if (running_ && !waits_ && !std::exchange(looks_, true)) {
        port_.later([this] { look(); });
    }
}

void AutoSave::look() {
    looks_ = false;
    if (!waits_ && (port_.isHalfDone() || port_.differs())) {
        waits_ = true;
        port_.runTimer(delay_);
    }
}

void AutoSave::tick() {
    if (port_.isHalfDone() || port_.isMouseHeld()) {
        port_.runTimer(interval);
    } else {
        save();
    }
}

void AutoSave::saveNow() {
    if (running_ && !port_.isHalfDone()) {
        save();
    }
}

void AutoSave::save() {
    waits_ = false;
    port_.runTimer(0);
    const bool saved = port_.saveChanges();
    delay_ = saved ? delay : std::min(2 * delay_, longestDelay);
    if (!saved) {
        waits_ = true;
        port_.runTimer(delay_);
    }
    if (!std::exchange(told_, !saved) && !saved) {
        port_.tellFailure();
    }
}

}  // namespace ormala
