#include "platform/win/PlaceAcrossDpi.h"

#include "platform/win/monitors.h"
#include "platform/win/regions.h"

namespace ormala {

namespace {

PixelRect placeOf(HWND window) {
    RECT rect{};
    GetWindowRect(window, &rect);
    return fromRect(rect);
}

WINDOWPLACEMENT placementOf(HWND window) {
    WINDOWPLACEMENT placement{};
    placement.length = sizeof placement;
    GetWindowPlacement(window, &placement);
    return placement;
}

/// The record of a placement counts from the corner of what a monitor has for windows, except for
/// tool windows.
POINT originOfPlacement(HWND window, const MONITORINFO& monitor) {
    if ((GetWindowLongPtrW(window, GWL_EXSTYLE) & WS_EX_TOOLWINDOW) != 0) {
        return {0, 0};
    }
    return {monitor.rcWork.left - monitor.rcMonitor.left,
            monitor.rcWork.top - monitor.rcMonitor.top};
}

}  // namespace

void placeSteadily(const std::function<bool()>& place) {
    constexpr int mostTries = 4;
    for (int tries = 0; tries < mostTries && !place(); ++tries) {
    }
}

PixelRect normalPlaceOf(HWND window) {
    RECT place = placementOf(window).rcNormalPosition;
    const POINT origin = originOfPlacement(window, monitorAround(window));
    OffsetRect(&place, static_cast<int>(origin.x), static_cast<int>(origin.y));
    return fromRect(place);
}

void setNormalPlace(HWND window, const PixelRect& place) {
    WINDOWPLACEMENT placement = placementOf(window);
    RECT rect = toRect(place);
    const POINT origin = originOfPlacement(window, monitorAround(rect));
    OffsetRect(&rect, -static_cast<int>(origin.x), -static_cast<int>(origin.y));
    placement.rcNormalPosition = rect;
    placement.showCmd = IsIconic(window) != FALSE ? SW_SHOWMINNOACTIVE : SW_HIDE;
    SetWindowPlacement(window, &placement);
}

void setHeight(HWND window, int height) {
    if (IsIconic(window) != FALSE) {
        PixelRect place = normalPlaceOf(window);
        place.bottom = place.top + height;
        setNormalPlace(window, place);
        return;
    }
    RECT place{};
    GetWindowRect(window, &place);
    SetWindowPos(window, nullptr, 0, 0, static_cast<int>(place.right - place.left), height,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void PlaceAcrossDpi::restore(const std::function<bool()>& place) {
    restored_ = true;
    placeSteadily(place);
}

void PlaceAcrossDpi::show(HWND window, int command) {
    ShowWindow(window, command);
    restored_ = false;
}

PixelRect PlaceAcrossDpi::at(HWND window, int formerDpi, int dpi, const RECT& suggested) {
    const PixelRect present = placeOf(window);
    if (restored_) {
        return present;
    }
    const PixelRect there = fromRect(suggested);
    const PixelSize size = size_.at(dpi, {there.width(), there.height()}, formerDpi,
                                    {present.width(), present.height()});
    return {there.left, there.top, there.left + size.width, there.top + size.height};
}

void PlaceAcrossDpi::take(HWND window, const std::optional<PixelRect>& place) {
    if (!place) {
        return;
    }
    SetWindowPos(window, nullptr, place->left, place->top, place->width(), place->height(),
                 SWP_NOZORDER | SWP_NOACTIVATE);
    const PixelRect now = placeOf(window);
    size_.took({now.width(), now.height()});
}

}  // namespace ormala
