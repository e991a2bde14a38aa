#include "dialogs/win/HeldMouse.h"

#include <windowsx.h>

namespace ormala {

void HeldMouse::hold(HWND window) {
    SetCapture(window);
    holds_ = true;
}

void HeldMouse::press(HWND window, PixelPoint point) {
    if (takesFocus_) {
        SetFocus(window);
    }
    hold(window);
    picking_.press(point);
}

void HeldMouse::pressAgain(HWND window) {
    hold(window);
    picking_.doubleClick();
}

void HeldMouse::release(PixelPoint point) {
    if (holds_) {
        holds_ = false;
        ReleaseCapture();
        picking_.release(point);
    }
}

void HeldMouse::lose() {
    if (holds_) {
        holds_ = false;
        picking_.cancel();
    }
}

std::optional<LRESULT> HeldMouse::onMessage(HWND window, UINT message, LPARAM lParam) {
    const PixelPoint point{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
    switch (message) {
        case WM_LBUTTONDOWN:
            press(window, point);
            return 0;
        case WM_LBUTTONDBLCLK:
            pressAgain(window);
            return 0;
        case WM_MOUSEMOVE:
            picking_.move(point);
            return 0;
        case WM_LBUTTONUP:
            release(point);
            return 0;
        case WM_CAPTURECHANGED:
            lose();
            return 0;
        default:
            return std::nullopt;
    }
}

}  // namespace ormala
