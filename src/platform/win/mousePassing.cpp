#include "platform/win/mousePassing.h"

#include <windowsx.h>

#include "platform/win/Window.h"

namespace ormala {

bool passMouseToParent(HWND control, UINT message, WPARAM wParam, LPARAM lParam) {
    if (!isMouseMessage(message) || message == WM_MOUSEWHEEL || message == WM_MOUSEHWHEEL) {
        return false;
    }
    const HWND parent = GetParent(control);
    POINT point{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
    MapWindowPoints(control, parent, &point, 1);
    SendMessageW(parent, message, wParam, MAKELPARAM(point.x, point.y));
    return true;
}

}  // namespace ormala
