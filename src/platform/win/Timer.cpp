#include "platform/win/Timer.h"

#include <set>
#include <utility>

namespace ormala {

/// What all timers have in common. They belong to one thread, that of the windows.
struct Timer::Clockwork {
    std::set<Timer*> running;
    bool rests = false;
};

Timer::Clockwork& Timer::clockwork() {
    static Clockwork all;
    return all;
}

void Timer::start(HWND window, UINT interval) {
    Clockwork& all = clockwork();
    interval_ = interval;
    if (interval != 0) {
        window_ = window;
        all.running.insert(this);
        if (!all.rests) {
            SetTimer(window, number_, interval, nullptr);
        }
    } else if (window_ != nullptr) {
        all.running.erase(this);
        KillTimer(std::exchange(window_, nullptr), number_);
    }
}

void Timer::keep(HWND window, UINT interval) {
    if (interval != interval_) {
        start(window, interval);
    }
}

void Timer::restAll(bool rest) {
    Clockwork& all = clockwork();
    if (std::exchange(all.rests, rest) == rest) {
        return;
    }
    for (const Timer* timer : all.running) {
        if (rest) {
            KillTimer(timer->window_, timer->number_);
        } else {
            SetTimer(timer->window_, timer->number_, timer->interval_, nullptr);
        }
    }
}

double Timer::wakeUps() {
    constexpr double millisecondsOfASecond = 1000.0;
    const Clockwork& all = clockwork();
    double sum = 0;
    for (const Timer* timer : all.running) {
        sum += all.rests ? 0 : millisecondsOfASecond / timer->interval_;
    }
    return sum;
}

}  // namespace ormala
