#pragma once

#include <windows.h>

#include "e2e/support/DesktopWindow.h"
#include "support/win/Picture.h"
#include "support/win/ScreenGeometry.h"

namespace ormala::test {

/// A borderless window of the test program itself, filled with one colour; its left half can have
/// another one. It is handled while the test waits.
class OwnWindow {
  public:
    /// Not shown yet. `extendedStyle` are WS_EX_ bits.
    OwnWindow(const ScreenRect& rect, DWORD extendedStyle, Color color, Color leftHalf);
    OwnWindow(const ScreenRect& rect, DWORD extendedStyle, Color color)
        : OwnWindow(rect, extendedStyle, color, color) {}
    ~OwnWindow();
    OwnWindow(const OwnWindow&) = delete;
    OwnWindow& operator=(const OwnWindow&) = delete;

    HWND handle() const { return window_.handle(); }
    const DesktopWindow& window() const { return window_; }
    /// Shows it as it is, not activated, and waits until the screen rests.
    void show();
    /// Presses of the left button on this window.
    int presses() const { return presses_; }
    int releases() const { return releases_; }
    /// Where the last ones were, on the screen.
    ScreenPoint lastPress() const { return lastPress_; }
    ScreenPoint lastRelease() const { return lastRelease_; }

  private:
    static LRESULT CALLBACK dispatch(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void paint() const;

    Color color_;
    Color leftHalf_;
    DesktopWindow window_;
    int presses_ = 0;
    int releases_ = 0;
    ScreenPoint lastPress_;
    ScreenPoint lastRelease_;
};

}  // namespace ormala::test
