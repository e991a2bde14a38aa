#include "worksheet/transparency.h"

#include <algorithm>

#include "modAPI/rounding.h"

namespace ormala {

namespace {

/// Extended styles of the system.
constexpr std::uint32_t topmost = 0x8;
constexpr std::uint32_t passesMouse = 0x20;
constexpr std::uint32_t layered = 0x80000;
constexpr std::uint32_t takesNoKeyboard = 0x08000000U;

constexpr std::uint32_t noKey = 0xFFFFFFFFU;
constexpr std::uint32_t byKey = 1;
constexpr std::uint32_t byAlpha = 2;

}  // namespace

LayeredLook layeredLook(const Transparency& transparency, Color background) {
    if (transparency.clickable) {
        const std::uint32_t mouse = transparency.transparentToMouse ? passesMouse : 0;
        return {topmost | layered | mouse, noKey, transparency.clickAlpha, byAlpha};
    }
    // Without the mouse it obeys no keys either, and must not take them from who does.
    return {topmost | layered | passesMouse | takesNoKeyboard,
            static_cast<std::uint32_t>(background), transparency.alpha, byKey | byAlpha};
}

int alphaOfTransparency(int percent) {
    const double alpha = RoundHalfAway((100.0 - percent) * 255 / 100, 0);
    return static_cast<int>(std::clamp(alpha, 0.0, 255.0));
}

}  // namespace ormala
