#include "worksheet/win/fullScreen.h"

#include <shellapi.h>

#include "platform/win/monitors.h"
#include "platform/win/regions.h"
#include "worksheet/frameRules.h"

namespace ormala {

namespace {

/// The shell reads it by this name.
constexpr const wchar_t* nonRudeProperty = L"NonRudeHWND";

bool hidesBarAt(UINT edge, const RECT& monitor) {
    APPBARDATA question{};
    question.cbSize = sizeof question;
    question.uEdge = edge;
    question.rc = monitor;
    return SHAppBarMessage(ABM_GETAUTOHIDEBAREX, &question) != 0;
}

HiddenBars hiddenBars(const RECT& monitor) {
    return {hidesBarAt(ABE_LEFT, monitor), hidesBarAt(ABE_TOP, monitor),
            hidesBarAt(ABE_RIGHT, monitor), hidesBarAt(ABE_BOTTOM, monitor)};
}

}  // namespace

PixelRect fullScreenPlaceAround(HWND window) {
    const MONITORINFO monitor = monitorAround(window);
    return fullScreenPlace(fromRect(monitor.rcMonitor), fromRect(monitor.rcWork),
                           hiddenBars(monitor.rcMonitor));
}

void keepFromFullScreenMode(HWND window) {
    SetPropW(window, nonRudeProperty, reinterpret_cast<HANDLE>(INT_PTR{TRUE}));
}

void forgetFullScreenMode(HWND window) {
    RemovePropW(window, nonRudeProperty);
}

}  // namespace ormala
