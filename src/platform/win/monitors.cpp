#include "platform/win/monitors.h"

namespace ormala {

MONITORINFO monitorAround(HWND window) {
    MONITORINFO monitor{};
    monitor.cbSize = sizeof monitor;
    GetMonitorInfoW(MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST), &monitor);
    return monitor;
}

RECT workAreaAround(HWND window) {
    return monitorAround(window).rcWork;
}

}  // namespace ormala
