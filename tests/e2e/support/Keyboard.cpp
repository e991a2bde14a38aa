#include "e2e/support/Keyboard.h"

#include <algorithm>
#include <array>

#include "e2e/support/DesktopWindow.h"
#include "support/win/WideText.h"

namespace ormala::test {

namespace {

/// Keys that share their scan code with the numeric pad's and differ by the extended flag.
constexpr std::array extendedKeys{
    WORD{VK_LEFT},   WORD{VK_RIGHT},    WORD{VK_UP},    WORD{VK_DOWN},   WORD{VK_HOME},
    WORD{VK_END},    WORD{VK_PRIOR},    WORD{VK_NEXT},  WORD{VK_INSERT}, WORD{VK_DELETE},
    WORD{VK_DIVIDE}, WORD{VK_RCONTROL}, WORD{VK_RMENU}, WORD{VK_LWIN},   WORD{VK_RWIN},
    WORD{VK_APPS},   WORD{VK_NUMLOCK}};

void send(const KEYBDINPUT& key) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki = key;
    SendInput(1, &input, sizeof(input));
    DesktopWindow(GetForegroundWindow()).settle();
}

void sendKey(WORD key, DWORD flags) {
    KEYBDINPUT input{};
    input.wVk = key;
    input.wScan = static_cast<WORD>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC));
    input.dwFlags = flags;
    if (std::find(extendedKeys.begin(), extendedKeys.end(), key) != extendedKeys.end()) {
        input.dwFlags |= KEYEVENTF_EXTENDEDKEY;
    }
    send(input);
}

/// The modifiers that the user holds, in the order of their presses.
std::vector<WORD>& heldModifierKeys() {
    static std::vector<WORD> keys;
    return keys;
}

bool isModifier(WORD key) {
    return key == VK_SHIFT || key == VK_CONTROL || key == VK_MENU;
}

}  // namespace

HeldKeys::HeldKeys(Modifiers modifiers) {
    constexpr std::array<WORD, 3> keyOfBit{VK_SHIFT, VK_CONTROL, VK_MENU};
    for (unsigned bit = 0; bit < keyOfBit.size(); ++bit) {
        if ((static_cast<unsigned>(modifiers) & (1U << bit)) != 0) {
            keys_.push_back(keyOfBit[bit]);
            keyboard::down(keyOfBit[bit]);
        }
    }
}

HeldKeys::~HeldKeys() {
    std::for_each(keys_.rbegin(), keys_.rend(), &keyboard::up);
}

bool HeldKeys::holdAgain() const {
    bool again = false;
    for (const WORD key : keys_) {
        if (GetAsyncKeyState(key) >= 0) {
            keyboard::down(key);
            again = true;
        }
    }
    return again;
}

namespace keyboard {

void down(WORD key) {
    std::erase(heldModifierKeys(), key);
    if (isModifier(key)) {
        heldModifierKeys().push_back(key);
    }
    sendKey(key, 0);
}

void up(WORD key) {
    std::erase(heldModifierKeys(), key);
    sendKey(key, KEYEVENTF_KEYUP);
}

void repeatHeldModifiers() {
    for (const WORD key : heldModifierKeys()) {
        sendKey(key, 0);
    }
}

void press(WORD key, Modifiers modifiers, int times) {
    const HeldKeys held(modifiers);
    for (int i = 0; i < times; ++i) {
        down(key);
        up(key);
    }
}

void type(std::string_view text) {
    for (const wchar_t unit : wide(text)) {
        KEYBDINPUT input{};
        input.wScan = unit;
        input.dwFlags = KEYEVENTF_UNICODE;
        send(input);
        input.dwFlags |= KEYEVENTF_KEYUP;
        send(input);
    }
}

}  // namespace keyboard

}  // namespace ormala::test
