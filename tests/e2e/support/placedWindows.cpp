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

struct Misplaced {
    DesktopWindow window;
    /// As the display tells it; "-" where it shows none.
    std::string place;
};

/// Those of the windows that lie elsewhere than the display shows them.
std::vector<Misplaced> misplaced(const std::vector<DesktopWindow>& windows) {
    const StageService stage(L"ORMALA_DEVICE");
    std::string question = "places";
    std::vector<Misplaced> found;
    for (const DesktopWindow& window : windows) {
        if (stage.isThere() && isOnDisplay(window)) {
            question += ' ' + std::to_string(displayWindow(window));
            found.push_back({window, {}});
        }
    }
    std::istringstream places(found.empty() ? "" : stage.ask(question));
    for (Misplaced& each : found) {
        places >> each.place;
    }
    std::erase_if(found, [](const Misplaced& each) {
        return isAt(each.window, each.place) || !isOnDisplay(each.window);
    });
    return found;
}

/// The display then tells its place once more.
void moveToAndFro(const Misplaced& misplaced) {
    int x = 0;
    int y = 0;
    char comma = ',';
    if (std::istringstream(misplaced.place) >> x >> comma >> y) {
        const StageService stage(L"ORMALA_DEVICE");
        const std::string move = "windowmove " + std::to_string(displayWindow(misplaced.window));
        for (const int left : {x + 1, x}) {
            stage.request(move + ' ' + std::to_string(left) + ' ' + std::to_string(y));
        }
    }
}

}  // namespace

UINT_PTR displayWindow(const DesktopWindow& window) {
    return reinterpret_cast<UINT_PTR>(GetPropW(window.handle(), L"__wine_x11_whole_window"));
}

bool arePlaced(const std::vector<DesktopWindow>& windows) {
    return misplaced(windows).empty();
}

void placeAnew() {
    StageService(L"ORMALA_DEVICE").request("exec --sync openbox --restart");
}

void waitUntilPlaced(const std::vector<DesktopWindow>& windows) {
    constexpr milliseconds usual{1500};
    const auto placed = [&] { return arePlaced(windows); };
    // Where monitors come and go, the places differ for some time and then agree by themselves.
    if (!StageService(L"ORMALA_MONITORS").isThere()) {
        if (waitUntil(placed, usual)) {
            return;
        }
        std::ranges::for_each(misplaced(windows), moveToAndFro);
        if (waitUntil(placed, usual)) {
            return;
        }
        placeAnew();
    }
    requireSoon("windows where the display shows them", placed);
}

}  // namespace ormala::test
