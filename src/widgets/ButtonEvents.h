#pragma once

#include "base/Event.h"

namespace ormala {

/// A mouse event of a control in pixels of its client area. A press or release carries the one
/// button, a move all that are held.
struct MouseArguments {
    int button = 0;
    int shift = 0;
    int x = 0;
    int y = 0;

    bool operator==(const MouseArguments&) const = default;
};

struct KeyArguments {
    int keyCode = 0;
    int shift = 0;

    bool operator==(const KeyArguments&) const = default;
};

/// What a button tells its owner. A handler of any of them may destroy the button.
struct ButtonEvents {
    Event<> Click;
    Event<> DblClick;
    Event<KeyArguments> KeyDown;
    /// The character of a key, as UTF-16.
    Event<int> KeyPress;
    Event<KeyArguments> KeyUp;
    Event<MouseArguments> MouseDown;
    Event<MouseArguments> MouseMove;
    Event<MouseArguments> MouseUp;
    /// With the modifiers that are held.
    Event<int> MouseEnter;
    Event<int> MouseExit;
    Event<> gotFocus;
    Event<> lostFocus;
};

}  // namespace ormala
