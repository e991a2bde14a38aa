#pragma once

#include <windows.h>

#include <functional>

#include "platform/win/handles.h"

namespace ormala {

/// Sees the mouse wheel wherever it is turned over a window of this thread, and swallows nothing.
/// One at a time: the system's hook knows no object.
class MouseWheelHook {
  public:
    /// `turned` is called with true for a turn toward the user.
    explicit MouseWheelHook(std::function<void(bool down)> turned);
    MouseWheelHook(const MouseWheelHook&) = delete;
    MouseWheelHook& operator=(const MouseWheelHook&) = delete;
    ~MouseWheelHook();

  private:
    static LRESULT CALLBACK onMouse(int code, WPARAM message, LPARAM record);

    static MouseWheelHook* current;

    std::function<void(bool)> turned_;
    HookHandle hook_;
};

}  // namespace ormala
