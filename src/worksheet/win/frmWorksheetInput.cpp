#include <windowsx.h>

#include <algorithm>

#include "platform/win/AccessibleTree.h"
#include "platform/win/monitors.h"
#include "worksheet/win/frmWorksheet.h"

// The messages of the worksheet.

namespace ormala {

namespace {

MouseInput mouseInput(int button, WPARAM wParam, LPARAM lParam) {
    return {button, heldModifiersOfMouse(wParam), static_cast<float>(GET_X_LPARAM(lParam)),
            static_cast<float>(GET_Y_LPARAM(lParam))};
}

}  // namespace

std::optional<LRESULT> frmWorksheet::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_PAINT:
            painter_.paint(handle(), *layers_);
            return 0;
        case WM_ERASEBKGND:
            return 1;
        case WM_MOUSEMOVE:
            return onMove(wParam, lParam);
        case WM_LBUTTONDOWN:
            return onPress(mouseButton::left, wParam, lParam);
        case WM_RBUTTONDOWN:
            return onPress(mouseButton::right, wParam, lParam);
        case WM_MBUTTONDOWN:
            return onPress(mouseButton::middle, wParam, lParam);
        case WM_LBUTTONUP:
            return onRelease(mouseButton::left, wParam, lParam);
        case WM_RBUTTONUP:
            return onRelease(mouseButton::right, wParam, lParam);
        case WM_MBUTTONUP:
            return onRelease(mouseButton::middle, wParam, lParam);
        case WM_CAPTURECHANGED:
            mouse_.lost();
            return paintNow();
        case WM_KEYDOWN:
        case WM_SYSKEYDOWN:
            return onKey(wParam);
        case WM_KEYUP:
        case WM_SYSKEYUP:
            mouse_.keyReleased(static_cast<int>(wParam));
            mouse_.keyChanged(static_cast<int>(wParam), heldModifiers());
            paintNow();
            return std::nullopt;
        case WM_SYSCOMMAND:
            // Releasing Alt after a drag must not open a menu that takes the keys away.
            return (wParam & 0xFFF0U) == SC_KEYMENU ? std::optional<LRESULT>(0) : std::nullopt;
        case WM_SETFOCUS:
            sheet_.windowGotFocus();
            teller_.windowGotFocus();
            tellScreenReaders();
            return paintNow();
        case WM_KILLFOCUS:
            return onFocusLost(reinterpret_cast<HWND>(wParam));
        case WM_TIMER:
            return onTimer(wParam);
        case WM_CLOSE:
            commands_.closeProgram();
            return 0;
        case WM_GETOBJECT:
        case accessiblePartsMessage:
        case SheetTeller::timeToTell:
            return onScreenReader(message, wParam, lParam);
        default:
            return onPlaceMessage(message, wParam);
    }
}

std::optional<LRESULT> frmWorksheet::onScreenReader(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_GETOBJECT:
            return answerAccessibleTree(handle(), wParam, lParam);
        case accessiblePartsMessage:
            return answerPartsQuestion(parts_, lParam);
        default:
            teller_.tell(handle());
            return 0;
    }
}

/// What tells of another place of the window, also among others, or of other screens.
std::optional<LRESULT> frmWorksheet::onPlaceMessage(UINT message, WPARAM wParam) {
    switch (message) {
        case WM_WINDOWPOSCHANGED:
            keepTime();
            return std::nullopt;
        case WM_ACTIVATE:
            if (LOWORD(wParam) != WA_INACTIVE) {
                activated.raise();
            }
            return std::nullopt;
        case WM_SIZE:
            return onResize();
        case WM_MOVE:
            placed.raise();
            return std::nullopt;
        case WM_DPICHANGED:
            // Where it lies then is for its frame to tell, or for the screen that it fills.
            takeDpi(HIWORD(wParam));
            return paintNow();
        case WM_DISPLAYCHANGE:
        case WM_SETTINGCHANGE:
            if (tellsOfScreens(message, wParam) && maxSized_ && isVisible()) {
                setMaxSized(true);
            }
            return std::nullopt;
        default:
            return std::nullopt;
    }
}

LRESULT frmWorksheet::onPress(int button, WPARAM wParam, LPARAM lParam) {
    tip_.relay(handle(), WM_LBUTTONDOWN, wParam, lParam);
    if (GetFocus() != handle()) {
        SetFocus(handle());
    }
    mouse_.press(mouseInput(button, wParam, lParam));
    if (GetCapture() != handle()) {
        // Taking it twice would mean losing it.
        SetCapture(handle());
    }
    return paintNow();
}

LRESULT frmWorksheet::onMove(WPARAM wParam, LPARAM lParam) {
    const MouseInput input = mouseInput(heldButtons(wParam), wParam, lParam);
    if (mouse_.holding()) {
        SheetPainter::Step step(painter_, handle());
        mouse_.move(input);
        step.show(*layers_);
    } else {
        mouse_.move(input);
        paintNow();
    }
    tip_.relay(handle(), WM_MOUSEMOVE, wParam, lParam);
    keepTime();
    return 0;
}

LRESULT frmWorksheet::onRelease(int button, WPARAM wParam, LPARAM lParam) {
    const int stillHeld = heldButtons(wParam);
    mouse_.release(mouseInput(button, wParam, lParam), stillHeld);
    if (stillHeld == 0 && GetCapture() == handle()) {
        ReleaseCapture();
    }
    tellScreenReaders();
    return paintNow();
}

LRESULT frmWorksheet::onTimer(WPARAM id) {
    if (timers_.contains(id)) {
        reinterpret_cast<Ticking*>(id)->tick();
    } else {
        mouse_.tick();
        keepTime();
    }
    return paintNow();
}

/// The clock of the mouse runs as slowly as it may.
void frmWorksheet::keepTime() {
    tmrCrosshair_.keep(handle(), isVisible() ? static_cast<UINT>(mouse_.interval()) : 0);
}

LRESULT frmWorksheet::onResize() {
    const RECT client = clientRectangle();
    const PixelSize size{static_cast<int>(client.right), static_cast<int>(client.bottom)};
    painter_.resize(size);
    sheet_.resize(size);
    InvalidateRect(handle(), nullptr, FALSE);
    resized.raise();
    return 0;
}

std::optional<LRESULT> frmWorksheet::onKey(WPARAM key) {
    const int shift = heldModifiers();
    if (!takesKey(static_cast<int>(key), shift)) {
        return std::nullopt;
    }
    if (!mouse_.keyChanged(static_cast<int>(key), shift) &&
        !mouse_.keyPressed(static_cast<int>(key), shift) &&
        !KeyDown(static_cast<int>(key), shift) && sheet_.focused() != nullptr) {
        sheet_.focused()->keyDown(static_cast<int>(key), shift);
    }
    return paintNow();
}

LRESULT frmWorksheet::onFocusLost(HWND other) {
    mouse_.keyboardLost();
    if (other == nullptr || other != frame()) {
        sheet_.windowLostFocus();
    }
    tellScreenReaders();
    return paintNow();
}

void frmWorksheet::frameFocusChanged(bool got, HWND other) {
    if (other == handle()) {
        return;
    }
    if (got) {
        sheet_.windowGotFocus();
    } else {
        sheet_.windowLostFocus();
    }
    paintNow();
}

bool frmWorksheet::takesKey(int key, int shift) const {
    const bool closing = key == VK_F4 && (shift & modifier::alt) != 0;
    return transparency_.clickable && !closing;
}

bool frmWorksheet::KeyDown(int key, int shift) {
    return takesKey(key, shift) && commands_.takeKey(key, shift);
}

}  // namespace ormala
