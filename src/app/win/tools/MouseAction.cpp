#include "app/win/tools/MouseAction.h"

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

bool applyMouseAction(ctlRatioGrid& stencil, HWND worksheet, HWND control,
                      const DragSystem& system) {
    const MouseActionPath path = pathOf(stencil, worksheet);
    const POINT saved = cursorPlace();
    stencil.ShowMouseAction();
    bool taken = false;
    {
        const OffScreen aside(control);
        const HWND target = WindowFromPoint(systemPoint(path.from));
        taken = sendDrag(target, path.from, path.to, system);
    }
    SetCursorPos(saved.x, saved.y);
    return taken;
}

}  // namespace ormala
