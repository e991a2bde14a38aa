#include "worksheet/transparency.h"

#include <algorithm>

#include "modAPI/rounding.h"

namespace ormala {

namespace {

constexpr std::uint32_t layered = 0x80000;
constexpr std::uint32_t transparentToMouse = 0x20;
constexpr std::uint32_t noKey = 0xFFFFFFFF;
constexpr std::uint32_t byKey = 1;
constexpr std::uint32_t byAlpha = 2;

}  // namespace

LayeredLook layeredLook(bool clickable, Color background, int alpha, int clickAlpha) {
    if (clickable) {
        return {layered, noKey, clickAlpha, byAlpha};
    }
    return {layered | transparentToMouse, static_cast<std::uint32_t>(background), alpha,
            byKey | byAlpha};
}

int alphaOfTransparency(int percent) {
    const double alpha = RoundHalfAway((100.0 - percent) * 255 / 100, 0);
    return static_cast<int>(std::clamp(alpha, 0.0, 255.0));
}

}  // namespace ormala
