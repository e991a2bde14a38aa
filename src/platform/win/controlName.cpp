#include "platform/win/controlName.h"

#include <cstdint>

#include "platform/win/text.h"

namespace ormala {

namespace {

constexpr const wchar_t* nameProperty = L"Name";

ATOM atomOf(HANDLE property) {
    return static_cast<ATOM>(reinterpret_cast<std::uintptr_t>(property));
}

}  // namespace

void setControlName(HWND window, std::string_view name) {
    const std::uintptr_t atom = GlobalAddAtomW(wide(name).c_str());
    SetPropW(window, nameProperty, reinterpret_cast<HANDLE>(atom));
}

std::string controlName(HWND window) {
    constexpr int longestAtom = 255;
    wchar_t text[longestAtom + 1]{};
    const ATOM atom = atomOf(GetPropW(window, nameProperty));
    return atom != 0 && GlobalGetAtomNameW(atom, text, longestAtom + 1) > 0 ? narrow(text) : "";
}

void removeControlName(HWND window) {
    if (const ATOM atom = atomOf(RemovePropW(window, nameProperty)); atom != 0) {
        GlobalDeleteAtom(atom);
    }
}

}  // namespace ormala
