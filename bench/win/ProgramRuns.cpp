#include <windows.h>

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "Figures.h"
#include "app/ToolFile.h"
#include "benchmarks.h"
#include "e2e/support/AppDataFolder.h"
#include "storage/win/WindowsCodePage.h"
#include "storage/win/WindowsFileStore.h"
#include "support/QuietToolList.h"
#include "support/win/ChildProcess.h"
#include "support/win/Screen.h"
#include "support/win/Wait.h"
#include "support/win/WideText.h"

namespace ormala::bench {

namespace {

std::filesystem::path ownFolder() {
    wchar_t path[1024]{};
    GetModuleFileNameW(nullptr, path, 1024);
    return std::filesystem::path(path).parent_path();
}

HWND mainWindow(DWORD process, const wchar_t* className) {
    HWND window = nullptr;
    while ((window = FindWindowExW(nullptr, window, className, nullptr)) != nullptr) {
        DWORD owner = 0;
        GetWindowThreadProcessId(window, &owner);
        if (owner == process) {
            return window;
        }
    }
    return nullptr;
}

bool isReady(const test::ChildProcess& child, const wchar_t* className) {
    const HWND window = mainWindow(child.id(), className);
    return window != nullptr && GetPropW(window, L"Ready") != nullptr;
}

/// More often than `waitUntil` asks.
void watchFor(const std::function<bool()>& effect) {
    const auto began = GetTickCount64();
    while (!effect() && GetTickCount64() - began < 20000) {
        Sleep(1);
    }
}

/// A program that shows a window, by the class that is ready last.
struct Started {
    std::filesystem::path program;
    const wchar_t* className;
};

struct StartTimes {
    double painted = 0;
    double ready = 0;
};

/// In the worksheet of a first start, and in the window of the empty program, beside all tools.
constexpr test::ScreenPoint spot{400, 600};

/// The colour of the spot when all has come to rest.
test::Color paintedColor(const Started& started) {
    const test::Color ground = test::screen::pixel(spot);
    test::ChildProcess child(started.program);
    test::waitUntil([&] { return isReady(child, started.className); });
    const test::Color color =
        test::screen::waitUntilStill({spot.x, spot.y, spot.x + 1, spot.y + 1}).at(spot);
    PostMessageW(mainWindow(child.id(), started.className), WM_CLOSE, 0, 0);
    child.waitForExit();
    test::waitUntil([&] { return test::screen::pixel(spot) == ground; });
    return color;
}

/// In milliseconds, to the pixel on the screen and to the property that both programs set.
StartTimes startTimes(const Started& started, test::Color color) {
    const test::Color ground = test::screen::pixel(spot);
    StartTimes times;
    std::optional<test::ChildProcess> child;
    times.painted = elapsed([&] {
        child.emplace(started.program);
        watchFor([&] { return test::screen::pixel(spot) == color; });
    });
    times.ready = times.painted +
                  elapsed([&] { watchFor([&] { return isReady(*child, started.className); }); });
    PostMessageW(mainWindow(child->id(), started.className), WM_CLOSE, 0, 0);
    child->waitForExit();
    test::waitUntil([&] { return test::screen::pixel(spot) == ground; });
    return times;
}

}  // namespace

void start() {
    const test::AppDataFolder folder;
    const Started ormala{ownFolder() / "../../Ormala.exe", L"frmSettings"};
    const Started empty{ownFolder() / "empty_window.exe", L"EmptyWindow"};
    const test::Color worksheet = paintedColor(ormala);
    const test::Color gray = paintedColor(empty);
    std::vector<double> painted;
    std::vector<double> ready;
    std::vector<double> bare;
    for (int i = 0; i < 11; ++i) {
        const StartTimes times = startTimes(ormala, worksheet);
        painted.push_back(times.painted);
        ready.push_back(times.ready);
        bare.push_back(startTimes(empty, gray).painted);
    }
    report("start to the painted worksheet", median(painted), "ms",
           limitOf(bare, "an empty window program", 2));
    report("start until the control window has come too", median(ready), "ms",
           limitOf(bare, "an empty window program", 4));
}

namespace {

/// For the next start.
void leaveTools(const std::filesystem::path& path, ToolKind kind, int count) {
    std::filesystem::create_directories(path.parent_path());
    QuietToolList tools;
    WindowsFileStore store;
    const WindowsCodePage codePage;
    MemoryMessagePresenter messages;
    INIFile file(store, codePage, messages);
    ToolFile toolFile({file, store, tools.list, tools.view}, {"", [] { return std::string(); }});
    file.setPath(test::narrow(path.wstring()));
    tools.list.RemoveAllTools();
    tools.add(kind, count);
    toolFile.save();
}

}  // namespace

void memory() {
    constexpr int count = 33;
    constexpr double megabyte = 1 << 20;
    const test::AppDataFolder folder;
    leaveTools(folder.toolsFile(), ToolKind::stencil, count);
    test::ChildProcess child(ownFolder() / "../../Ormala.exe");
    test::waitUntil([&] { return isReady(child, L"frmSettings"); });
    PostMessageW(mainWindow(child.id(), L"frmResizer"), WM_SYSCOMMAND, SC_MAXIMIZE, 0);
    const HWND worksheet = mainWindow(child.id(), L"frmWorksheet");
    RECT place{};
    test::waitUntil([&] {
        GetWindowRect(worksheet, &place);
        return place.right - place.left == GetSystemMetrics(SM_CXSCREEN);
    });
    test::screen::waitUntilStill(test::screen::primaryMonitor());
    const double bitmaps = 2.0 * 4 * (place.right - place.left) * (place.bottom - place.top);
    report("private memory with 33 stencils beside two bitmaps",
           (static_cast<double>(child.privateBytes()) - bitmaps) / megabyte, "MB",
           {25, "what was promised", 1});
    PostMessageW(mainWindow(child.id(), L"frmSettings"), WM_CLOSE, 0, 0);
    child.waitForExit();
}

void idle() {
    const test::AppDataFolder folder;
    test::ChildProcess child(ownFolder() / "../../Ormala.exe");
    test::waitUntil([&] { return isReady(child, L"frmSettings"); });
    Sleep(1000);
    constexpr int seconds = 30;
    const auto before = child.processorTime();
    Sleep(seconds * 1000);
    const auto used = child.processorTime() - before;
    report("processor time in 30 s of idling", static_cast<double>(used.count()), "ms",
           {seconds * 1000 / 100.0, "one per cent of a core", 1});
    PostMessageW(mainWindow(child.id(), L"frmSettings"), WM_CLOSE, 0, 0);
    child.waitForExit();
}

}  // namespace ormala::bench
