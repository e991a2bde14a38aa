#include "platform/win/Timer.h"

#include <atomic>
#include <utility>

namespace ormala {

namespace {

/// Ticks of all running timers in a thousand seconds.
std::atomic<long>& allTicks() {
    static std::atomic<long> ticks = 0;
    return ticks;
}

long ticksOf(UINT interval) {
    constexpr long milliseconds = 1000L * 1000L;
    return interval == 0 ? 0 : milliseconds / static_cast<long>(interval);
}

}  // namespace

void Timer::start(HWND window, UINT interval) {
    allTicks() += ticksOf(interval) - ticksOf(std::exchange(interval_, interval));
    if (interval != 0) {
        window_ = window;
        SetTimer(window, number_, interval, nullptr);
    } else if (window_ != nullptr) {
        KillTimer(std::exchange(window_, nullptr), number_);
    }
}

void Timer::keep(HWND window, UINT interval) {
    if (interval != interval_) {
        start(window, interval);
    }
}

double Timer::wakeUps() {
    return static_cast<double>(allTicks()) / 1000.0;
}

}  // namespace ormala
