#include "platform/win/monitors.h"

namespace ormala {

namespace {

MONITORINFO factsOf(HMONITOR handle) {
    MONITORINFO monitor{};
    monitor.cbSize = sizeof monitor;
    GetMonitorInfoW(handle, &monitor);
    return monitor;
}

}  // namespace

RECT virtualScreen() {
    if (GetSystemMetrics(SM_CMONITORS) != 0) {
        const LONG width = GetSystemMetrics(SM_CXVIRTUALSCREEN);
        const LONG height = GetSystemMetrics(SM_CYVIRTUALSCREEN);
        if (width != 0 && height != 0) {
            const LONG left = GetSystemMetrics(SM_XVIRTUALSCREEN);
            const LONG top = GetSystemMetrics(SM_YVIRTUALSCREEN);
            return {left, top, left + width, top + height};
        }
    }
    return {0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
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
