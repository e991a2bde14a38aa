#pragma once

#include <windows.h>

#include <functional>

#include "platform/win/handles.h"
#include "scene/WheelNotches.h"

namespace ormala {

/// Sees the mouse wheel wherever it is turned over a window of this thread, and swallows nothing.
/// A wheel that is tilted, or a sweep to the side, is none of its business. One at a time: the
/// system's hook knows no object.
class MouseWheelHook {
  public:
    /// `turned` hears of whole notches; positive ones turn away from the user. It is called before
    /// the message has left the queue.
    explicit MouseWheelHook(std::function<void(int notches)> turned);
    MouseWheelHook(const MouseWheelHook&) = delete;
    MouseWheelHook& operator=(const MouseWheelHook&) = delete;
    ~MouseWheelHook();

  private:
    void turn(int turn);
    static LRESULT CALLBACK onMouse(int code, WPARAM message, LPARAM record);

    static MouseWheelHook* current;

    std::function<void(int)> turned_;
    WheelNotches notches_;
    HookHandle hook_;
};

}  // namespace ormala
