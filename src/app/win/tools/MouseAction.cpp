#include "app/win/tools/MouseAction.h"

#include <array>
#include <vector>

#include "app/mouseActionPath.h"
#include "platform/win/OffScreen.h"
#include "platform/win/monitors.h"
#include "platform/win/regions.h"

namespace ormala {

namespace {

POINT systemPoint(PixelPoint point) {
    return {point.x, point.y};
}

INPUT mouseRecord(DWORD flags, POINT to = {}) {
    INPUT record{};
    record.type = INPUT_MOUSE;
    record.mi.dwFlags = flags;
    record.mi.dx = to.x;
    record.mi.dy = to.y;
    return record;
}

void sendDrag(PixelPoint to) {
    const PixelRect all = fromRect(virtualScreen());
    const POINT absolute{absoluteMouseCoordinate(to.x, all.left, all.width()),
                         absoluteMouseCoordinate(to.y, all.top, all.height())};
    // A left-handed user's left button is the right one of the device.
    const bool swapped = GetSystemMetrics(SM_SWAPBUTTON) != 0;
    constexpr DWORD move = MOUSEEVENTF_ABSOLUTE | MOUSEEVENTF_VIRTUALDESK | MOUSEEVENTF_MOVE;
    // One call, so that no other input comes between.
    std::array<INPUT, 3> records{
        mouseRecord(swapped ? MOUSEEVENTF_RIGHTDOWN : MOUSEEVENTF_LEFTDOWN),
        mouseRecord(move, absolute),
        mouseRecord(swapped ? MOUSEEVENTF_RIGHTUP : MOUSEEVENTF_LEFTUP)};
    SendInput(static_cast<UINT>(records.size()), records.data(), sizeof(INPUT));
}

/// Time that is not waited for longer.
class Patience {
  public:
    explicit Patience(DWORD milliseconds) : end_(GetTickCount64() + milliseconds) {}
    [[nodiscard]] DWORD left() const {
        const ULONGLONG now = GetTickCount64();
        return now < end_ ? static_cast<DWORD>(end_ - now) : 0;
    }

  private:
    ULONGLONG end_;
};

/// The system has taken what was sent out of its queue: the pointer has arrived, and the button is
/// up again.
bool isTaken(PixelPoint to) {
    POINT cursor{};
    GetCursorPos(&cursor);
    return cursor.x == to.x && cursor.y == to.y && GetAsyncKeyState(VK_LBUTTON) >= 0;
}

/// What is sent is only queued, and which window gets it is decided when the program below fetches
/// it. A message that is sent there is answered when the program comes to its queue, and then it
/// fetches the next piece of input; there are three, and whatever else was waiting there.
void waitUntilFetched(HWND target, PixelPoint to) {
    constexpr DWORD systemsTime = 200;
    constexpr DWORD programsTime = 1500;
    constexpr int rounds = 8;
    for (const Patience patience(systemsTime); !isTaken(to) && patience.left() > 0;) {
        Sleep(1);
    }
    const Patience patience(programsTime);
    for (int round = 0; round < rounds && patience.left() > 0; ++round) {
        SendMessageTimeoutW(target, WM_NULL, 0, 0, SMTO_ABORTIFHUNG, patience.left(), nullptr);
        Sleep(2);
    }
}

std::vector<PixelRect> monitorPlaces() {
    std::vector<PixelRect> places;
    EnumDisplayMonitors(
        nullptr, nullptr,
        [](HMONITOR, HDC, RECT* place, LPARAM found) -> BOOL {
            reinterpret_cast<std::vector<PixelRect>*>(found)->push_back(fromRect(*place));
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&places));
    return places;
}

MouseActionPath pathOf(const ctlRatioGrid& stencil, HWND worksheet) {
    POINT origin{};
    ClientToScreen(worksheet, &origin);
    return mouseActionPath(stencil.RectBound(),
                           {static_cast<int>(origin.x), static_cast<int>(origin.y)},
                           monitorPlaces());
}

}  // namespace

void applyMouseAction(ctlRatioGrid& stencil, HWND worksheet, HWND control) {
    const MouseActionPath path = pathOf(stencil, worksheet);
    POINT saved{};
    GetCursorPos(&saved);
    stencil.ShowMouseAction();
    {
        const OffScreen aside(control);
        const HWND target = WindowFromPoint(systemPoint(path.from));
        SetForegroundWindow(GetAncestor(target, GA_ROOT));
        SetCursorPos(path.from.x, path.from.y);
        sendDrag(path.to);
        waitUntilFetched(target, path.to);
    }
    SetCursorPos(saved.x, saved.y);
}

}  // namespace ormala
