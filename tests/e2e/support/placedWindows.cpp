#include "e2e/support/placedWindows.h"

#include <algorithm>
#include <sstream>
#include <string>

#include "e2e/support/StageFailure.h"
#include "e2e/support/StageService.h"
#include "support/win/Screen.h"

namespace ormala::test {

namespace {

/// The display does not show what lies beside it.
bool isOnDisplay(const DesktopWindow& window) {
    const ScreenRect all = screen::virtualScreen();
    const ScreenRect rect = window.rect();
    return window.isVisible() && !window.isMinimised() && displayWindow(window) != 0 &&
           std::max(rect.left, all.left) < std::min(rect.right, all.right) &&
           std::max(rect.top, all.top) < std::min(rect.bottom, all.bottom);
}

/// As the stage tells it, which counts from the left and upper end of all monitors.
std::string placeText(const ScreenRect& rect) {
    const ScreenRect all = screen::virtualScreen();
    std::ostringstream text;
    text << rect.left - all.left << ',' << rect.top - all.top << ',' << rect.width() << ','
         << rect.height();
    return text.str();
}

/// The display's window is the client area if it has the display's frame, the whole window if not.
bool isAt(const DesktopWindow& window, const std::string& place) {
    return place == placeText(window.clientRect()) || place == placeText(window.rect());
}

}  // namespace

UINT_PTR displayWindow(const DesktopWindow& window) {
    return reinterpret_cast<UINT_PTR>(GetPropW(window.handle(), L"__wine_x11_whole_window"));
}

bool arePlaced(const std::vector<DesktopWindow>& windows) {
    const StageService stage(L"ORMALA_DEVICE");
    if (!stage.isThere()) {
        return true;
    }
    std::string question = "places";
    std::vector<DesktopWindow> asked;
    for (const DesktopWindow& window : windows) {
        if (isOnDisplay(window)) {
            question += ' ' + std::to_string(displayWindow(window));
            asked.push_back(window);
        }
    }
    std::istringstream places(asked.empty() ? "" : stage.ask(question));
    return std::ranges::all_of(asked, [&places](const DesktopWindow& window) {
        std::string place;
        places >> place;
        return isAt(window, place) || !isOnDisplay(window);
    });
}

void placeAnew() {
    StageService(L"ORMALA_DEVICE").request("exec --sync openbox --restart");
}

void waitUntilPlaced(const std::vector<DesktopWindow>& windows) {
    constexpr milliseconds longest{3000};
    if (!waitUntil([&] { return arePlaced(windows); }, longest)) {
        placeAnew();
    }
    requireSoon("windows where the display shows them", [&] { return arePlaced(windows); });
}

}  // namespace ormala::test
