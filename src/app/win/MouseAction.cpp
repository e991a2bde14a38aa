#include "app/win/MouseAction.h"

#include <array>

#include "app/win/OffScreen.h"
#include "modAPI/rounding.h"

namespace ormala {

namespace {

/// The absolute coordinate that the system turns back into `pixel`.
LONG absoluteCoordinate(LONG pixel, int screenSize) {
    constexpr LONG64 fullRange = 65536;
    return static_cast<LONG>((fullRange * pixel + screenSize - 1) / screenSize);
}

INPUT mouseRecord(DWORD flags, POINT to = {}) {
    INPUT record{};
    record.type = INPUT_MOUSE;
    record.mi.dwFlags = flags;
    record.mi.dx = to.x;
    record.mi.dy = to.y;
    return record;
}

void sendDrag(POINT to) {
    const POINT absolute{absoluteCoordinate(to.x, GetSystemMetrics(SM_CXSCREEN)),
                         absoluteCoordinate(to.y, GetSystemMetrics(SM_CYSCREEN))};
    // One call, so that no other input comes between.
    std::array<INPUT, 3> records{mouseRecord(MOUSEEVENTF_LEFTDOWN),
                                 mouseRecord(MOUSEEVENTF_ABSOLUTE | MOUSEEVENTF_MOVE, absolute),
                                 mouseRecord(MOUSEEVENTF_LEFTUP)};
    SendInput(static_cast<UINT>(records.size()), records.data(), sizeof(INPUT));
}

}  // namespace

MouseActionPath mouseActionPath(const Rect& rectBound, HWND worksheet) {
    const auto onScreen = [worksheet](double x, double y) {
        POINT point{static_cast<LONG>(RoundHalfAway(x)), static_cast<LONG>(RoundHalfAway(y))};
        ClientToScreen(worksheet, &point);
        return point;
    };
    return {onScreen(rectBound.left, rectBound.top), onScreen(rectBound.right, rectBound.bottom)};
}

void applyMouseAction(ctlRatioGrid& stencil, HWND worksheet, HWND control) {
    const MouseActionPath path = mouseActionPath(stencil.RectBound(), worksheet);
    POINT saved{};
    GetCursorPos(&saved);
    stencil.ShowMouseAction();
    SetForegroundWindow(WindowFromPoint(path.from));
    SetCursorPos(path.from.x, path.from.y);
    {
        const OffScreen aside(control);
        sendDrag(path.to);
    }
    SetCursorPos(saved.x, saved.y);
}

}  // namespace ormala
