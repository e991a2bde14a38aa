#include "app/win/shell/ModeMenu.h"

#include "app/modes.h"
#include "platform/win/text.h"

namespace ormala {

void ModeMenu::addTo(HWND window) {
    menu_ = GetSystemMenu(window, FALSE);
    AppendMenuW(menu_, MF_SEPARATOR, 0, nullptr);
    for (const Mode mode : {Mode::edit, Mode::pause, Mode::templateMode}) {
        AppendMenuW(menu_, MF_STRING, static_cast<UINT_PTR>(menuCommandOfMode(mode)), L"");
    }
}

void ModeMenu::RefreshRuntimeStrings(Mode mode) const {
    for (const Mode each : allModes) {
        const auto entry = static_cast<UINT>(menuCommandOfMode(each));
        ModifyMenuW(menu_, entry, MF_BYCOMMAND | MF_STRING, entry, wide(nameOfMode(each)).c_str());
    }
    SyncSystemMenu(mode);
}

void ModeMenu::SyncSystemMenu(Mode mode) const {
    for (const Mode each : allModes) {
        EnableMenuItem(menu_, static_cast<UINT>(menuCommandOfMode(each)),
                       static_cast<UINT>(MF_BYCOMMAND | (each == mode ? MF_GRAYED : MF_ENABLED)));
    }
}

}  // namespace ormala
