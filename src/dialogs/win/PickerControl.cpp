#include "dialogs/win/PickerControl.h"

#include <oleacc.h>
#include <windowsx.h>

namespace ormala {

void PickerControl::tellFacts(AccessibleFacts& facts) const {
    facts.name = tip();
    facts.value = picking_.valueText();
    facts.role = ROLE_SYSTEM_LIST;
}

void PickerControl::hold() {
    SetCapture(handle());
    holds_ = true;
}

void PickerControl::press(PixelPoint point) {
    if (takesFocus_) {
        SetFocus(handle());
    }
    hold();
    picking_.press(point);
}

/// What the release ends may destroy the control.
void PickerControl::release(PixelPoint point) {
    if (holds_) {
        holds_ = false;
        ReleaseCapture();
        picking_.release(point);
    }
}

void PickerControl::lose() {
    if (holds_) {
        holds_ = false;
        picking_.cancel();
    }
}

std::optional<LRESULT> PickerControl::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (const auto answer = PaintedControl::onMessage(message, wParam, lParam)) {
        return answer;
    }
    const PixelPoint point{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
    switch (message) {
        case WM_LBUTTONDOWN:
            press(point);
            return 0;
        case WM_LBUTTONDBLCLK:
            hold();
            picking_.doubleClick();
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
