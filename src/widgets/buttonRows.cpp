#include "widgets/buttonRows.h"

#include <algorithm>
#include <cstdlib>
#include <limits>

#include "scene/Input.h"

namespace ormala {

namespace {

/// Twice the middle, which stays whole.
PixelPoint middle(const PixelRect& box) {
    return {box.left + box.right, box.top + box.bottom};
}

/// One that has grown under the mouse reaches into the rows beside its own.
bool inOneRow(const PixelRect& a, const PixelRect& b) {
    const int shared = std::min(a.bottom, b.bottom) - std::max(a.top, b.top);
    return 2 * shared > std::min(a.height(), b.height());
}

bool leadsSideways(int key) {
    return key == key::left || key == key::right;
}

/// How far away a button is for a key; nothing if the key does not lead there.
std::optional<int> way(const PixelRect& from, const PixelRect& to, int key) {
    const bool sideways = leadsSideways(key);
    const PixelPoint a = middle(from);
    const PixelPoint b = middle(to);
    int ahead = sideways ? b.x - a.x : b.y - a.y;
    if (key == key::left || key == key::up) {
        ahead = -ahead;
    }
    return inOneRow(from, to) == sideways && ahead > 0 ? std::optional(ahead) : std::nullopt;
}

bool isArrow(int key) {
    return leadsSideways(key) || key == key::up || key == key::down;
}

}  // namespace

std::optional<std::size_t> buttonBeside(std::span<const PixelRect> buttons, std::size_t from,
                                        int key) {
    std::optional<std::size_t> nearest;
    int shortest = std::numeric_limits<int>::max();
    for (std::size_t i = 0; isArrow(key) && i < buttons.size(); ++i) {
        const auto found = way(buttons[from], buttons[i], key);
        if (found && *found < shortest) {
            nearest = i;
            shortest = *found;
        }
    }
    if (!nearest || leadsSideways(key)) {
        return nearest;
    }
    const auto aside = [&](std::size_t i) {
        return std::abs(middle(buttons[i]).x - middle(buttons[from]).x);
    };
    const PixelRect row = buttons[*nearest];
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        if (i != from && inOneRow(row, buttons[i]) && aside(i) < aside(*nearest)) {
            nearest = i;
        }
    }
    return nearest;
}

}  // namespace ormala
