#include "toolkit/win/PanelSupply.h"

#include <algorithm>

namespace ormala {

namespace {

/// Milliseconds without anything to do, about: a timer comes when the queue is empty.
constexpr UINT restInterval = 15;

}  // namespace

std::vector<PanelInList> PanelSupply::places() const {
    std::vector<PanelInList> found;
    found.reserve(ports_.panels.size());
    const HeldWindows held;
    for (const PanelWindow* panel : ports_.panels) {
        const RECT place = panel->rectangle();
        const bool equipped = panel->isEquipped();
        found.push_back({static_cast<int>(place.top), static_cast<int>(place.bottom),
                         panel->isVisible(), equipped, equipped && panel->holds(held)});
    }
    return found;
}

/// What a panel gives back the next one takes.
PanelChanges PanelSupply::change() const {
    const RECT view = ports_.list.rectangle();
    PanelChanges changes =
        panelsAtHand(places(), static_cast<int>(view.top), static_cast<int>(view.bottom));
    if (IsWindowEnabled(GetAncestor(ports_.list.handle(), GA_ROOT)) == FALSE) {
        // The button that has opened a dialog gets the focus back.
        changes.strip.clear();
    }
    for (const std::size_t number : changes.strip) {
        ports_.panels[number]->strip();
    }
    for (const std::size_t number : changes.equip) {
        ports_.panels[number]->equip();
    }
    return changes;
}

void PanelSupply::update() {
    if (ports_.list.isVisible()) {
        waitForRest(change());
    }
}

void PanelSupply::waitForRest(const PanelChanges& changes) {
    const bool hasWork = changes.prepare || ports_.store.hasTooMany();
    timer_.keep(window_, hasWork ? restInterval : 0);
}

void PanelSupply::onTimer(UINT_PTR timer) {
    if (timer != timer_.number()) {
        return;
    }
    if (!ports_.list.isVisible()) {
        timer_.stop();
        return;
    }
    const PanelChanges changes = change();
    if (changes.prepare) {
        ports_.panels[*changes.prepare]->equip();
    } else {
        ports_.store.thinOut();
    }
    waitForRest(changes);
}

void PanelSupply::prepareTab(HWND focus, bool backwards) const {
    const auto& panels = ports_.panels;
    const auto at = std::ranges::find_if(panels, [focus](const PanelWindow* panel) {
        return panel->handle() == focus || IsChild(panel->handle(), focus) != FALSE;
    });
    std::optional<std::size_t> focused;
    if (at != panels.end()) {
        focused = static_cast<std::size_t>(at - panels.begin());
    }
    for (const std::size_t number : panelsWithinTab(places(), focused, backwards)) {
        panels[number]->equip();
    }
}

}  // namespace ormala
