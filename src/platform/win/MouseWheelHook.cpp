#include "platform/win/MouseWheelHook.h"

#include <utility>

#include "platform/win/callbackGuard.h"

namespace ormala {

MouseWheelHook* MouseWheelHook::current = nullptr;

MouseWheelHook::MouseWheelHook(std::function<void(int)> turned) : turned_(std::move(turned)) {
    current = this;
    hook_.reset(
        SetWindowsHookExW(WH_MOUSE, &MouseWheelHook::onMouse, nullptr, GetCurrentThreadId()));
}

MouseWheelHook::~MouseWheelHook() {
    hook_.reset();
    current = nullptr;
}

void MouseWheelHook::turn(int turn) {
    if (const int notches = notches_.add(turn); notches != 0) {
        turned_(notches);
    }
}

LRESULT CALLBACK MouseWheelHook::onMouse(int code, WPARAM message, LPARAM record) {
    if (code == HC_ACTION && message == WM_MOUSEWHEEL && current != nullptr) {
        const auto* mouse = reinterpret_cast<const MOUSEHOOKSTRUCTEX*>(record);
        const auto turn = static_cast<short>(HIWORD(mouse->mouseData));
        guarded(false, [turn] {
            current->turn(turn);
            return true;
        });
    }
    return CallNextHookEx(nullptr, code, message, record);
}

}  // namespace ormala
