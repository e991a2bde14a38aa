#include "dialogs/win/formPlacement.h"

#include <limits>

#include "platform/win/monitors.h"

namespace ormala {

namespace {

PlacementRect placementRect(const RECT& rect) {
    return {static_cast<std::int32_t>(rect.left), static_cast<std::int32_t>(rect.top),
            static_cast<std::int32_t>(rect.right), static_cast<std::int32_t>(rect.bottom)};
}

WINDOWPLACEMENT systemPlacement(HWND window) {
    WINDOWPLACEMENT placement{};
    placement.length = sizeof placement;
    GetWindowPlacement(window, &placement);
    return placement;
}

WindowPlacement placementOf(HWND window) {
    const WINDOWPLACEMENT placement = systemPlacement(window);
    return {static_cast<std::int32_t>(placement.showCmd),
            placementRect(placement.rcNormalPosition)};
}

/// There is none in a gap between screens of different sizes.
PlacementRect onSomeScreen(const PlacementRect& rect) {
    const RECT place = systemRect(rect);
    if (MonitorFromRect(&place, MONITOR_DEFAULTTONULL) != nullptr) {
        return rect;
    }
    MONITORINFO monitor{};
    monitor.cbSize = sizeof monitor;
    GetMonitorInfoW(MonitorFromRect(&place, MONITOR_DEFAULTTONEAREST), &monitor);
    WindowPlacement placement{0, rect};
    KeepRectInBounds(placement, placementRect(monitor.rcWork));
    return placement.rcNormalPosition;
}

/// A window that can be sized may still hold on to its width.
Sizable sizableOf(HWND window) {
    if ((GetWindowLongPtrW(window, GWL_STYLE) & WS_THICKFRAME) == 0) {
        return Sizable::nothing;
    }
    MINMAXINFO limits{};
    limits.ptMaxTrackSize = {std::numeric_limits<LONG>::max(), std::numeric_limits<LONG>::max()};
    SendMessageW(window, WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&limits));
    return limits.ptMinTrackSize.x == limits.ptMaxTrackSize.x ? Sizable::height : Sizable::both;
}

PlacementRect keptOnPresentScreens(const PlacementRect& rect) {
    return onSomeScreen(keptOnScreens(rect, screenAreas()));
}

}  // namespace

RECT systemRect(const PlacementRect& rect) {
    return {rect.left, rect.top, rect.right, rect.bottom};
}

ScreenAreas screenAreas() {
    RECT work{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    return {placementRect(work), placementRect(virtualScreen())};
}

void SaveFormPlacement(HWND window, INIFile& options, const std::string& section) {
    storePlacement(options, section, placementOf(window));
}

RestoredPlacement storedPlacement(HWND window, INIFile& options, const std::string& section,
                                  bool cascade) {
    RestoredPlacement restored = restoredPlacement(options, section, cascade, placementOf(window),
                                                   sizableOf(window), screenAreas());
    restored.rect = onSomeScreen(restored.rect);
    return restored;
}

void RestoreFormPlacement(HWND window, INIFile& options, const std::string& section, bool cascade) {
    const RestoredPlacement restored = storedPlacement(window, options, section, cascade);
    if (restored.maximise) {
        ShowWindow(window, SW_SHOWMAXIMIZED);
    }
    // Neither shows the window nor changes its state.
    WINDOWPLACEMENT placement = systemPlacement(window);
    placement.showCmd = SW_HIDE;
    placement.rcNormalPosition = systemRect(restored.rect);
    SetWindowPlacement(window, &placement);
    if (!restored.maximise) {
        // On a screen of another resolution it may have become larger than it was.
        bringOntoScreens(window);
    }
}

void bringOntoScreens(HWND window) {
    if (IsIconic(window) != FALSE) {
        WINDOWPLACEMENT placement = systemPlacement(window);
        placement.rcNormalPosition =
            systemRect(keptOnPresentScreens(placementRect(placement.rcNormalPosition)));
        placement.showCmd = SW_SHOWMINNOACTIVE;
        SetWindowPlacement(window, &placement);
        return;
    }
    RECT present{};
    GetWindowRect(window, &present);
    const PlacementRect former = placementRect(present);
    const PlacementRect place = keptOnPresentScreens(former);
    if (place != former) {
        SetWindowPos(window, nullptr, place.left, place.top, place.right - place.left,
                     place.bottom - place.top, SWP_NOZORDER | SWP_NOACTIVATE);
    }
}

int dpiOf(HWND window) {
    return static_cast<int>(GetDpiForWindow(window));
}

}  // namespace ormala
