#include "dialogs/win/formPlacement.h"

#include <limits>

#include "platform/win/monitors.h"
#include "platform/win/regions.h"

namespace ormala {

namespace {

/// There is none in a gap between screens of different sizes.
PixelRect onSomeScreen(const PixelRect& rect) {
    const RECT place = toRect(rect);
    if (MonitorFromRect(&place, MONITOR_DEFAULTTONULL) != nullptr) {
        return rect;
    }
    WindowPlacement placement{0, rect};
    KeepRectInBounds(placement, fromRect(monitorAround(place).rcWork));
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

WindowPlacement placementOf(HWND window) {
    WINDOWPLACEMENT placement{};
    placement.length = sizeof placement;
    GetWindowPlacement(window, &placement);
    return {static_cast<std::int32_t>(placement.showCmd), normalPlaceOf(window)};
}

ScreenAreas screenAreas() {
    RECT work{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    return {fromRect(work), fromRect(virtualScreen())};
}

RestoredPlacement storedPlacement(HWND window, INIFile& options, const std::string& section,
                                  bool cascade) {
    RestoredPlacement restored = restoredPlacement(options, section, cascade, placementOf(window),
                                                   sizableOf(window), screenAreas());
    restored.rect = onSomeScreen(restored.rect);
    return restored;
}

void RestoreFormPlacement(HWND window, PlaceAcrossDpi& place, INIFile& options,
                          const std::string& section, bool cascade) {
    RestoredPlacement restored = storedPlacement(window, options, section, cascade);
    if (restored.maximise) {
        ShowWindow(window, SW_SHOWMAXIMIZED);
    }
    place.restore([&] {
        setNormalPlace(window, restored.rect);
        // A size that is not the user's is another one at another resolution.
        restored = storedPlacement(window, options, section, false);
        return normalPlaceOf(window) == restored.rect;
    });
    if (!restored.maximise) {
        // On a screen of another resolution it may have become larger than it was.
        bringOntoScreens(window);
    }
}

void bringOntoScreens(HWND window) {
    if (IsIconic(window) != FALSE) {
        setNormalPlace(window, keptOnPresentScreens(normalPlaceOf(window)));
        return;
    }
    placeSteadily([window] {
        RECT present{};
        GetWindowRect(window, &present);
        const PixelRect place = keptOnPresentScreens(fromRect(present));
        if (place == fromRect(present)) {
            return true;
        }
        SetWindowPos(window, nullptr, place.left, place.top, place.width(), place.height(),
                     SWP_NOZORDER | SWP_NOACTIVATE);
        return false;
    });
}

int dpiOf(HWND window) {
    return static_cast<int>(GetDpiForWindow(window));
}

}  // namespace ormala
