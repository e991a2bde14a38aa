#include "e2e/support/Program.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <vector>

#include "e2e/support/StageFailure.h"
#include "e2e/support/placedWindows.h"
#include "support/win/Screen.h"

namespace ormala::test {

namespace {

constexpr milliseconds loadDeadline{30000};

std::filesystem::path programFile() {
    const wchar_t* named = _wgetenv(L"ORMALA_EXE");
    if (named != nullptr && *named != L'\0') {
        return std::filesystem::absolute(named);
    }
    return testProgramFolder().parent_path().parent_path() / "Ormala.exe";
}

/// A rectangle around all of them that are shown, as far as it lies on the screen.
ScreenRect placeOf(const std::vector<DesktopWindow>& windows) {
    const ScreenRect all = screen::virtualScreen();
    ScreenRect place{all.right, all.bottom, all.left, all.top};
    for (const DesktopWindow& window : windows) {
        if (window.isVisible()) {
            const ScreenRect rect = window.rect();
            place = {std::min(place.left, std::max(rect.left, all.left)),
                     std::min(place.top, std::max(rect.top, all.top)),
                     std::max(place.right, std::min(rect.right, all.right)),
                     std::max(place.bottom, std::min(rect.bottom, all.bottom))};
        }
    }
    return place;
}

}  // namespace

std::filesystem::path testProgramFolder() {
    std::array<wchar_t, 1024> buffer{};
    GetModuleFileNameW(nullptr, buffer.data(), static_cast<DWORD>(buffer.size()));
    return std::filesystem::path(buffer.data()).parent_path();
}

Program::Program(const AppDataFolder& data) : data_(&data), process_(programFile()) {}

void Program::waitUntilReady() const {
    requireSoon(
        "end of the program's load",
        [this] {
            if (!process_.isRunning()) {
                failStage("the program has ended during its load");
            }
            return settings().hasProperty(L"Ready");
        },
        loadDeadline);
    const std::vector<DesktopWindow> windows = topLevelWindows(process_.id());
    for (const DesktopWindow& window : windows) {
        window.settle();
    }
    waitUntilPlaced(windows);
    if (const ScreenRect place = placeOf(windows); place.width() > 0 && place.height() > 0) {
        screen::waitUntilStill(place);
    }
}

DesktopWindow Program::window(std::string_view className) const {
    return findTopLevel(process_.id(), className);
}

DesktopWindow Program::waitForWindow(std::string_view className, milliseconds deadline) const {
    return waitForTopLevel(process_.id(), className, {}, deadline);
}

MessageBoxWindow Program::waitForMessageBox(std::string_view title) const {
    return MessageBoxWindow::waitFor(process_.id(), title);
}

void Program::requestClose() const {
    settings().post(WM_CLOSE);
}

DWORD Program::waitForExit(milliseconds deadline) const {
    const auto code = process_.waitForExit(deadline);
    if (!code) {
        failStage("the program does not end");
    }
    return *code;
}

DWORD Program::close() const {
    requestClose();
    return waitForExit();
}

}  // namespace ormala::test
