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
    if (pairs_.size() >= largestCount) {
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
    ports_.sheet.setVisible(pair.panel().RefControlControl(), true);
    colors_.NextDefaultToolColor(static_cast<int>(kind), true);
    return &pair;
}

ToolList::Pair* ToolList::makePair(ToolKind kind, std::optional<ToolChanges>& changes) {
    OverlayItem* tool = ports_.sheet.AddNewControl(static_cast<int>(kind), changes);
    return tool == nullptr ? nullptr : &append(kind, false, *tool);
}

void ToolList::setUpLook(ToolKind kind, SettingControl& panel) {
    panel.setDefaultLook(colors_);
    if (kind == ToolKind::measurement) {
        panel.setNumber(NextFreeMeasureNumber());
    }
    ArrangePanels();
}

void ToolList::RemovePanel(const SettingControl& panel) {
    const auto at =
        std::ranges::find_if(pairs_, [&](const Pair& pair) { return &pair.panel() == &panel; });
    if (at == pairs_.end()) {
        return;
    }
    OverlayItem& tool = at->panel().RefControlControl();
    if (at->first) {
        ports_.sheet.RemoveControl(tool);
        // No hidden tool is the selected one.
        at->panel().setSelected(false);
        at->listed->setVisible(false);
        at->panel().setHidden(true);
    } else {
        // The panel goes before the tool that it watches, and is out of the list before it goes.
        std::unique_ptr<ListedPanel> listed = std::move(at->listed);
        pairs_.erase(at);
        listed.reset();
        ports_.sheet.RemoveControl(tool);
    }
    ArrangePanels();
}

void ToolList::RemoveAllTools() {
    for (const Entry& entry : GetPanelsInVisualOrder()) {
        RemovePanel(entry.listed.panel());
        ports_.view.refresh();
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
