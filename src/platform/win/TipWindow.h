#pragma once

#include <windows.h>

#include <string>

#include "platform/win/handles.h"

namespace ormala {

/// A tooltip over the whole client area of a window whose text follows what is under the mouse.
class TipWindow {
  public:
    /// `owner` must outlive it and hands its mouse messages to `relay`.
    explicit TipWindow(HWND owner);

    /// An empty text shows nothing.
    void setText(const std::string& text);
    void relay(UINT message, WPARAM wParam, LPARAM lParam);
    [[nodiscard]] HWND handle() const { return window_.get(); }

  private:
    HWND owner_;
    Handle<HWND, &DestroyWindow> window_;
    std::wstring text_;
};

}  // namespace ormala
