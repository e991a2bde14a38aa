#include "platform/win/ScreenLock.h"

#include <wtsapi32.h>

#include "platform/win/SystemLibrary.h"
#include "platform/win/Timer.h"

namespace ormala {

namespace {

const SystemLibrary& sessionLibrary() {
    static const SystemLibrary services(L"wtsapi32.dll");
    return services;
}

}  // namespace

ScreenLock::ScreenLock(HWND window) : window_(window) {
    if (auto* const ask = sessionLibrary().function<decltype(WTSRegisterSessionNotification)>(
            "WTSRegisterSessionNotification")) {
        ask(window_, NOTIFY_FOR_THIS_SESSION);
    }
}

ScreenLock::~ScreenLock() {
    Timer::restAll(false);
    if (auto* const end = sessionLibrary().function<decltype(WTSUnRegisterSessionNotification)>(
            "WTSUnRegisterSessionNotification")) {
        end(window_);
    }
}

void ScreenLock::takePower(WPARAM event) const {
    if (event == PBT_APMSUSPEND) {
        suspended.raise();
    }
}

void ScreenLock::take(WPARAM change) const {
    switch (change) {
        case WTS_SESSION_LOCK:
        case WTS_CONSOLE_DISCONNECT:
        case WTS_REMOTE_DISCONNECT:
            locked.raise();
            Timer::restAll(true);
            break;
        case WTS_SESSION_UNLOCK:
        case WTS_CONSOLE_CONNECT:
        case WTS_REMOTE_CONNECT:
            Timer::restAll(false);
            break;
        default:
            break;
    }
}

}  // namespace ormala
