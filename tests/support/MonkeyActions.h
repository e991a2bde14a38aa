#pragma once

#include <cstdint>
#include <random>
#include <string>

namespace ormala::test {

/// What somebody does who knows nothing of the program, the same for the same seed everywhere.
struct MonkeyAction {
    enum class Deed {
        move,
        click,
        rightClick,
        middleClick,
        doubleClick,
        drag,
        wheel,
        key,
        type,
        /// One of the system's commands for a window: minimised, maximised, as it was.
        windowState,
        /// Another place and size.
        placeWindow,
    };
    enum class Target { worksheet, controlWindow, panel, frame, magnifier, front };

    Deed deed = Deed::move;
    Target target = Target::front;
    /// Where in the target, in thousandths of its size.
    int x = 0;
    int y = 0;
    /// How far a drag leads, in pixels; how much larger a window becomes.
    int dx = 0;
    int dy = 0;
    /// Bits: 1 Shift, 2 Ctrl, 4 Alt.
    unsigned modifiers = 0;
    /// A virtual-key code, or which of the few states or texts.
    int key = 0;
    /// Notches of the wheel, presses of the key.
    int count = 1;

    bool operator==(const MonkeyAction&) const = default;
};

/// For the notes of a run.
std::string textOf(const MonkeyAction& action);

/// What is typed: numbers and what is none.
const char* monkeyText(int index);
inline constexpr int monkeyTextCount = 8;

class MonkeyActions {
  public:
    explicit MonkeyActions(std::uint32_t seed) : random_(seed) {}

    MonkeyAction next();

  private:
    /// From 0 to before `below`.
    int pick(int below);
    /// From -most to most.
    int pickAround(int most) { return pick(2 * most + 1) - most; }
    MonkeyAction::Deed pickDeed();
    MonkeyAction::Target pickTarget();

    std::mt19937 random_;
};

}  // namespace ormala::test
