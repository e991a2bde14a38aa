#include "toolkit/GrowButtonNearMouse.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "widgets/dpi.h"

namespace ormala {

namespace {

constexpr int smallBelow = 30;
constexpr int nearWithin = 25;
constexpr int growth = 4;

bool canGrow(const GrowingButton& button, int dpi) {
    const int atRest = button.grown ? placeAtRest(button.place, dpi).width() : button.place.width();
    return button.usable && atRest < scaledLength(smallBelow, dpi);
}

double distanceFrom(const PixelRect& place, PixelPoint mouse) {
    return std::hypot((place.left + place.right) / 2.0 - mouse.x,
                      (place.top + place.bottom) / 2.0 - mouse.y);
}

/// The mouse is on it, or on the window that shows at one of its corners, which are cut off. Those
/// of a grown one lie elsewhere; asked again, it would grow and shrink by turns.
bool isUncovered(const GrowingButton& button, const MouseOnScreen& mouse,
                 const WindowLookup& windowAt) {
    if (button.window == mouse.windowUnder ||
        (button.grown && button.grownOver == mouse.windowUnder)) {
        return true;
    }
    const PixelRect& place = button.place;
    const std::array<PixelPoint, 4> corners{{{place.left, place.top},
                                             {place.right - 1, place.top},
                                             {place.left, place.bottom - 1},
                                             {place.right - 1, place.bottom - 1}}};
    return std::ranges::any_of(
        corners, [&](PixelPoint corner) { return windowAt(corner) == mouse.windowUnder; });
}

}  // namespace

std::optional<std::size_t> buttonNearMouse(std::span<const GrowingButton> buttons,
                                           const MouseOnScreen& mouse, const WindowLookup& windowAt,
                                           int dpi) {
    std::optional<std::size_t> nearest;
    double best = scaledLength(nearWithin, dpi);
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        const GrowingButton& button = buttons[i];
        if (!canGrow(button, dpi)) {
            continue;
        }
        if (mouse.captureHolder != nullptr && mouse.captureHolder == button.window) {
            return i;
        }
        const double distance = distanceFrom(button.place, mouse.at);
        const bool nearer = nearest ? distance < best : distance <= best;
        if (nearer && isUncovered(button, mouse, windowAt)) {
            nearest = i;
            best = distance;
        }
    }
    return nearest;
}

GrowthSteps GrowButtonNearMouse(std::span<const GrowingButton> buttons,
                                std::optional<std::size_t> chosen) {
    GrowthSteps steps;
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        if (i == chosen) {
            if (!buttons[i].grown) {
                steps.grow = i;
            }
        } else if (buttons[i].grown) {
            steps.shrink.push_back(i);
        }
    }
    return steps;
}

PixelRect grownPlace(const PixelRect& place, int dpi) {
    return place.grown(scaledLength(growth, dpi));
}

PixelRect placeAtRest(const PixelRect& grown, int dpi) {
    return grown.grown(-scaledLength(growth, dpi));
}

bool growthHasWork(const ButtonPanel& panel, PixelPoint mouse, int dpi) {
    if (!panel.shown || !panel.place.meets(panel.window)) {
        return false;
    }
    return panel.someGrown || panel.place.grown(scaledLength(nearWithin, dpi)).contains(mouse);
}

}  // namespace ormala
