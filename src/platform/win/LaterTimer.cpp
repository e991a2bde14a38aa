#include "platform/win/LaterTimer.h"

namespace ormala {

LaterTimer::LaterTimer() {
    WindowDesign design;
    design.className = L"LaterTimer";
    // Without the title bar that the system gives to all others.
    design.style = WS_POPUP;
    design.owner = HWND_MESSAGE;
    create(design);
}

std::optional<LRESULT> LaterTimer::onMessage(UINT message, WPARAM /*wParam*/, LPARAM /*lParam*/) {
    if (message != WM_TIMER) {
        return std::nullopt;
    }
    timer_.stop();
    due.raise();
    return 0;
}

}  // namespace ormala
