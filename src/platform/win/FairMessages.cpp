#include "platform/win/FairMessages.h"

namespace ormala {

namespace {

/// Between two turns of what the system leaves to the end: half a frame of the screen.
constexpr ULONGLONG turnMicroseconds = 8000;
/// Of one turn, so that timers that are always due let the mouse through.
constexpr int mostOfATurn = 8;

ULONGLONG microseconds() {
    LARGE_INTEGER ticks{};
    LARGE_INTEGER perSecond{};
    QueryPerformanceCounter(&ticks);
    QueryPerformanceFrequency(&perSecond);
    constexpr ULONGLONG million = 1000000;
    const auto count = static_cast<ULONGLONG>(ticks.QuadPart);
    const auto rate = static_cast<ULONGLONG>(perSecond.QuadPart);
    return count / rate * million + count % rate * million / rate;
}

}  // namespace

bool FairMessages::takeLate(MSG& message) {
    if (served_ == mostOfATurn) {
        return false;
    }
    ++served_;
    return PeekMessageW(&message, nullptr, WM_TIMER, WM_TIMER, PM_REMOVE) != FALSE ||
           PeekMessageW(&message, nullptr, WM_PAINT, WM_PAINT, PM_REMOVE) != FALSE;
}

bool FairMessages::next(MSG& message) {
    const ULONGLONG now = microseconds();
    if (now - lastTurn_ >= turnMicroseconds) {
        if (takeLate(message)) {
            // Whatever the filter, the end of the program is among what is found.
            return message.message != WM_QUIT;
        }
        lastTurn_ = now;
        served_ = 0;
    }
    return GetMessageW(&message, nullptr, 0, 0) > 0;
}

}  // namespace ormala
