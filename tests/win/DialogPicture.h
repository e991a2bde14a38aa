#pragma once

#include <windows.h>

#include <utility>

#include "modAPI/PixelRect.h"
#include "support/win/Screen.h"

namespace ormala {

/// Tells a window that its monitor has that resolution.
inline void moveToDpi(HWND window, int dpi) {
    RECT place{};
    GetWindowRect(window, &place);
    SendMessageW(window, WM_DPICHANGED, MAKEWPARAM(dpi, dpi), reinterpret_cast<LPARAM>(&place));
}

/// Gives the client area that size, if it has another one. The caption of a window that was told of
/// another resolution stays that of the real one, and the screen may come late with the size.
inline bool hasClientSize(HWND window, PixelSize size) {
    RECT client{};
    GetClientRect(window, &client);
    if (client.right == size.width && client.bottom == size.height) {
        return true;
    }
    RECT place{};
    GetWindowRect(window, &place);
    const int width = place.right - place.left - client.right + size.width;
    const int height = place.bottom - place.top - client.bottom + size.height;
    SetWindowPos(window, nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    return false;
}

/// The client area of a window as it stands on the screen; nothing may lie over it.
inline test::Picture clientOnScreen(HWND window) {
    RECT client{};
    GetClientRect(window, &client);
    POINT corner{};
    ClientToScreen(window, &corner);
    return test::screen::capture(
        {corner.x, corner.y, corner.x + client.right, corner.y + client.bottom});
}

/// Watches a window until it has its size and has been painted.
class StillPicture {
  public:
    /// The size of the client area.
    explicit StillPicture(PixelSize size) : size_(size) {}

    /// True once the window looks the same as at several calls before.
    bool isStill(HWND window) {
        if (!hasClientSize(window, size_)) {
            calls_ = 0;
            return false;
        }
        test::Picture now = clientOnScreen(window);
        calls_ = now == picture_ ? calls_ + 1 : 0;
        picture_ = std::move(now);
        return calls_ > enoughCalls;
    }
    [[nodiscard]] const test::Picture& picture() const { return picture_; }

  private:
    static constexpr int enoughCalls = 8;

    PixelSize size_;
    test::Picture picture_;
    int calls_ = 0;
};

}  // namespace ormala
