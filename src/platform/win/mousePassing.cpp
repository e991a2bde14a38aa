#include "platform/win/mousePassing.h"

#include <windowsx.h>

namespace ormala {

bool passMouseToParent(HWND control, UINT message, WPARAM wParam, LPARAM lParam) {
    const bool ofMouse = message >= WM_MOUSEFIRST && message <= WM_MOUSELAST;
    if (!ofMouse || message == WM_MOUSEWHEEL || message == WM_MOUSEHWHEEL) {
        return false;
    }
    const HWND parent = GetParent(control);
    POINT point{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
    MapWindowPoints(control, parent, &point, 1);
    SendMessageW(parent, message, wParam, MAKELPARAM(point.x, point.y));
    return true;
}

}  // namespace ormala
