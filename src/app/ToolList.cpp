#include "app/ToolList.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "language/MlStringModule.h"

namespace ormala {

namespace {

constexpr int stencilKind = static_cast<int>(ToolKind::stencil);
constexpr int measurementKind = static_cast<int>(ToolKind::measurement);

}  // namespace

ToolList::Pair& ToolList::append(ToolKind kind, bool first, OverlayItem& tool) {
    return pairs_.emplace_back(Pair{kind, first, ports_.panels.makePanel(kind, tool)});
}

void ToolList::prepareFirstTools() {
    prepareFirst(ToolKind::stencil);
    prepareFirst(ToolKind::measurement);
    ArrangePanels();
}

void ToolList::prepareFirst(ToolKind kind) {
    ports_.sheet.makeFirstControl(kind);
    OverlayItem* tool = ports_.sheet.GetFirstControl(static_cast<int>(kind));
    if (tool == nullptr) {
        return;
    }
    const ToolChanges changes(tool->control());
    const Pair& pair = append(kind, true, *tool);
    SettingControl& panel = pair.panel();
    const bool measures = kind == ToolKind::measurement;
    panel.setDefaultLook(colors_);
    panel.setNumber(measures ? 1 : 0);
    panel.SetDefaultProperties();
    panel.setUnits(ports_.units);
    panel.CenterToScreen(measures ? NextToolSize() : 0);
    panel.finish();
    pair.listed->setVisible(true);
}

void ToolList::showFirstTools() {
    for (const Pair& pair : pairs_) {
        if (pair.first) {
            ports_.sheet.setVisible(pair.panel().RefControlControl(), true);
        }
    }
}

int ToolList::countOf(ToolKind kind) const {
    return static_cast<int>(std::ranges::count(pairs_, kind, &Pair::kind));
}

SettingControl* ToolList::AddNewControl(int Kind,
                                        const std::function<void(SettingControl&)>& fill) {
    if (!replacing_) {
        dropRemoved();
    }
    if (count() >= largestCount) {
        ports_.messages.showError(
            MlString(302, "The maximum number of tools (33) has been reached."));
        return nullptr;
    }
    if (Kind != stencilKind && Kind != measurementKind) {
        return nullptr;
    }
    const auto kind = static_cast<ToolKind>(Kind);
    std::optional<ToolChanges> changes;
    Pair* pair = reuseFirst(kind, changes);
    if (pair == nullptr) {
        pair = makePair(kind, changes);
    }
    if (pair == nullptr) {
        return nullptr;
    }
    ListedPanel& listed = *pair->listed;
    SettingControl& panel = listed.panel();
    setUpLook(kind, panel);
    ports_.sheet.SelectControl(panel.RefControlControl());
    panel.SetDefaultProperties();
    if (const SettingControl* former = LastVisiblePanel(kind)) {
        panel.inherit(former->habits());
    }
    panel.setPause(false);
    panel.setUnits(ports_.units);
    panel.CenterToScreen(NextToolSize());
    panel.finish();
    listed.setVisible(true);
    if (fill) {
        fill(panel);
    }
    return &panel;
}

/// The first pair of its kind, if it is the only one and not in use. It joins the list at its end,
/// so that a set of tools comes back from its file in the order that it had.
ToolList::Pair* ToolList::reuseFirst(ToolKind kind, std::optional<ToolChanges>& changes) {
    const auto at = std::ranges::find(pairs_, kind, &Pair::kind);
    if (at == pairs_.end() || !at->panel().Hidden() || countOf(kind) != 1) {
        return nullptr;
    }
    std::rotate(at, at + 1, pairs_.end());
    Pair& pair = pairs_.back();
    changes.emplace(pair.panel().RefControlControl().control());
    pair.listed->setVisible(true);
    // So that the search for a free number doesn't find it.
    pair.panel().setNumber(0);
    pair.panel().setHidden(false);
    ports_.sheet.takeBack(pair.panel().RefControlControl(), true);
    colors_.NextDefaultToolColor(static_cast<int>(kind), true);
    return &pair;
}

/// A first pair if the former one may come back and no other of its kind is there.
ToolList::Pair* ToolList::makePair(ToolKind kind, std::optional<ToolChanges>& changes) {
    OverlayItem* tool = ports_.sheet.AddNewControl(static_cast<int>(kind), changes);
    if (tool == nullptr) {
        return nullptr;
    }
    const bool first = hasFirst(removed_.pairs, kind) && countOf(kind) == 0;
    if (first) {
        colors_.NextDefaultToolColor(static_cast<int>(kind), true);
    }
    return &append(kind, first, *tool);
}

void ToolList::setUpLook(ToolKind kind, SettingControl& panel) {
    panel.setDefaultLook(colors_);
    if (kind == ToolKind::measurement) {
        panel.setNumber(NextFreeMeasureNumber());
    }
    ArrangePanels();
}

std::size_t ToolList::Removed::placeOf(const Pair& pair) const {
    const auto at = std::ranges::find(places, pair.listed.get(), &Place::listed);
    return static_cast<std::size_t>(at - places.begin());
}

bool ToolList::Removed::hadShown(const Pair& pair) const {
    const std::size_t place = placeOf(pair);
    return place < places.size() && places[place].shown;
}

bool ToolList::hasFirst(const Pairs& pairs, ToolKind kind) {
    return std::ranges::any_of(
        pairs, [kind](const Pair& pair) { return pair.first && pair.kind == kind; });
}

/// First pairs count whether they are in use or not, and also while none has replaced a removed
/// one.
std::size_t ToolList::count() const {
    const auto missing = std::ranges::count_if(removed_.pairs, [this](const Pair& pair) {
        return pair.first && !hasFirst(pairs_, pair.kind);
    });
    return pairs_.size() + static_cast<std::size_t>(missing);
}

void ToolList::hide(const Pair& pair) {
    ports_.sheet.putAside(pair.panel().RefControlControl());
    // No hidden tool is the selected one.
    pair.panel().setSelected(false);
    pair.listed->setVisible(false);
    pair.panel().setHidden(true);
}

void ToolList::show(const Pair& pair) {
    pair.panel().setHidden(false);
    pair.listed->setVisible(true);
    ports_.sheet.takeBack(pair.panel().RefControlControl(), !pair.panel().Pause());
}

/// The panel goes before the tool that it watches, and is out of the list before it goes.
void ToolList::destroy(Pair pair) {
    const OverlayItem& tool = pair.panel().RefControlControl();
    pair.listed.reset();
    ports_.sheet.RemoveControl(tool);
}

void ToolList::beginRemoval() {
    dropRemoved();
    for (const Pair& pair : pairs_) {
        removed_.places.push_back({pair.listed.get(), !pair.panel().Hidden()});
    }
}

void ToolList::takeOut(Pairs::iterator at) {
    if (at->panel().Selected()) {
        removed_.selected = at->listed.get();
    }
    hide(*at);
    removed_.pairs.push_back(std::move(*at));
    pairs_.erase(at);
}

void ToolList::RemovePanel(const SettingControl& panel) {
    const auto at =
        std::ranges::find_if(pairs_, [&](const Pair& pair) { return &pair.panel() == &panel; });
    if (at == pairs_.end() || panel.Hidden()) {
        return;
    }
    const auto index = at - pairs_.begin();
    beginRemoval();
    const auto again = pairs_.begin() + index;
    removed_.selected = again->listed.get();
    takeOut(again);
    ArrangePanels();
}

void ToolList::RemoveAllTools() {
    beginRemoval();
    for (const Entry& entry : GetPanelsInVisualOrder()) {
        takeOut(std::ranges::find_if(
            pairs_, [&](const Pair& pair) { return pair.listed.get() == &entry.listed; }));
        ArrangePanels();
        ports_.view.refresh();
    }
}

void ToolList::dropRemoved() {
    Removed removed = std::exchange(removed_, {});
    for (Pair& pair : removed.pairs) {
        if (pair.first && !hasFirst(pairs_, pair.kind)) {
            pairs_.push_back(std::move(pair));
        } else {
            destroy(std::move(pair));
        }
    }
}

/// A first pair that was not in use before is out of use again.
void ToolList::removeReplacements(const Removed& removed) {
    const auto come = std::stable_partition(pairs_.begin(), pairs_.end(), [&](const Pair& pair) {
        return removed.placeOf(pair) < removed.places.size();
    });
    Pairs gone(std::make_move_iterator(come), std::make_move_iterator(pairs_.end()));
    pairs_.erase(come, pairs_.end());
    for (const Pair& pair : pairs_) {
        if (!removed.hadShown(pair)) {
            hide(pair);
        }
    }
    for (Pair& pair : gone) {
        destroy(std::move(pair));
    }
}

void ToolList::bringBack() {
    Removed removed = std::exchange(removed_, {});
    if (removed.pairs.empty()) {
        return;
    }
    const bool hadPanels = !GetPanelsInVisualOrder().empty();
    removeReplacements(removed);
    if (hadPanels && GetPanelsInVisualOrder().empty()) {
        // A set that goes is told by itself: one of the same height would change the window's.
        ArrangePanels();
    }
    OverlayItem* selected = nullptr;
    for (Pair& pair : removed.pairs) {
        show(pair);
        if (pair.listed.get() == removed.selected) {
            selected = &pair.panel().RefControlControl();
        }
        pairs_.push_back(std::move(pair));
    }
    std::ranges::stable_sort(pairs_, {}, [&](const Pair& pair) { return removed.placeOf(pair); });
    ArrangePanels();
    if (selected != nullptr) {
        ports_.sheet.SelectControl(*selected);
        ports_.sheet.giveFreeFocusToSelectedControl();
    }
}

std::vector<ToolList::Entry> ToolList::GetPanelsInVisualOrder() const {
    std::vector<const Pair*> shown;
    for (const Pair& pair : pairs_) {
        if (!pair.panel().Hidden()) {
            shown.push_back(&pair);
        }
    }
    std::ranges::stable_sort(shown, {}, [](const Pair* pair) { return pair->listed->top(); });
    std::vector<Entry> entries;
    entries.reserve(shown.size());
    for (const Pair* pair : shown) {
        entries.push_back({pair->kind, *pair->listed});
    }
    return entries;
}

std::string ToolList::keysText() const {
    std::string text;
    for (const Entry& entry : GetPanelsInVisualOrder()) {
        text.append(std::to_string(static_cast<int>(entry.kind))).append("\n");
        text.append(entry.listed.panel().keysText());
    }
    return text;
}

SettingControl* ToolList::panelOf(const OverlayItem* tool) const {
    const auto at = std::ranges::find_if(pairs_, [tool](const Pair& pair) {
        return !pair.panel().Hidden() && &pair.panel().RefControlControl() == tool;
    });
    return at == pairs_.end() ? nullptr : &at->panel();
}

SettingControl* ToolList::panelBeside(const SettingControl* panel, int places) const {
    const auto shown = GetPanelsInVisualOrder();
    if (shown.empty()) {
        return nullptr;
    }
    const auto placeOf = [&shown](auto which) {
        return std::ranges::find_if(
                   shown, [&](const Entry& entry) { return which(entry.listed.panel()); }) -
               shown.begin();
    };
    const auto count = std::ssize(shown);
    const auto from = placeOf([panel](const SettingControl& each) { return &each == panel; });
    auto to = (from + places + count) % count;
    if (from == count) {
        // The first one, if none is selected.
        to = placeOf([](const SettingControl& each) { return each.Selected(); }) % count;
    }
    return &shown[static_cast<std::size_t>(to)].listed.panel();
}

SettingControl* ToolList::successorOf(const SettingControl& panel) const {
    const auto shown = GetPanelsInVisualOrder();
    const auto at = std::ranges::find_if(
        shown, [&](const Entry& entry) { return &entry.listed.panel() == &panel; });
    if (at == shown.end() || shown.size() == 1) {
        return nullptr;
    }
    const bool isLast = std::next(at) == shown.end();
    return &(isLast ? std::prev(at) : std::next(at))->listed.panel();
}

void ToolList::showTextsAnew() {
    for (const Pairs* pairs : {&pairs_, &removed_.pairs}) {
        for (const Pair& pair : *pairs) {
            pair.panel().showTextsAnew();
        }
    }
}

void ToolList::ArrangePanels() {
    int y = 0;
    for (const Pair& pair : pairs_) {
        if (!pair.panel().Hidden()) {
            pair.listed->setTop(y);
            y += pair.listed->height();
        }
    }
    ports_.view.UpdatePanelLayout(true, false);
}

int ToolList::contentHeight() const {
    const auto shown = GetPanelsInVisualOrder();
    return shown.empty() ? 0 : shown.back().listed.top() + shown.back().listed.height();
}

int ToolList::NextFreeMeasureNumber() const {
    constexpr int largestNumber = 1111;
    std::vector<bool> taken(largestNumber + 1);
    for (const Pair& pair : pairs_) {
        if (pair.kind == ToolKind::measurement && !pair.panel().Hidden()) {
            const int used = pair.panel().Number();
            taken[used > 0 && used <= largestNumber ? static_cast<std::size_t>(used) : 0] = true;
        }
    }
    const auto free = std::find(taken.begin() + 1, taken.end(), false);
    return free == taken.end() ? 0 : static_cast<int>(free - taken.begin());
}

SettingControl* ToolList::LastVisiblePanel(ToolKind kind) const {
    const auto at = std::find_if(pairs_.rbegin(), pairs_.rend(), [kind](const Pair& pair) {
        return pair.kind == kind && pair.listed->visible();
    });
    return at == pairs_.rend() ? nullptr : &at->panel();
}

double ToolList::NextToolSize() {
    return sizes_.NextToolSize(ports_.sheet.size());
}

}  // namespace ormala
