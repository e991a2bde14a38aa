#include "platform/win/monitors.h"

namespace ormala {

namespace {

int metricOr(int index, int fallback) {
    const int value = GetSystemMetrics(SM_CMONITORS) == 0 ? 0 : GetSystemMetrics(index);
    return value != 0 ? value : fallback;
}

MONITORINFO factsOf(HMONITOR handle) {
    MONITORINFO monitor{};
    monitor.cbSize = sizeof monitor;
    GetMonitorInfoW(handle, &monitor);
    return monitor;
}

}  // namespace

RECT virtualScreen() {
    const LONG left = metricOr(SM_XVIRTUALSCREEN, 0);
    const LONG top = metricOr(SM_YVIRTUALSCREEN, 0);
    return {left, top, left + metricOr(SM_CXVIRTUALSCREEN, GetSystemMetrics(SM_CXSCREEN)),
            top + metricOr(SM_CYVIRTUALSCREEN, GetSystemMetrics(SM_CYSCREEN))};
}

MONITORINFO monitorAround(HWND window) {
    return factsOf(MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST));
}

MONITORINFO monitorAround(const RECT& place) {
    return factsOf(MonitorFromRect(&place, MONITOR_DEFAULTTONEAREST));
}

RECT workAreaAround(HWND window) {
    return monitorAround(window).rcWork;
}

bool tellsOfScreens(UINT message, WPARAM wParam) {
    return message == WM_DISPLAYCHANGE ||
           (message == WM_SETTINGCHANGE && wParam == SPI_SETWORKAREA);
}

void tellOfScreens(const Event<>& changed, UINT message, WPARAM wParam) {
    if (tellsOfScreens(message, wParam)) {
        changed.raise();
    }
}

POINT cursorPlace() {
    POINT cursor{};
    GetCursorPos(&cursor);
    return cursor;
}

PixelPoint mousePoint() {
    const POINT cursor = cursorPlace();
    return {static_cast<int>(cursor.x), static_cast<int>(cursor.y)};
}

}  // namespace ormala
