#include "app/ListScroll.h"

#include <algorithm>
#include <cstdlib>

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

UncoveredPart uncoveredPart(int formerTop, int top, PixelSize view, int content) {
    const int by = std::clamp(top - formerTop, -view.height, view.height);
    const bool below = by < 0;
    const int first = below ? view.height + by - top : -top;
    const PixelRect shown{0, first, view.width, first + std::abs(by)};
    return {shown, {0, below ? shown.top : 0, view.width, below ? content : shown.bottom}};
}

std::vector<int> glideOfNotches(int notches, const ScrollRange& range, int smallChange) {
    constexpr int shownSteps = 8;
    const bool down = notches < 0;
    const double stride = smallChange / 2.0 + range.LargeChange / 80.0;
    const int bound = down ? range.Max : range.Min;
    const auto stepFrom = [&](int value) {
        const auto next = static_cast<int>(RoundHalfAway(down ? value - stride : value + stride));
        return down ? std::max(next, bound) : std::min(next, bound);
    };
    std::vector<int> values;
    int value = range.Value;
    for (int shown = 0; notches != 0 && shown < shownSteps && value != bound; ++shown) {
        for (int i = 0; i < std::abs(notches) && value != bound; ++i) {
            value = stepFrom(value);
        }
        values.push_back(value);
    }
    return values;
}

void glide(std::span<const int> values, const std::function<bool()>& isLate,
           const std::function<void(int value)>& show) {
    while (!values.empty()) {
        values = isLate() ? values.last(1) : values;
        show(values.front());
        values = values.subspan(1);
    }
}

}  // namespace ormala
