#include "toolkit/panelsAtHand.h"

#include <algorithm>
#include <iterator>

namespace ormala {

namespace {

/// The numbers of those in use, from top to bottom.
std::vector<std::size_t> inOrder(std::span<const PanelInList> panels) {
    std::vector<std::size_t> order;
    for (std::size_t number = 0; number < panels.size(); ++number) {
        if (panels[number].used) {
            order.push_back(number);
        }
    }
    std::ranges::stable_sort(order, {}, [&](std::size_t number) { return panels[number].top; });
    return order;
}

/// What lies right above and below those that can be seen.
std::vector<std::size_t> neighboursOfSeen(std::span<const std::size_t> order,
                                          const std::vector<bool>& seen) {
    std::vector<std::size_t> found;
    for (std::size_t place = 0; place < order.size(); ++place) {
        const bool above = place + 1 < order.size() && seen[order[place + 1]];
        const bool below = place > 0 && seen[order[place - 1]];
        if (!seen[order[place]] && (above || below)) {
            found.push_back(order[place]);
        }
    }
    return found;
}

}  // namespace

PanelChanges panelsAtHand(std::span<const PanelInList> panels, int viewTop, int viewBottom) {
    const std::vector<std::size_t> order = inOrder(panels);
    std::vector<bool> wanted(panels.size());
    PanelChanges changes;
    for (const std::size_t number : order) {
        const PanelInList& panel = panels[number];
        wanted[number] = panel.top < viewBottom && panel.bottom > viewTop;
        if (wanted[number] && !panel.equipped) {
            changes.equip.push_back(number);
        }
    }
    for (const std::size_t number : neighboursOfSeen(order, std::vector<bool>(wanted))) {
        wanted[number] = true;
        // The way down is the more frequent one.
        if (!panels[number].equipped) {
            changes.prepare = number;
        }
    }
    for (std::size_t number = 0; number < panels.size(); ++number) {
        if (panels[number].equipped && !panels[number].held && !wanted[number]) {
            changes.strip.push_back(number);
        }
    }
    return changes;
}

std::vector<std::size_t> panelsWithinTab(std::span<const PanelInList> panels,
                                         std::optional<std::size_t> focused, bool backwards) {
    std::vector<std::size_t> order = inOrder(panels);
    if (backwards) {
        std::ranges::reverse(order);
    }
    const auto at = focused ? std::ranges::find(order, *focused) : order.end();
    const auto first = at != order.end() ? at : order.begin();
    const auto most = at != order.end() ? 2 : 1;
    return {first, first + std::min<std::ptrdiff_t>(most, order.end() - first)};
}

}  // namespace ormala
