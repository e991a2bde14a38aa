#include "app/win/shell/FontSizeBox.h"
// Needs the system's basic types, which come with the window.
#include <commctrl.h>

#include "app/win/shell/settingsIds.h"
#include "widgets/win/controlFontSize.h"

namespace ormala {

FontSizeBox::FontSizeBox(HWND parent, clsGlobalEvents& globalEvents) : globalEvents_(globalEvents) {
    check1_.create(parent, {WC_BUTTONW, BS_AUTOCHECKBOX, idFontSize, "Check1", {}});
    // A click has to lie inside of it.
    constexpr int side = 16;
    SetWindowPos(check1_.handle(), nullptr, 0, 0, side, side,
                 SWP_NOZORDER | SWP_NOACTIVATE | SWP_HIDEWINDOW);
    fontSizeChange_ = globalEvents_.FontSizeChange.subscribe(
        [parent](int points) { SetFontSizeOfControls(parent, points); });
}

void FontSizeBox::onCommand(WPARAM wParam) {
    constexpr int normal = 8;
    constexpr int large = 9;
    if (wParam == MAKEWPARAM(idFontSize, BN_CLICKED)) {
        const bool ticked = SendMessageW(check1_.handle(), BM_GETCHECK, 0, 0) == BST_CHECKED;
        globalEvents_.ChangeFontSize(ticked ? large : normal);
    }
}

}  // namespace ormala
