#include "platform/win/composition.h"

#include <dwmapi.h>

#include "platform/win/SystemLibrary.h"

namespace ormala {

namespace {

const SystemLibrary& library() {
    static const SystemLibrary composition(L"dwmapi.dll");
    return composition;
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

}  // namespace ormala
