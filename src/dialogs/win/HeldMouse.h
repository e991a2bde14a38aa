#pragma once

#include <windows.h>

#include <optional>

#include "dialogs/MousePicking.h"

namespace ormala {

/// Tells what is picked on of the left button in its window. The window holds the mouse, and has
/// the focus unless told otherwise, from the press on; a release of a button that went down
/// elsewhere tells nothing.
class HeldMouse {
  public:
    /// Must live as long.
    explicit HeldMouse(MousePicking& picking) : picking_(picking) {}

    /// At first it takes it.
    void setTakesFocus(bool takes) { takesFocus_ = takes; }
    /// The answer to a message about the left button; nothing for any other message.
    std::optional<LRESULT> onMessage(HWND window, UINT message, LPARAM lParam);

  private:
    void hold(HWND window);
    void press(HWND window, PixelPoint point);
    void pressAgain(HWND window);
    void release(PixelPoint point);
    void lose();

    MousePicking& picking_;
    bool holds_ = false;
    bool takesFocus_ = true;
};

}  // namespace ormala
