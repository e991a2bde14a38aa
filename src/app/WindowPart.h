#pragma once

#include <functional>
#include <span>

namespace ormala {

/// A part of the program that the keyboard can be given to as a whole.
struct WindowPart {
    std::function<bool()> isThere;
    std::function<bool()> hasKeyboard;
    std::function<void()> takeKeyboard;
};

/// Gives the keyboard to the next part that is there, or to the previous one, in a ring; from no
/// part to the first one or the last. Nothing if only the part is there that has it.
void passKeyboardOn(std::span<const WindowPart> parts, bool back);

}  // namespace ormala
