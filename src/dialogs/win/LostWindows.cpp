#include "dialogs/win/LostWindows.h"

#include <utility>

#include "dialogs/win/formPlacement.h"

namespace ormala {

namespace {

constexpr UINT untilAllIsPlaced = 1000;

/// A minimised window lies on no screen, and a hidden one is placed when it is shown.
bool isLost(HWND window) {
    return IsIconic(window) == FALSE && IsWindowVisible(window) != FALSE &&
           MonitorFromWindow(window, MONITOR_DEFAULTTONULL) == nullptr;
}

}  // namespace

LostWindows::LostWindows(std::function<std::vector<HWND>()> windows)
    : windows_(std::move(windows)), due_(atRest_.due.subscribe([this] { bringBack(); })) {}

void LostWindows::screensChanged() {
    bringBack();
    atRest_.start(untilAllIsPlaced);
}

void LostWindows::placed(HWND window) {
    if (isLost(window)) {
        atRest_.start(untilAllIsPlaced);
    }
}

void LostWindows::bringBack() const {
    for (const HWND window : windows_()) {
        bringOntoScreens(window);
    }
}

}  // namespace ormala
