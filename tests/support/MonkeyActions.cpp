#include "support/MonkeyActions.h"

#include <array>
#include <cstddef>
#include <sstream>

namespace ormala::test {

namespace {

using Deed = MonkeyAction::Deed;
using Target = MonkeyAction::Target;

template <typename T>
struct Share {
    T what;
    int ofHundred;
};
// Clang before 17 finds none for an aggregate.
template <typename T>
Share(T, int) -> Share<T>;

constexpr std::array deeds{
    Share{Deed::move, 8},        Share{Deed::click, 24},      Share{Deed::rightClick, 5},
    Share{Deed::middleClick, 2}, Share{Deed::doubleClick, 4}, Share{Deed::drag, 19},
    Share{Deed::wheel, 7},       Share{Deed::key, 21},        Share{Deed::type, 4},
    Share{Deed::windowState, 3}, Share{Deed::placeWindow, 3},
};

constexpr std::array targets{
    Share{Target::worksheet, 34}, Share{Target::controlWindow, 16}, Share{Target::panel, 26},
    Share{Target::frame, 6},      Share{Target::magnifier, 8},      Share{Target::front, 10},
};

template <typename Shares>
auto chosen(const Shares& shares, int number) {
    for (const auto& share : shares) {
        if (number < share.ofHundred) {
            return share.what;
        }
        number -= share.ofHundred;
    }
    return shares.back().what;
}

/// Virtual-key codes: the keys of the program first, then what else may be pressed.
constexpr std::array keys{
    0x71, 0x72, 0x73, 0x71, 0x71, 0x70, 0x7B, 0x5D, 0x25, 0x26, 0x27, 0x28, 0x25, 0x28,
    0x24, 0x23, 0x21, 0x22, 0x09, 0x09, 0x5A, 0x59, 0x5A, 0x53, 0x4E, 0x4F, 0x2E, 0x2D,
    0x08, 0x0D, 0x1B, 0x1B, 0x20, 0x74, 0x79, 0x30, 0x31, 0xBB, 0xBD, 0x41, 0x43, 0x56,
};

constexpr std::array<const char*, monkeyTextCount> texts{
    "12.5", "-3", "0", "1e300", "999999999999", "abc", "1,618", "\xC2\xB5:/ 5",
};

/// Alt+F4 ends the program, which is no fault of it.
bool endsProgram(const MonkeyAction& action) {
    constexpr int f4 = 0x73;
    constexpr unsigned alt = 4;
    return action.deed == Deed::key && action.key == f4 && (action.modifiers & alt) != 0;
}

}  // namespace

const char* monkeyText(int index) {
    return texts[static_cast<std::size_t>(index)];
}

std::string textOf(const MonkeyAction& action) {
    constexpr std::array names{"move",         "click",        "right click", "middle click",
                               "double click", "drag",         "wheel",       "key",
                               "type",         "window state", "place window"};
    constexpr std::array places{"worksheet", "control window", "panel",
                                "frame",     "magnifier",      "front window"};
    std::ostringstream out;
    out << names[static_cast<std::size_t>(action.deed)] << " in "
        << places[static_cast<std::size_t>(action.target)] << " at " << action.x << ' ' << action.y
        << " by " << action.dx << ' ' << action.dy << ", modifiers " << action.modifiers << ", key "
        << action.key << ", " << action.count << " times";
    return out.str();
}

int MonkeyActions::pick(int below) {
    return static_cast<int>(random_() % static_cast<std::uint32_t>(below));
}

Deed MonkeyActions::pickDeed() {
    return chosen(deeds, pick(100));
}

Target MonkeyActions::pickTarget() {
    return chosen(targets, pick(100));
}

MonkeyAction MonkeyActions::next() {
    constexpr int farDrag = 400;
    constexpr int nearDrag = 40;
    MonkeyAction action;
    action.deed = pickDeed();
    action.target = pickTarget();
    action.x = pick(1000);
    action.y = pick(1000);
    const int reach = pick(3) == 0 ? farDrag : nearDrag;
    action.dx = pickAround(reach);
    action.dy = pickAround(reach);
    const int held = pick(16);
    action.modifiers = held < 8 ? static_cast<unsigned>(held) : 0U;
    action.count = 1 + pick(3);
    switch (action.deed) {
        case Deed::key:
            action.key = keys[static_cast<std::size_t>(pick(static_cast<int>(keys.size())))];
            break;
        case Deed::type:
            action.key = pick(monkeyTextCount);
            break;
        case Deed::wheel:
            action.count = pickAround(3);
            break;
        default:
            action.key = pick(4);
    }
    if (endsProgram(action)) {
        action.modifiers = 0;
    }
    return action;
}

}  // namespace ormala::test
