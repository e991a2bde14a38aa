#include "platform/win/composition.h"

#include <dwmapi.h>

#include "platform/win/SystemLibrary.h"
#include "platform/win/highContrast.h"

namespace ormala {

namespace {

const SystemLibrary& compositionLibrary() {
    static const SystemLibrary composition(L"dwmapi.dll");
    return composition;
}

void turn(HWND window, DWORD attribute, BOOL on) {
    if (auto* const set = compositionLibrary().function<decltype(DwmSetWindowAttribute)>(
            "DwmSetWindowAttribute")) {
        set(window, attribute, &on, sizeof on);
    }
}

}  // namespace

void waitForComposition() {
    if (auto* const flush = compositionLibrary().function<decltype(DwmFlush)>("DwmFlush")) {
        flush();
    }
}

bool isCloaked(HWND window) {
    auto* const ask =
        compositionLibrary().function<decltype(DwmGetWindowAttribute)>("DwmGetWindowAttribute");
    DWORD cloaked = 0;
    return ask != nullptr && SUCCEEDED(ask(window, DWMWA_CLOAKED, &cloaked, sizeof cloaked)) &&
           cloaked != 0;
}

void darkenFrame(HWND window) {
    // DWMWA_USE_IMMERSIVE_DARK_MODE, which older headers do not know.
    constexpr DWORD darkMode = 20;
    turn(window, darkMode, isHighContrast() ? FALSE : TRUE);
}

void showWithoutFading(HWND window) {
    turn(window, DWMWA_TRANSITIONS_FORCEDISABLED, TRUE);
}

}  // namespace ormala
