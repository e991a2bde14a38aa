#include "e2e/support/SecondMonitor.h"

#include <atomic>
#include <memory>
#include <thread>

#include "e2e/support/StageFailure.h"
#include "support/win/Screen.h"

namespace ormala::test {

namespace {

constexpr const wchar_t* mainDisplay = LR"(\\.\DISPLAY1)";

bool desktopAnswers() {
    constexpr UINT answerTime = 500;
    DWORD_PTR result = 0;
    return SendMessageTimeoutW(GetDesktopWindow(), WM_NULL, 0, 0, SMTO_NORMAL, answerTime,
                               &result) != 0;
}

/// Wine 8's desktop can sleep for ever once it has handled a change: it sends messages meanwhile,
/// which spoils what it waits for. Every program that starts waits for it then. The next change of
/// the display wakes it.
void wakeDesktop(const StageService& stage) {
    requireSoon("desktop that is awake", [&] {
        if (desktopAnswers()) {
            return true;
        }
        stage.request("stir");
        return false;
    });
}

/// Wine notices a change from outside, but tells the programs only of its own: this one sets what
/// is set already. It is told to each window in turn and has no limit of its own, so that a thread
/// waits for it which may be left behind.
void tellThePrograms(const StageService& stage) {
    const auto told = std::make_shared<std::atomic<bool>>(false);
    std::thread([told] {
        DEVMODEW present{};
        present.dmSize = sizeof(present);
        EnumDisplaySettingsW(mainDisplay, ENUM_CURRENT_SETTINGS, &present);
        ChangeDisplaySettingsExW(mainDisplay, &present, nullptr, 0, nullptr);
        *told = true;
    }).detach();
    requireSoon("news of the monitors", [&] {
        wakeDesktop(stage);
        return told->load();
    });
}

}  // namespace

SecondMonitor::SecondMonitor()
    : stage_(L"ORMALA_MONITORS"),
      listener_(CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr,
                                GetModuleHandleW(nullptr), nullptr)) {
    if (!stage_.isThere()) {
        failStage("this stage has no second monitor: open one with --second-monitor left");
    }
    wakeDesktop(stage_);
    giveBack();
    const ScreenRect all = screen::virtualScreen();
    const POINT corner{all.left, all.top};
    MONITORINFO info{};
    info.cbSize = sizeof(info);
    GetMonitorInfoW(MonitorFromPoint(corner, MONITOR_DEFAULTTONEAREST), &info);
    rect_ = screenRect(info.rcMonitor);
    if (rect_.right != 0 || rect_.left >= 0) {
        failStage("the second monitor does not lie left of the main one");
    }
}

SecondMonitor::~SecondMonitor() {
    try {
        giveBack();
    } catch (const std::exception&) {
        // The next one of these tells.
    }
    DestroyWindow(listener_);
}

bool SecondMonitor::isThere() {
    return GetSystemMetrics(SM_CMONITORS) == 2;
}

void SecondMonitor::takeAway() {
    change(false);
}

void SecondMonitor::giveBack() {
    change(true);
}

void SecondMonitor::change(bool there) {
    if (isThere() == there) {
        return;
    }
    stage_.request(there ? "present" : "absent");
    requireSoon(there ? "second monitor" : "loss of the second monitor",
                [there] { return isThere() == there; });
    tellThePrograms(stage_);
    requireSoon("lasting change of the monitors", [there] { return isThere() == there; });
    wakeDesktop(stage_);
}

}  // namespace ormala::test
