#include "platform/win/composition.h"

#include <dwmapi.h>

#include "platform/win/SystemLibrary.h"

namespace ormala {

namespace {

const SystemLibrary& library() {
    static const SystemLibrary composition(L"dwmapi.dll");
    return composition;
}

void turnOn(HWND window, DWORD attribute) {
    const BOOL on = TRUE;
    if (auto* const set =
            library().function<decltype(DwmSetWindowAttribute)>("DwmSetWindowAttribute")) {
        set(window, attribute, &on, sizeof on);
    }
}

}  // namespace

void waitForComposition() {
    if (auto* const flush = library().function<decltype(DwmFlush)>("DwmFlush")) {
        flush();
    }
}

bool isCloaked(HWND window) {
    auto* const ask = library().function<decltype(DwmGetWindowAttribute)>("DwmGetWindowAttribute");
    DWORD cloaked = 0;
    return ask != nullptr && SUCCEEDED(ask(window, DWMWA_CLOAKED, &cloaked, sizeof cloaked)) &&
           cloaked != 0;
}

void darkenFrame(HWND window) {
    // DWMWA_USE_IMMERSIVE_DARK_MODE, which older headers do not know.
    constexpr DWORD darkMode = 20;
    turnOn(window, darkMode);
}

void showWithoutFading(HWND window) {
    turnOn(window, DWMWA_TRANSITIONS_FORCEDISABLED);
}

}  // namespace ormala
