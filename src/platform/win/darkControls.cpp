#include "platform/win/darkControls.h"

#include <uxtheme.h>

#include "platform/win/SystemLibrary.h"
#include "platform/win/highContrast.h"

namespace ormala {

namespace {

void setTheme(HWND control, const wchar_t* name) {
    static const SystemLibrary themes(L"uxtheme.dll");
    if (auto* const set = themes.function<decltype(SetWindowTheme)>("SetWindowTheme")) {
        set(control, isHighContrast() ? nullptr : name, nullptr);
    }
}

}  // namespace

void darkenControl(HWND control) {
    COMBOBOXINFO combo{};
    combo.cbSize = sizeof combo;
    if (GetComboBoxInfo(control, &combo) == FALSE) {
        setTheme(control, L"DarkMode_Explorer");
        return;
    }
    setTheme(control, L"DarkMode_CFD");
    setTheme(combo.hwndList, L"DarkMode_Explorer");
}

}  // namespace ormala
