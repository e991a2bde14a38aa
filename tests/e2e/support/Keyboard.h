#pragma once

#include <windows.h>

#include <string_view>
#include <vector>

namespace ormala::test {

/// Bits that can be joined with |.
enum class Modifiers : unsigned { None = 0, Shift = 1, Ctrl = 2, Alt = 4 };

constexpr Modifiers operator|(Modifiers a, Modifiers b) {
    return static_cast<Modifiers>(static_cast<unsigned>(a) | static_cast<unsigned>(b));
}

/// Holds the keys down from its construction to its end.
class HeldKeys {
  public:
    explicit HeldKeys(Modifiers modifiers);
    ~HeldKeys();
    HeldKeys(const HeldKeys&) = delete;
    HeldKeys& operator=(const HeldKeys&) = delete;

    /// Presses again what was let go meanwhile; true if there was something. Wine compares the keys
    /// with the real keyboard's whenever the pointer enters a window, and there nothing is pressed.
    bool holdAgain() const;

  private:
    std::vector<WORD> keys_;
};

/// The user's keyboard: what it sends goes to the foreground window. `key` is a virtual-key code
/// (VK_F2, VK_LEFT, 'Z').
namespace keyboard {

void down(WORD key);
void up(WORD key);
/// Presses each modifier that `down` or `HeldKeys` holds once more, as a keyboard does about thirty
/// times a second as long as the key is held.
void repeatHeldModifiers();
/// Down and up, once or several times, with the modifiers held around.
void press(WORD key, Modifiers modifiers = Modifiers::None, int times = 1);
/// Types any text, as characters and not as keys.
void type(std::string_view text);

}  // namespace keyboard

}  // namespace ormala::test
