#include "ProcessorTime.h"

#include <windows.h>

namespace ormala::bench {

double processorTime() {
    FILETIME made{};
    FILETIME ended{};
    FILETIME kernel{};
    FILETIME user{};
    GetProcessTimes(GetCurrentProcess(), &made, &ended, &kernel, &user);
    const auto ticks = [](const FILETIME& time) {
        return static_cast<double>(time.dwHighDateTime) * 4294967296.0 + time.dwLowDateTime;
    };
    return (ticks(kernel) + ticks(user)) / 10000;
}

void idleFor(unsigned milliseconds) {
    const UINT_PTR end = SetTimer(nullptr, 0, milliseconds, nullptr);
    MSG message{};
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        if (message.hwnd == nullptr && message.message == WM_TIMER && message.wParam == end) {
            break;
        }
        DispatchMessageW(&message);
    }
    KillTimer(nullptr, end);
}

}  // namespace ormala::bench
