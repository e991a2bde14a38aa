#include "platform/win/sentDrag.h"

#include <array>

#include "modAPI/PixelRect.h"
#include "modAPI/absoluteMouse.h"
#include "platform/win/monitors.h"
#include "platform/win/regions.h"

namespace ormala {

namespace {

/// The system's own answer says nothing of this refusal: input for a program with more rights is
/// dropped. A message is refused for the same reason, with an error. No program knows this one.
bool admitsMessages(HWND window) {
    static const UINT probe = RegisterWindowMessageW(L"OrmalaProbe");
    return PostMessageW(window, probe, 0, 0) != FALSE || GetLastError() != ERROR_ACCESS_DENIED;
}

UINT sendToSystem(std::span<INPUT> records) {
    return SendInput(static_cast<UINT>(records.size()), records.data(), sizeof(INPUT));
}

bool areSystemsButtonsSwapped() {
    return GetSystemMetrics(SM_SWAPBUTTON) != 0;
}

INPUT mouseRecord(DWORD flags, POINT to = {}) {
    INPUT record{};
    record.type = INPUT_MOUSE;
    record.mi.dwFlags = flags;
    record.mi.dx = to.x;
    record.mi.dy = to.y;
    return record;
}

/// What the system is sent is of the device, whose right button is the main one of a left-handed
/// user.
std::array<INPUT, 3> recordsOfDrag(PixelPoint to, bool swapped) {
    const PixelRect all = fromRect(virtualScreen());
    const POINT absolute{absoluteMouseCoordinate(to.x, all.left, all.width()),
                         absoluteMouseCoordinate(to.y, all.top, all.height())};
    constexpr DWORD move = MOUSEEVENTF_ABSOLUTE | MOUSEEVENTF_VIRTUALDESK | MOUSEEVENTF_MOVE;
    return {mouseRecord(swapped ? MOUSEEVENTF_RIGHTDOWN : MOUSEEVENTF_LEFTDOWN),
            mouseRecord(move, absolute),
            mouseRecord(swapped ? MOUSEEVENTF_RIGHTUP : MOUSEEVENTF_LEFTUP)};
}

/// Time that is not waited for longer.
class Limit {
  public:
    explicit Limit(DWORD milliseconds) : end_(GetTickCount64() + milliseconds) {}
    [[nodiscard]] DWORD left() const {
        const ULONGLONG now = GetTickCount64();
        return now < end_ ? static_cast<DWORD>(end_ - now) : 0;
    }

  private:
    ULONGLONG end_;
};

/// The windows that have just gone aside bare others, and these may still tell the system where
/// they found the mouse. So it is put there until it stays.
void putMouse(PixelPoint place, HWND target) {
    constexpr DWORD answerTime = 100;
    constexpr int tries = 10;
    POINT cursor{};
    for (int i = 0; i < tries && (i == 0 || cursor.x != place.x || cursor.y != place.y); ++i) {
        SetCursorPos(place.x, place.y);
        SendMessageTimeoutW(target, WM_NULL, 0, 0, SMTO_ABORTIFHUNG, answerTime, nullptr);
        Sleep(2);
        cursor = cursorPlace();
    }
}

/// The system has taken what was sent out of its queue: the pointer has arrived, and the button,
/// told by its place on the device, is up again.
bool isTaken(PixelPoint to, bool swapped) {
    const POINT cursor = cursorPlace();
    return cursor.x == to.x && cursor.y == to.y &&
           GetAsyncKeyState(swapped ? VK_RBUTTON : VK_LBUTTON) >= 0;
}

/// What is sent is only queued, and which window gets it is decided when the program below fetches
/// it. A message that is sent there is answered when the program comes to its queue, and then it
/// fetches the next piece of input; there are three, and whatever else was waiting there.
void waitUntilFetched(HWND target, PixelPoint to, bool swapped) {
    constexpr DWORD systemsTime = 200;
    constexpr DWORD programsTime = 1500;
    constexpr int rounds = 8;
    for (const Limit limit(systemsTime); !isTaken(to, swapped) && limit.left() > 0;) {
        Sleep(1);
    }
    const Limit limit(programsTime);
    for (int round = 0; round < rounds && limit.left() > 0; ++round) {
        SendMessageTimeoutW(target, WM_NULL, 0, 0, SMTO_ABORTIFHUNG, limit.left(), nullptr);
        Sleep(2);
    }
}

}  // namespace

DragSystem windowsDragSystem() {
    return {&admitsMessages, &sendToSystem, &areSystemsButtonsSwapped};
}

bool sendDrag(HWND target, PixelPoint from, PixelPoint to, const DragSystem& system) {
    if (!system.admits(target)) {
        return false;
    }
    SetForegroundWindow(GetAncestor(target, GA_ROOT));
    putMouse(from, target);
    const bool swapped = system.areButtonsSwapped();
    auto records = recordsOfDrag(to, swapped);
    // One call, so that no other input comes between.
    if (system.send(records) != records.size()) {
        return false;
    }
    waitUntilFetched(target, to, swapped);
    return true;
}

}  // namespace ormala
