#include "app/ListScroll.h"

#include <algorithm>

#include "modAPI/rounding.h"

namespace ormala {

void ListScroll::setHeights(int content, int inside) {
    inside_ = inside;
    enabled_ = content > inside;
    if (enabled_) {
        max_ = inside - content;
        largeChange_ = inside;
    } else {
        value_ = 0;
    }
}

void ListScroll::setValue(int value) {
    if (enabled_) {
        value_ = std::clamp(value, max_, 0);
    }
}

void ListScroll::EnsurePanelVisible(int panelTop, int panelHeight) {
    const int y = value_ + panelTop;
    if (panelHeight >= inside_ || y < 0) {
        value_ = -panelTop;
    } else if (y + panelHeight > inside_) {
        value_ = inside_ - (panelTop + panelHeight);
    }
}

std::vector<int> ListScroll::Scroll(bool Down) {
    constexpr int steps = 8;
    std::vector<int> positions;
    if (!enabled_) {
        return positions;
    }
    const double stride = smallChange_ / 2.0 + largeChange_ / 80;
    const int bound = Down ? max_ : 0;
    for (int i = 0; i < steps && value_ != bound; ++i) {
        const auto next =
            static_cast<int>(RoundHalfAway(Down ? value_ - stride : value_ + stride, 0));
        value_ = Down ? std::max(next, bound) : std::min(next, bound);
        positions.push_back(value_);
    }
    return positions;
}

}  // namespace ormala
