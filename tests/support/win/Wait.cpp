#include "support/win/Wait.h"

#include <windows.h>

namespace ormala::test {

namespace {

using Clock = std::chrono::steady_clock;

void handleMessages() {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != 0) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

}  // namespace

void pause(milliseconds time) {
    const auto end = Clock::now() + time;
    handleMessages();
    for (auto now = Clock::now(); now < end; now = Clock::now()) {
        const auto left = std::chrono::ceil<milliseconds>(end - now).count();
        MsgWaitForMultipleObjects(0, nullptr, FALSE, static_cast<DWORD>(left), QS_ALLINPUT);
        handleMessages();
    }
}

bool waitUntil(const std::function<bool()>& predicate, milliseconds deadline) {
    constexpr milliseconds interval{10};
    const auto end = Clock::now() + deadline;
    while (!predicate()) {
        if (Clock::now() >= end) {
            return predicate();
        }
        pause(interval);
    }
    return true;
}

}  // namespace ormala::test
