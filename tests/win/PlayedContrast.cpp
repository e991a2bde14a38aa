#include "win/PlayedContrast.h"

#include "win/TestWindow.h"

namespace ormala {

/// Where the program finds these functions of the system.
extern decltype(&SystemParametersInfoW) importedSystemParametersInfoW __asm__(
    "__imp_SystemParametersInfoW");
extern decltype(&GetSysColor) importedGetSysColor __asm__("__imp_GetSysColor");

namespace {

bool& isOn() {
    static bool on = false;
    return on;
}

decltype(&SystemParametersInfoW) systemParameters() {
    static const auto own = importedSystemParametersInfoW;
    return own;
}

decltype(&GetSysColor) systemColorOf() {
    static const auto own = importedGetSysColor;
    return own;
}

template <typename Function>
void replace(Function& imported, Function by) {
    DWORD former = 0;
    VirtualProtect(&imported, sizeof imported, PAGE_READWRITE, &former);
    imported = by;
}

BOOL WINAPI playParameters(UINT action, UINT number, PVOID parameter, UINT flags) {
    if (action != SPI_GETHIGHCONTRAST) {
        return systemParameters()(action, number, parameter, flags);
    }
    static_cast<HIGHCONTRASTW*>(parameter)->dwFlags =
        HCF_AVAILABLE | (isOn() ? HCF_HIGHCONTRASTON : 0U);
    return TRUE;
}

DWORD WINAPI playColor(int index) {
    if (!isOn()) {
        return systemColorOf()(index);
    }
    switch (index) {
        case COLOR_WINDOW:
        case COLOR_BTNFACE:
        case COLOR_HIGHLIGHTTEXT:
            return PlayedContrast::ground;
        case COLOR_HIGHLIGHT:
            return PlayedContrast::chosen;
        case COLOR_GRAYTEXT:
            return PlayedContrast::grey;
        case COLOR_HOTLIGHT:
            return PlayedContrast::link;
        default:
            return PlayedContrast::text;
    }
}

}  // namespace

PlayedContrast::PlayedContrast() {
    systemParameters();
    systemColorOf();
    isOn() = false;
    replace(importedSystemParametersInfoW, &playParameters);
    replace(importedGetSysColor, &playColor);
}

PlayedContrast::~PlayedContrast() {
    // Some window has to be told.
    const TestWindow last;
    turn(false);
    replace(importedSystemParametersInfoW, systemParameters());
    replace(importedGetSysColor, systemColorOf());
}

void PlayedContrast::turn(bool on) {
    isOn() = on;
    EnumThreadWindows(
        GetCurrentThreadId(),
        [](HWND window, LPARAM) -> BOOL {
            SendMessageW(window, WM_SETTINGCHANGE, SPI_SETHIGHCONTRAST, 0);
            SendMessageW(window, WM_SYSCOLORCHANGE, 0, 0);
            SendMessageW(window, WM_THEMECHANGED, 0, 0);
            return TRUE;
        },
        0);
}

}  // namespace ormala
