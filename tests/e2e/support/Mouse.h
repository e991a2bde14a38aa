#pragma once

#include <windows.h>

#include <vector>

#include "e2e/support/Keyboard.h"
#include "support/win/ScreenGeometry.h"

namespace ormala::test {

enum class MouseButton { Left, Right, Middle };

/// The user's mouse. Each movement returns when the pointer stands where it was sent and the window
/// there has handled it. Modifiers that are held repeat themselves before each movement, and on the
/// way there. Buttons still held at the object's end are released.
class Mouse {
  public:
    Mouse() = default;
    ~Mouse();
    Mouse(const Mouse&) = delete;
    Mouse& operator=(const Mouse&) = delete;

    static ScreenPoint position();

    /// Fails the stage if the pointer does not get there.
    void moveTo(ScreenPoint point);
    void press(MouseButton button = MouseButton::Left);
    void release(MouseButton button = MouseButton::Left);

    void click(ScreenPoint point, MouseButton button = MouseButton::Left,
               Modifiers modifiers = Modifiers::None);
    void doubleClick(ScreenPoint point, MouseButton button = MouseButton::Left);
    /// Presses at `from`, goes to `to` in `steps` equal moves, and releases there. The modifiers
    /// are held from before the press until after the release.
    void drag(ScreenPoint from, ScreenPoint to, int steps = 8,
              Modifiers modifiers = Modifiers::None, MouseButton button = MouseButton::Left);
    /// Turns the wheel where the pointer stands; positive notches turn it away from the user.
    void wheel(int notches, Modifiers modifiers = Modifiers::None);
    /// The same in steps as small as a touchpad's; a notch is WHEEL_DELTA of them.
    void wheelByParts(int turn, int parts);
    /// Sweeps to the side; positive notches lead to the right.
    void tiltWheel(int notches);

  private:
    /// Each move may let go of them.
    static void makeSureHeld(const HeldKeys& keys);

    std::vector<MouseButton> held_;
};

}  // namespace ormala::test
