#include <windows.h>

#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

#include "Figures.h"
#include "benchmarks.h"
#include "e2e/support/AppDataFolder.h"
#include "support/win/ChildProcess.h"
#include "support/win/Wait.h"

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

/// From the start to the property that both programs set when their window is painted.
double startTime(const std::filesystem::path& program, const wchar_t* className) {
    double time = 0;
    const auto began = GetTickCount64();
    LARGE_INTEGER frequency{};
    LARGE_INTEGER start{};
    LARGE_INTEGER end{};
    QueryPerformanceFrequency(&frequency);
    QueryPerformanceCounter(&start);
    test::ChildProcess child(program);
    HWND window = nullptr;
    while (GetTickCount64() - began < 20000) {
        window = mainWindow(child.id(), className);
        if (window != nullptr && GetPropW(window, L"Ready") != nullptr) {
            break;
        }
        Sleep(1);
    }
    QueryPerformanceCounter(&end);
    time = 1000.0 * static_cast<double>(end.QuadPart - start.QuadPart) /
           static_cast<double>(frequency.QuadPart);
    PostMessageW(window, WM_CLOSE, 0, 0);
    child.waitForExit();
    return time;
}

}  // namespace

void start() {
    const test::AppDataFolder folder;
    const auto ormala = ownFolder() / "../../Ormala.exe";
    const auto empty = ownFolder() / "empty_window.exe";
    std::vector<double> program;
    std::vector<double> bare;
    for (int i = 0; i < 11; ++i) {
        program.push_back(startTime(ormala, L"frmSettings"));
        bare.push_back(startTime(empty, L"EmptyWindow"));
    }
    report("start to the painted worksheet", median(program), "ms",
           limitOf(bare, "an empty window program", 2));
}

void idle() {
    const test::AppDataFolder folder;
    test::ChildProcess child(ownFolder() / "../../Ormala.exe");
    test::waitUntil([&] {
        const HWND window = mainWindow(child.id(), L"frmSettings");
        return window != nullptr && GetPropW(window, L"Ready") != nullptr;
    });
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
