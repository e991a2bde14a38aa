#pragma once

namespace ormala {

/// Modifier bits of mouse and key events.
namespace modifier {
constexpr int shift = 1;
constexpr int ctrl = 2;
constexpr int alt = 4;
}  // namespace modifier

/// Mouse button bits. A press or release carries the one button, a move all that are held.
namespace mouseButton {
constexpr int none = 0;
constexpr int left = 1;
constexpr int right = 2;
constexpr int middle = 4;
}  // namespace mouseButton

/// Key codes, the same numbers as the system's virtual keys.
namespace key {
constexpr int tab = 9;
constexpr int enter = 13;
constexpr int shift = 16;
constexpr int ctrl = 17;
constexpr int alt = 18;
constexpr int space = 32;
constexpr int pageUp = 33;
constexpr int pageDown = 34;
constexpr int end = 35;
constexpr int home = 36;
constexpr int left = 37;
constexpr int up = 38;
constexpr int right = 39;
constexpr int down = 40;
constexpr int remove = 46;
constexpr int c = 67;
constexpr int y = 89;
constexpr int z = 90;
constexpr int menu = 93;
constexpr int f1 = 112;
constexpr int f2 = 113;
constexpr int f3 = 114;
constexpr int f4 = 115;
constexpr int f6 = 117;
constexpr int f10 = 121;
constexpr int f12 = 123;
}  // namespace key

/// One mouse event in worksheet pixels.
struct MouseInput {
    int button = mouseButton::none;
    int shift = 0;
    float x = 0;
    float y = 0;
};

}  // namespace ormala
