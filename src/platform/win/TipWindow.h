#pragma once

#include <windows.h>

#include <optional>
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
    /// The text has the size of the system's own tips on a monitor of that resolution. At first and
    /// with each text that of the owner's monitor is taken.
    void setDpi(UINT dpi);
    [[nodiscard]] HWND handle() const { return window_.get(); }

  private:
    HWND owner_;
    UINT dpi_ = 0;
    FontHandle font_;
    Handle<HWND, &DestroyWindow> window_;
    std::wstring text_;
};

/// The tip of a control. Its window is made when the mouse first comes, so that a control at rest
/// has none.
class HoverTip {
  public:
    /// An empty text shows nothing.
    void setText(const std::string& text);
    [[nodiscard]] const std::string& text() const { return text_; }
    /// Given all messages of `owner`, which must outlive it.
    void relay(HWND owner, UINT message, WPARAM wParam, LPARAM lParam);

  private:
    std::string text_;
    std::optional<TipWindow> window_;
};

}  // namespace ormala
