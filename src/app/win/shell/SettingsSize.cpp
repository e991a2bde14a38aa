#include "app/win/shell/SettingsSize.h"

#include <algorithm>
#include <utility>

#include "dialogs/win/formPlacement.h"
#include "platform/win/controlDpi.h"
#include "platform/win/monitors.h"
#include "platform/win/regions.h"

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

}  // namespace

void SettingsSize::placeFirst() {
    frameDpi_ = dpiOf(window_.handle());
    dpi_ = controlDpi(frameDpi_);
    const SIZE around = frame();
    const int width = layout().width + static_cast<int>(around.cx);
    SetWindowPos(window_.handle(), nullptr, GetSystemMetrics(SM_CXSCREEN) - width - firstDistance,
                 firstDistance, width, layout().firstHeight + static_cast<int>(around.cy),
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

void SettingsSize::restoreEditModeHeight(int twips) {
    const auto below = static_cast<int>(monitorAround(window_.handle()).rcMonitor.bottom -
                                        window_.rectangle().top);
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

std::optional<PixelRect> SettingsSize::changeDpi(int frameDpi, const RECT& suggested) {
    const SettingsHeight::Present former = present();
    const int formerFrame = std::exchange(frameDpi_, frameDpi);
    const int formerDpi = std::exchange(dpi_, controlDpi(frameDpi));
    return fitted(former.state == WindowState::minimised
                      ? fromRect(suggested)
                      : acrossDpi_.at(window_.handle(), formerFrame, frameDpi, suggested),
                  formerDpi, former);
}

std::optional<PixelRect> SettingsSize::changeTextSize() {
    const SettingsHeight::Present former = present();
    const int formerDpi = std::exchange(dpi_, controlDpi(frameDpi_));
    PixelRect place = fromRect(window_.rectangle());
    place.bottom = place.top + MulDiv(place.height(), dpi_, formerDpi);
    return fitted(place, formerDpi, former);
}

/// With the width of the layout, and the height that the mode wants.
std::optional<PixelRect> SettingsSize::fitted(PixelRect place, int formerDpi,
                                              const SettingsHeight::Present& former) {
    const SIZE around = frame();
    const auto height = height_.movedToDpi(formerDpi, dpi_, former, place.height(),
                                           layout().shortHeight + static_cast<int>(around.cy));
    if (!height) {
        return std::nullopt;
    }
    place.right = place.left + layout().width + static_cast<int>(around.cx);
    place.bottom = place.top + *height;
    return place;
}

PanelLayout::Window SettingsSize::forPanels(Mode mode) const {
    const SettingsLayout places = layout();
    const SettingsHeight::Present now = present();
    const int below =
        static_cast<int>(workAreaAround(window_.handle()).bottom) - placeWhenRestored().top;
    return {places.picOuter.left, places.picOuter.top, static_cast<int>(frame().cy), below,
            now.height == now.shortHeight && mode == Mode::templateMode};
}

void SettingsSize::takeHeight(int height) const {
    setHeight(window_.handle(), height);
}

SIZE SettingsSize::frame() const {
    const HWND window = window_.handle();
    RECT around{0, 0, 0, 0};
    AdjustWindowRectExForDpi(&around, static_cast<DWORD>(GetWindowLongPtrW(window, GWL_STYLE)),
                             FALSE, static_cast<DWORD>(GetWindowLongPtrW(window, GWL_EXSTYLE)),
                             static_cast<UINT>(frameDpi_));
    return {around.right - around.left, around.bottom - around.top};
}

SettingsHeight::Present SettingsSize::present() const {
    return {stateOf(window_.handle()), placeWhenRestored().height(),
            layout().shortHeight + static_cast<int>(frame().cy)};
}

PixelRect SettingsSize::placeWhenRestored() const {
    return IsIconic(window_.handle()) != FALSE ? normalPlaceOf(window_.handle())
                                               : fromRect(window_.rectangle());
}

}  // namespace ormala
