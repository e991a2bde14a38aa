#include "e2e/support/Mouse.h"

#include <array>
#include <cmath>
#include <sstream>

#include "e2e/support/DesktopWindow.h"
#include "e2e/support/StageFailure.h"
#include "support/win/Screen.h"
#include "support/win/Wait.h"

namespace ormala::test {

namespace {

struct ButtonFlags {
    DWORD down;
    DWORD up;
};

/// In the order of MouseButton.
constexpr std::array<ButtonFlags, 3> buttonFlags{{{MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP},
                                                  {MOUSEEVENTF_RIGHTDOWN, MOUSEEVENTF_RIGHTUP},
                                                  {MOUSEEVENTF_MIDDLEDOWN, MOUSEEVENTF_MIDDLEUP}}};

const ButtonFlags& flagsOf(MouseButton button) {
    return buttonFlags[static_cast<std::size_t>(button)];
}

void send(const MOUSEINPUT& mouse) {
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi = mouse;
    SendInput(1, &input, sizeof(input));
}

/// An absolute place is told in 1/65536 of all monitors together, to the middle of the pixel.
LONG absolute(int place, int origin, int size) {
    return ((place - origin) * 65536 + 32768) / size;
}

void sendMove(ScreenPoint point) {
    const ScreenRect all = screen::virtualScreen();
    MOUSEINPUT mouse{};
    mouse.dx = absolute(point.x, all.left, all.width());
    mouse.dy = absolute(point.y, all.top, all.height());
    mouse.dwFlags = MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE | MOUSEEVENTF_VIRTUALDESK;
    send(mouse);
}

/// Lets those windows answer that the mouse speaks to: the one that holds it, and the one under the
/// pointer, which the display tells of each move all the same.
void settleListeners() {
    GUITHREADINFO info{};
    info.cbSize = sizeof(info);
    if (GetGUIThreadInfo(0, &info) != 0 && info.hwndCapture != nullptr) {
        DesktopWindow(info.hwndCapture).settle();
    }
    const ScreenPoint point = Mouse::position();
    DesktopWindow(WindowFromPoint({point.x, point.y})).settle();
}

/// Returns when the display has done all that it was told before. Of requests by several ways it
/// may handle the last one first, but not twice in a row.
void waitForDisplay() {
    screen::pixel({0, 0});
    screen::pixel({0, 0});
}

/// Lets the input arrive. The display tells each move of the pointer to the window there too, and a
/// late echo of an earlier one would take the pointer back for a moment.
void letArrive() {
    settleListeners();
    waitForDisplay();
    settleListeners();
    // Who is late answers first, and looks only then at what the display has told meanwhile.
    pause(milliseconds{1});
    settleListeners();
}

void sendWheel(DWORD wheel, int turn) {
    MOUSEINPUT mouse{};
    mouse.dwFlags = wheel;
    mouse.mouseData = static_cast<DWORD>(turn);
    send(mouse);
}

std::string text(ScreenPoint point) {
    std::ostringstream out;
    out << point;
    return out.str();
}

}  // namespace

Mouse::~Mouse() {
    while (!held_.empty()) {
        release(held_.back());
    }
}

ScreenPoint Mouse::position() {
    POINT point{};
    GetCursorPos(&point);
    return {static_cast<int>(point.x), static_cast<int>(point.y)};
}

// NOLINTNEXTLINE(readability-convert-member-functions-to-static): of the one that is held
void Mouse::moveTo(ScreenPoint point) {
    requireSoon("mouse pointer at " + text(point), [point] {
        keyboard::repeatHeldModifiers();
        sendMove(point);
        letArrive();
        return position() == point;
    });
}

void Mouse::press(MouseButton button) {
    MOUSEINPUT mouse{};
    mouse.dwFlags = flagsOf(button).down;
    send(mouse);
    held_.push_back(button);
    letArrive();
}

void Mouse::release(MouseButton button) {
    MOUSEINPUT mouse{};
    mouse.dwFlags = flagsOf(button).up;
    send(mouse);
    std::erase(held_, button);
    letArrive();
}

void Mouse::click(ScreenPoint point, MouseButton button, Modifiers modifiers) {
    moveTo(point);
    const HeldKeys keys(modifiers);
    if (modifiers != Modifiers::None) {
        makeSureHeld(keys);
    }
    press(button);
    release(button);
}

void Mouse::doubleClick(ScreenPoint point, MouseButton button) {
    click(point, button);
    press(button);
    release(button);
}

void Mouse::drag(ScreenPoint from, ScreenPoint to, int steps, Modifiers modifiers,
                 MouseButton button) {
    moveTo(from);
    const HeldKeys keys(modifiers);
    press(button);
    for (int step = 1; step <= steps; ++step) {
        const auto part = [step, steps](int a, int b) {
            return a + static_cast<int>(std::lround((b - a) * step / static_cast<double>(steps)));
        };
        moveTo({part(from.x, to.x), part(from.y, to.y)});
    }
    if (modifiers != Modifiers::None) {
        makeSureHeld(keys);
    }
    release(button);
}

void Mouse::makeSureHeld(const HeldKeys& keys) {
    // The state of the keys is asked anew only after this time.
    constexpr milliseconds freshState{60};
    requireSoon("keys held", [&] {
        pause(freshState);
        return !keys.holdAgain();
    });
}

// NOLINTNEXTLINE(readability-convert-member-functions-to-static): of the one that is held
void Mouse::wheel(int notches, Modifiers modifiers) {
    const HeldKeys keys(modifiers);
    sendWheel(MOUSEEVENTF_WHEEL, notches * WHEEL_DELTA);
    letArrive();
}

// NOLINTNEXTLINE(readability-convert-member-functions-to-static): of the one that is held
void Mouse::wheelByParts(int turn, int parts) {
    for (int i = 0; i < parts; ++i) {
        sendWheel(MOUSEEVENTF_WHEEL, turn);
    }
    letArrive();
}

// NOLINTNEXTLINE(readability-convert-member-functions-to-static): of the one that is held
void Mouse::tiltWheel(int notches) {
    sendWheel(MOUSEEVENTF_HWHEEL, notches * WHEEL_DELTA);
    letArrive();
}

}  // namespace ormala::test
