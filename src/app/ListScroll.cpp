#include "app/ListScroll.h"

#include <algorithm>

#include "modAPI/rounding.h"

namespace ormala {

ScrollRange rangeOfList(int content, int inside) {
    return {0, std::min(inside - content, 0), 0, inside};
}

int valueShowing(int panelTop, int panelHeight, const ScrollRange& range) {
    const int inside = range.LargeChange;
    const int y = range.Value + panelTop;
    if (panelHeight >= inside || y < 0) {
        return -panelTop;
    }
    return y + panelHeight > inside ? inside - (panelTop + panelHeight) : range.Value;
}

std::vector<int> glideOfNotch(bool down, const ScrollRange& range, int smallChange) {
    constexpr int steps = 8;
    const double stride = smallChange / 2.0 + range.LargeChange / 80.0;
    const int bound = down ? range.Max : range.Min;
    std::vector<int> values;
    int value = range.Value;
    for (int i = 0; i < steps && value != bound; ++i) {
        const auto next = static_cast<int>(RoundHalfAway(down ? value - stride : value + stride));
        value = down ? std::max(next, bound) : std::min(next, bound);
        values.push_back(value);
    }
    return values;
}

}  // namespace ormala
