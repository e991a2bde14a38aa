#include "toolkit/RepeatButton.h"

#include <utility>

namespace ormala {

namespace {

/// Steps to fixed places come slowly, at one tick in three.
constexpr int ticksBetweenFixedSteps = 2;

}  // namespace

RepeatButton::RepeatButton(Clock& clock, Action finished)
    : clock_(clock), finished_(std::move(finished)) {}

void RepeatButton::press(int shift, Action step) {
    stop();
    holder_ = Holder::mouse;
    step_ = std::move(step);
    heldTicks_.begin(shift != 0 ? ticksBetweenFixedSteps : 0);
    ticks_ = clock_.subscribe([this] { tick(); });
    const Action first = step_;
    first();
}

void RepeatButton::pressKey(const Action& step) {
    if (holder_ == Holder::mouse) {
        return;
    }
    holder_ = Holder::key;
    step();
}

void RepeatButton::end(Holder holder) {
    if (holder == Holder::none || holder != holder_) {
        return;
    }
    holder_ = Holder::none;
    ticks_.reset();
    step_ = nullptr;
    finished_();
}

void RepeatButton::tick() {
    if (!heldTicks_.tick()) {
        return;
    }
    // The step may end the run.
    const Action step = step_;
    step();
}

}  // namespace ormala
