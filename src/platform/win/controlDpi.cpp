#include "platform/win/controlDpi.h"

#include "scene/dpi.h"

namespace ormala {

namespace {

/// In per cent. Where nothing is set it is the normal one.
int storedTextSize() {
    DWORD percent = normalTextSize;
    DWORD size = sizeof percent;
    RegGetValueW(HKEY_CURRENT_USER, L"Software\\Microsoft\\Accessibility", L"TextScaleFactor",
                 RRF_RT_REG_DWORD, nullptr, &percent, &size);
    return static_cast<int>(percent);
}

int& textSize() {
    static int percent = storedTextSize();
    return percent;
}

}  // namespace

int controlDpi(int monitorDpi) {
    return textScaledDpi(monitorDpi, textSize());
}

int controlDpi(HWND window) {
    return controlDpi(static_cast<int>(GetDpiForWindow(window)));
}

void readTextSize() {
    textSize() = storedTextSize();
}

}  // namespace ormala
