#include "app/win/shell/SettingsSize.h"

#include <algorithm>
#include <utility>

#include "dialogs/win/formPlacement.h"
#include "platform/win/monitors.h"

namespace ormala {

namespace {

/// From the right edge and from the top of the screen on a first start.
constexpr int firstDistance = 80;

WindowState stateOf(HWND window) {
    if (IsIconic(window) != FALSE) {
        return WindowState::minimised;
    }
    return IsZoomed(window) != FALSE ? WindowState::maximised : WindowState::normal;
}

WindowState stateOfSize(WPARAM kind) {
    if (kind == SIZE_MINIMIZED) {
        return WindowState::minimised;
    }
    return kind == SIZE_MAXIMIZED ? WindowState::maximised : WindowState::normal;
}

/// Of a minimised window the one that it comes back to.
RECT normalPlace(HWND window) {
    WINDOWPLACEMENT placement{};
    placement.length = sizeof placement;
    GetWindowPlacement(window, &placement);
    return placement.rcNormalPosition;
}

}  // namespace

void SettingsSize::placeFirst() {
    dpi_ = dpiOf(window_.handle());
    const SIZE around = frame();
    const int width = layout().width + static_cast<int>(around.cx);
    SetWindowPos(window_.handle(), nullptr, GetSystemMetrics(SM_CXSCREEN) - width - firstDistance,
                 firstDistance, width, layout().firstHeight + static_cast<int>(around.cy),
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

void SettingsSize::restoreEditModeHeight(int twips) {
    const int below = GetSystemMetrics(SM_CYSCREEN) - static_cast<int>(window_.rectangle().top);
    height_.setEditModeHeight(std::min(pixelsOfTwips(twips, dpi_), std::max(below, 0)));
}

int SettingsSize::editModeFormHeight() const {
    return twipsOfPixels(height_.editModeHeight(), dpi_);
}

void SettingsSize::AdjustFormHeight(Mode mode, Mode former) {
    if (const auto height = height_.adjust(mode, former, present())) {
        takeHeight(*height);
    }
}

bool SettingsSize::resized(WPARAM kind) {
    return height_.resized(stateOfSize(kind));
}

void SettingsSize::limit(MINMAXINFO& limits) const {
    const SIZE around = frame();
    const int width = layout().width + static_cast<int>(around.cx);
    limits.ptMinTrackSize.x = width;
    limits.ptMaxTrackSize.x = width;
    limits.ptMinTrackSize.y = layout().shortHeight + around.cy;
}

std::optional<int> SettingsSize::changeDpi(int dpi, int suggested) {
    const SettingsHeight::Present former = present();
    const int formerDpi = std::exchange(dpi_, dpi);
    return height_.movedToDpi(formerDpi, dpi_, former, suggested,
                              layout().shortHeight + static_cast<int>(frame().cy));
}

void SettingsSize::takePlace(const RECT& leftTop, int height) const {
    SetWindowPos(window_.handle(), nullptr, leftTop.left, leftTop.top,
                 layout().width + static_cast<int>(frame().cx), height,
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

PanelLayout::Window SettingsSize::forPanels(Mode mode) const {
    const SettingsLayout places = layout();
    const SettingsHeight::Present now = present();
    const int below =
        static_cast<int>(workAreaAround(window_.handle()).bottom - window_.rectangle().top);
    return {places.picOuter.left, places.picOuter.top, static_cast<int>(frame().cy), below,
            now.height == now.shortHeight && mode == Mode::templateMode};
}

void SettingsSize::takeHeight(int height) const {
    const RECT place = window_.rectangle();
    SetWindowPos(window_.handle(), nullptr, 0, 0, place.right - place.left, height,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

SIZE SettingsSize::frame() const {
    const HWND window = window_.handle();
    RECT around{0, 0, 0, 0};
    AdjustWindowRectExForDpi(&around, static_cast<DWORD>(GetWindowLongPtrW(window, GWL_STYLE)),
                             FALSE, static_cast<DWORD>(GetWindowLongPtrW(window, GWL_EXSTYLE)),
                             static_cast<UINT>(dpi_));
    return {around.right - around.left, around.bottom - around.top};
}

SettingsHeight::Present SettingsSize::present() const {
    const WindowState state = stateOf(window_.handle());
    const RECT place =
        state == WindowState::minimised ? normalPlace(window_.handle()) : window_.rectangle();
    return {state, static_cast<int>(place.bottom - place.top),
            layout().shortHeight + static_cast<int>(frame().cy)};
}

}  // namespace ormala
