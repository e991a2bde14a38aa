#include "dialogs/win/LostWindows.h"

#include <utility>

#include "dialogs/win/formPlacement.h"

namespace ormala {

namespace {

constexpr UINT untilAllIsPlaced = 1000;

/// A minimised window lies where it comes back to, and a hidden one is placed when it is shown. One
/// that its user has put partly beyond the edge is not lost.
bool isLost(HWND window) {
    return IsWindowVisible(window) != FALSE &&
           MonitorFromWindow(window, MONITOR_DEFAULTTONULL) == nullptr;
}

}  // namespace

LostWindows::LostWindows(std::function<std::vector<HWND>()> windows)
    : windows_(std::move(windows)), due_(atRest_.due.subscribe([this] { afterRest(); })) {}

void LostWindows::screensChanged() {
    bringBack([](HWND) { return true; });
    screensAreNew_ = true;
    atRest_.start(untilAllIsPlaced);
}

void LostWindows::placed(HWND window) {
    if (isLost(window)) {
        atRest_.start(untilAllIsPlaced);
    }
}

void LostWindows::afterRest() {
    const bool all = std::exchange(screensAreNew_, false);
    bringBack([all](HWND window) { return all || isLost(window); });
}

void LostWindows::bringBack(const std::function<bool(HWND)>& which) const {
    for (const HWND window : windows_()) {
        if (which(window)) {
            bringOntoScreens(window);
        }
    }
}

}  // namespace ormala
