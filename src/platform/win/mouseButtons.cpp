#include "platform/win/mouseButtons.h"

#include <windows.h>

#include <algorithm>
#include <array>

namespace ormala {

bool isAnyMouseButtonHeld() {
    constexpr std::array buttons{VK_LBUTTON, VK_RBUTTON, VK_MBUTTON, VK_XBUTTON1, VK_XBUTTON2};
    return std::ranges::any_of(buttons, [](int key) { return GetAsyncKeyState(key) < 0; });
}

}  // namespace ormala
