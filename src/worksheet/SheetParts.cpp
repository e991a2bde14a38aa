#include "worksheet/SheetParts.h"

#include <algorithm>
#include <utility>

namespace ormala {

namespace {

/// The foremost tool that `meets` is true for.
template <typename Meets>
OverlayItem* foremost(const Sheet& sheet, Meets&& meets) {
    const auto& order = sheet.zOrder();
    const auto at = std::find_if(order.rbegin(), order.rend(), [&](OverlayItem* item) {
        return sheet.isVisible(*item) && meets(*item);
    });
    return at == order.rend() ? nullptr : *at;
}

/// The later ones lie above the earlier ones.
int gripAt(const std::vector<SpokenGrip>& grips, PixelPoint point) {
    const auto at = std::find_if(grips.rbegin(), grips.rend(), [point](const SpokenGrip& grip) {
        return grip.place.contains(point);
    });
    return static_cast<int>(grips.rend() - at);
}

}  // namespace

std::vector<int> SheetParts::tools() const {
    std::vector<int> ids;
    for (const Sheet::Shown& tool : sheet_.shown()) {
        ids.push_back(tool.id);
    }
    return ids;
}

std::optional<Sheet::Shown> SheetParts::find(int tool) const {
    const auto shown = sheet_.shown();
    const auto at = std::ranges::find(shown, tool, &Sheet::Shown::id);
    return at == shown.end() ? std::nullopt : std::optional(*at);
}

int SheetParts::idOf(const OverlayItem* item) const {
    const auto shown = sheet_.shown();
    const auto at = std::ranges::find(shown, item, &Sheet::Shown::item);
    return at == shown.end() ? 0 : at->id;
}

std::optional<AccessiblePart> SheetParts::part(PartId id) const {
    const auto tool = find(id.tool);
    if (!tool) {
        return std::nullopt;
    }
    if (id.grip == 0) {
        return toolPart(*tool);
    }
    auto grips = tool->item->control().spokenGrips(tool->ordinal);
    if (id.grip < 0 || static_cast<std::size_t>(id.grip) > grips.size()) {
        return std::nullopt;
    }
    SpokenGrip& grip = grips[static_cast<std::size_t>(id.grip) - 1];
    AccessiblePart part;
    part.name = std::move(grip.name);
    part.value = std::move(grip.value);
    part.place = grip.place;
    part.pressed = grip.held;
    return part;
}

AccessiblePart SheetParts::toolPart(const Sheet::Shown& tool) const {
    const ToolControl& control = tool.item->control();
    SpokenTool words = control.spoken(tool.ordinal);
    AccessiblePart part;
    part.name = std::move(words.name);
    part.value = std::move(words.value);
    part.description = std::move(words.description);
    part.place = tool.item->footprint().bounds();
    part.parts = words.grips;
    part.focusable = sheet_.EditMode();
    part.focused = tool.item == sheet_.toolWithKeyboard();
    part.selected = control.Selected();
    return part;
}

PartId SheetParts::partAt(PixelPoint point) const {
    const OverlayItem* gripped = foremost(
        sheet_, [point](const OverlayItem& item) { return item.HitTest(point.x, point.y); });
    const OverlayItem* found =
        gripped != nullptr ? gripped : foremost(sheet_, [point](const OverlayItem& item) {
            return item.footprint().bounds().contains(point);
        });
    const auto tool = find(idOf(found));
    if (!tool) {
        return {};
    }
    return {tool->id, gripAt(tool->item->control().spokenGrips(tool->ordinal), point)};
}

int SheetParts::focusedTool() const {
    return idOf(sheet_.toolWithKeyboard());
}

int SheetParts::selectedTool() const {
    return idOf(sheet_.selected());
}

bool SheetParts::choose(int tool, bool focus) {
    const auto chosen = find(tool);
    if (!chosen || !sheet_.EditMode()) {
        return false;
    }
    if (focus) {
        sheet_.giveFocus(*chosen->item);
    }
    sheet_.SelectControl(*chosen->item);
    return true;
}

}  // namespace ormala
