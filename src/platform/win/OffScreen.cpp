#include "platform/win/OffScreen.h"

#include "platform/win/monitors.h"

namespace ormala {

OffScreen::OffScreen(HWND window) : window_(window) {
    GetWindowRect(window, &place_);
    moved_ = IsIconic(window) == FALSE && IsZoomed(window) == FALSE;
    if (moved_) {
        SetWindowPos(window, nullptr, virtualScreen().right, place_.top, 0, 0,
                     SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
}

OffScreen::~OffScreen() {
    if (!moved_) {
        return;
    }
    // Twice, since a change of resolution on the way there or back sizes the window anew.
    for (int i = 0; i < 2; ++i) {
        SetWindowPos(window_, nullptr, place_.left, place_.top, place_.right - place_.left,
                     place_.bottom - place_.top, SWP_NOZORDER | SWP_NOACTIVATE);
    }
}

}  // namespace ormala
