#include "app/win/screens.h"

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

int metricOr(int index, int fallback) {
    const int value = GetSystemMetrics(SM_CMONITORS) == 0 ? 0 : GetSystemMetrics(index);
    return value != 0 ? value : fallback;
}

}  // namespace

ScreenAreas screenAreas() {
    RECT work{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    const int left = metricOr(SM_XVIRTUALSCREEN, 0);
    const int top = metricOr(SM_YVIRTUALSCREEN, 0);
    const int width = metricOr(SM_CXVIRTUALSCREEN, GetSystemMetrics(SM_CXSCREEN));
    const int height = metricOr(SM_CYVIRTUALSCREEN, GetSystemMetrics(SM_CYSCREEN));
    return {placementRect(work), {left, top, left + width, top + height}};
}

void SaveFormPlacement(HWND window, INIFile& options, const std::string& section) {
    storePlacement(options, section, placementOf(window));
}

void RestoreFormPlacement(HWND window, INIFile& options, const std::string& section, bool cascade) {
    const bool sizable = (GetWindowLongPtrW(window, GWL_STYLE) & WS_THICKFRAME) != 0;
    const RestoredPlacement restored =
        restoredPlacement(options, section, cascade, placementOf(window), sizable, screenAreas());
    if (restored.maximise) {
        ShowWindow(window, SW_SHOWMAXIMIZED);
    }
    // Neither shows the window nor changes its state.
    WINDOWPLACEMENT placement = systemPlacement(window);
    placement.showCmd = SW_HIDE;
    placement.rcNormalPosition = {restored.rect.left, restored.rect.top, restored.rect.right,
                                  restored.rect.bottom};
    SetWindowPlacement(window, &placement);
}

int dpiOf(HWND window) {
    return static_cast<int>(GetDpiForWindow(window));
}

}  // namespace ormala
