#include <oleacc.h>
#include <windowsx.h>

#include "platform/win/monitors.h"
#include "platform/win/text.h"
#include "scene/dpi.h"
#include "widgets/buttonShape.h"
#include "widgets/win/ZelvikButtonXP.h"
#include "widgets/win/controlFontSize.h"

namespace ormala {

namespace {

constexpr UINT overInterval = 10;

MouseArguments argumentsOf(int button, WPARAM wParam, LPARAM lParam) {
    return {button, heldModifiersOfMouse(wParam), GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
}

KeyArguments keyArguments(WPARAM wParam) {
    return {static_cast<int>(wParam), heldModifiers()};
}

}  // namespace

void ZelvikButtonXP::watchMouse(bool on) {
    OverTimer_.start(handle(), on ? overInterval : 0);
}

void ZelvikButtonXP::captureMouse() {
    // Taking the mouse once more would tell the button that it has lost it.
    if (GetCapture() != handle()) {
        SetCapture(handle());
    }
    captured_ = true;
}

void ZelvikButtonXP::lookForMouse() {
    if (WindowFromPoint(cursorPlace()) != handle()) {
        model_.mouseIsElsewhere(heldModifiersOfMouse(0));
    }
}

LRESULT ZelvikButtonXP::press(int button, WPARAM wParam, LPARAM lParam) {
    const HWND window = handle();
    if (button != mouseButton::right) {
        // A handler of the focus may destroy the button.
        focusedByPress_ = true;
        SetFocus(window);
        if (IsWindow(window) == FALSE) {
            return 0;
        }
        focusedByPress_ = false;
    }
    captureMouse();
    model_.mouseDown(argumentsOf(button, wParam, lParam));
    return 0;
}

LRESULT ZelvikButtonXP::release(int button, WPARAM wParam, LPARAM lParam) {
    if (captured_ && (heldButtons(wParam) & ~button) == 0) {
        captured_ = false;
        ReleaseCapture();
    }
    model_.mouseUp(argumentsOf(button, wParam, lParam));
    return 0;
}

LRESULT ZelvikButtonXP::move(WPARAM wParam, LPARAM lParam) {
    model_.mouseMove(argumentsOf(heldButtons(wParam), wParam, lParam));
    return 0;
}

void ZelvikButtonXP::loseCapture() {
    if (captured_) {
        captured_ = false;
        model_.cancelPress();
    }
}

LRESULT ZelvikButtonXP::buttonState() const {
    const ButtonState state = model_.state();
    return (model_.checked() ? BST_CHECKED : BST_UNCHECKED) | (state.pressed ? BST_PUSHED : 0) |
           (state.focused ? BST_FOCUS : 0);
}

void ZelvikButtonXP::tellFacts(AccessibleFacts& facts) const {
    constexpr long roles[] = {ROLE_SYSTEM_PUSHBUTTON, ROLE_SYSTEM_CHECKBUTTON,
                              ROLE_SYSTEM_RADIOBUTTON};
    const int type = ControlType();
    const ButtonState state = model_.state();
    // A single letter is a sign and no name.
    const bool isNamed = Caption().size() > 1 || tip().empty();
    facts.name = spokenCaption(isNamed ? Caption() : tip());
    facts.role = roles[type == 1 || type == 2 ? type : 0];
    facts.state =
        (state.enabled ? STATE_SYSTEM_FOCUSABLE : STATE_SYSTEM_UNAVAILABLE) |
        (state.focused ? STATE_SYSTEM_FOCUSED : 0) | (state.pressed ? STATE_SYSTEM_PRESSED : 0) |
        (model_.checked() ? STATE_SYSTEM_CHECKED : 0) | (state.hover ? STATE_SYSTEM_HOTTRACKED : 0);
    if (const char16_t key = accessKeyOf(Caption()); key != 0) {
        facts.shortcut = narrow(std::wstring(L"Alt+") + static_cast<wchar_t>(key));
    }
    facts.action = "Press";
    facts.actionMessage = BM_CLICK;
}

std::optional<LRESULT> ZelvikButtonXP::mouseMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_LBUTTONDOWN:
            return press(mouseButton::left, wParam, lParam);
        case WM_RBUTTONDOWN:
            return press(mouseButton::right, wParam, lParam);
        case WM_MBUTTONDOWN:
            return press(mouseButton::middle, wParam, lParam);
        case WM_LBUTTONUP:
            return release(mouseButton::left, wParam, lParam);
        case WM_RBUTTONUP:
            return release(mouseButton::right, wParam, lParam);
        case WM_MBUTTONUP:
            return release(mouseButton::middle, wParam, lParam);
        case WM_LBUTTONDBLCLK:
        case WM_RBUTTONDBLCLK:
        case WM_MBUTTONDBLCLK:
            model_.doubleClick();
            return 0;
        case WM_MOUSEMOVE:
            return move(wParam, lParam);
        default:
            return std::nullopt;
    }
}

std::optional<LRESULT> ZelvikButtonXP::keyMessage(UINT message, WPARAM wParam) {
    switch (message) {
        case WM_KEYDOWN:
            model_.keyDown(keyArguments(wParam));
            return 0;
        case WM_KEYUP:
            model_.keyUp(keyArguments(wParam));
            return 0;
        case WM_CHAR:
            KeyPress.raise(static_cast<int>(wParam));
            return 0;
        case WM_GETDLGCODE:
            return DLGC_BUTTON | (ControlType() == 0 ? DLGC_UNDEFPUSHBUTTON : 0);
        default:
            return std::nullopt;
    }
}

std::optional<LRESULT> ZelvikButtonXP::stateMessage(UINT message, WPARAM wParam) {
    switch (message) {
        case WM_SETFOCUS:
            model_.gainFocus();
            return 0;
        case WM_KILLFOCUS:
            model_.loseFocus();
            return 0;
        case WM_ENABLE:
            model_.setEnabled(wParam != FALSE);
            return 0;
        case WM_CAPTURECHANGED:
            loseCapture();
            return 0;
        case WM_TIMER:
            lookForMouse();
            return 0;
        default:
            return std::nullopt;
    }
}

std::optional<LRESULT> ZelvikButtonXP::askedMessage(UINT message, WPARAM wParam) {
    switch (message) {
        case BM_GETCHECK:
            return model_.checked() ? BST_CHECKED : BST_UNCHECKED;
        case BM_GETSTATE:
            return buttonState();
        case BM_CLICK:
            if (Enabled()) {
                model_.clickOnce();
            }
            return 0;
        case controlFontSizeMessage:
            setFont(fontLook_, static_cast<int>(wParam));
            return 0;
        default:
            return std::nullopt;
    }
}

std::optional<LRESULT> ZelvikButtonXP::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (const auto answer = PaintedControl::onMessage(message, wParam, lParam)) {
        return answer;
    }
    if (isMouseMessage(message)) {
        return mouseMessage(message, wParam, lParam);
    }
    switch (message) {
        case WM_SIZE:
            return onSize();
        case WM_WINDOWPOSCHANGING:
            keepLeastSize(lParam);
            return std::nullopt;
        default:
            break;
    }
    if (const auto result = stateMessage(message, wParam)) {
        return result;
    }
    if (const auto result = keyMessage(message, wParam)) {
        return result;
    }
    return askedMessage(message, wParam);
}

}  // namespace ormala
