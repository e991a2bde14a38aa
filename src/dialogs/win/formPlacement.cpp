#include "dialogs/win/formPlacement.h"

#include <limits>

#include "platform/win/monitors.h"
#include "platform/win/regions.h"

namespace ormala {

namespace {

WINDOWPLACEMENT systemPlacement(HWND window) {
    WINDOWPLACEMENT placement{};
    placement.length = sizeof placement;
    GetWindowPlacement(window, &placement);
    return placement;
}

WindowPlacement placementOf(HWND window) {
    const WINDOWPLACEMENT placement = systemPlacement(window);
    return {static_cast<std::int32_t>(placement.showCmd), fromRect(placement.rcNormalPosition)};
}

/// There is none in a gap between screens of different sizes.
PixelRect onSomeScreen(const PixelRect& rect) {
    const RECT place = toRect(rect);
    if (MonitorFromRect(&place, MONITOR_DEFAULTTONULL) != nullptr) {
        return rect;
    }
    MONITORINFO monitor{};
    monitor.cbSize = sizeof monitor;
    GetMonitorInfoW(MonitorFromRect(&place, MONITOR_DEFAULTTONEAREST), &monitor);
    WindowPlacement placement{0, rect};
    KeepRectInBounds(placement, fromRect(monitor.rcWork));
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

PixelRect keptOnPresentScreens(const PixelRect& rect) {
    return onSomeScreen(keptOnScreens(rect, screenAreas()));
}

}  // namespace

ScreenAreas screenAreas() {
    RECT work{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    return {fromRect(work), fromRect(virtualScreen())};
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
    placement.rcNormalPosition = toRect(restored.rect);
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
            toRect(keptOnPresentScreens(fromRect(placement.rcNormalPosition)));
        placement.showCmd = SW_SHOWMINNOACTIVE;
        SetWindowPlacement(window, &placement);
        return;
    }
    RECT present{};
    GetWindowRect(window, &present);
    const PixelRect former = fromRect(present);
    const PixelRect place = keptOnPresentScreens(former);
    if (place != former) {
        SetWindowPos(window, nullptr, place.left, place.top, place.width(), place.height(),
                     SWP_NOZORDER | SWP_NOACTIVATE);
    }
}

int dpiOf(HWND window) {
    return static_cast<int>(GetDpiForWindow(window));
}

}  // namespace ormala
