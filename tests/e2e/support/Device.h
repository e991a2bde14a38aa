#pragma once

#include <optional>

#include "e2e/support/Keyboard.h"
#include "e2e/support/Mouse.h"
#include "e2e/support/StageService.h"

namespace ormala::test {

/// The user's mouse as the device that it is. Where a window manager moves and sizes windows, it
/// listens to the device only, and the stage plays that; elsewhere it is the same as `Mouse`. What
/// is still held at the object's end is released.
class Device {
  public:
    Device();
    ~Device();
    Device(const Device&) = delete;
    Device& operator=(const Device&) = delete;

    void moveTo(ScreenPoint point);
    void press(MouseButton button = MouseButton::Left);
    void release();
    void click(ScreenPoint point, MouseButton button = MouseButton::Left);
    void pressEscape();

    /// Presses at `from` and goes to `to` in equal moves, and holds the button.
    void beginDrag(ScreenPoint from, ScreenPoint to, int steps = 6);
    void drag(ScreenPoint from, ScreenPoint to, int steps = 6);

  private:
    StageService stage_;
    Mouse mouse_;
    std::optional<MouseButton> held_;
};

}  // namespace ormala::test
