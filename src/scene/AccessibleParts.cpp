#include "scene/AccessibleParts.h"

#include <algorithm>

namespace ormala {

namespace {

int countOf(const AccessibleParts& parts, PartId part) {
    if (part == PartId{}) {
        return static_cast<int>(parts.tools().size());
    }
    const auto known = parts.part(part);
    return known ? known->parts : 0;
}

/// From 1; 0 for what is not shown.
int numberOf(const AccessibleParts& parts, PartId part) {
    if (part.grip != 0) {
        return part.grip;
    }
    const auto shown = parts.tools();
    const auto at = std::ranges::find(shown, part.tool);
    return at == shown.end() ? 0 : static_cast<int>(at - shown.begin()) + 1;
}

}  // namespace

std::optional<PartId> childOf(const AccessibleParts& parts, PartId part, int number) {
    if (number == 0) {
        return part;
    }
    if (part.tool != 0) {
        const bool there = part.grip == 0 && number > 0 && number <= countOf(parts, part);
        return there ? std::optional<PartId>({part.tool, number}) : std::nullopt;
    }
    const auto shown = parts.tools();
    if (number < 0) {
        const bool there = std::ranges::find(shown, -number) != shown.end();
        return there ? std::optional<PartId>({-number, 0}) : std::nullopt;
    }
    const auto at = static_cast<std::size_t>(number) - 1;
    return at < shown.size() ? std::optional<PartId>({shown[at], 0}) : std::nullopt;
}

std::optional<PartId> neighbourOf(const AccessibleParts& parts, PartId part, PartStep step) {
    const bool downwards = step == PartStep::firstChild || step == PartStep::lastChild;
    const PartId parent = downwards ? part : PartId{part.grip != 0 ? part.tool : 0, 0};
    const int last = countOf(parts, parent);
    int number = step == PartStep::firstChild ? 1 : last;
    if (!downwards) {
        const int now = part == PartId{} ? 0 : numberOf(parts, part);
        if (now == 0) {
            return std::nullopt;
        }
        number = now + (step == PartStep::next ? 1 : -1);
    }
    const bool there = number >= 1 && number <= last;
    return there ? childOf(parts, parent, number) : std::nullopt;
}

}  // namespace ormala
