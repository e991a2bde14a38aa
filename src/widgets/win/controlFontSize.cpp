#include "widgets/win/controlFontSize.h"

namespace ormala {

void SetFontSizeOfControls(HWND container, int points) {
    for (HWND control = GetWindow(container, GW_CHILD); control != nullptr;
         control = GetWindow(control, GW_HWNDNEXT)) {
        SendMessageW(control, controlFontSizeMessage, static_cast<WPARAM>(points), 0);
    }
}

}  // namespace ormala
