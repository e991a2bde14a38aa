#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

// Only the panels that can be seen, and those that may be seen next, have their controls.

namespace ormala {

/// A panel of a list. All places are pixels from the same line.
struct PanelInList {
    int top = 0;
    int bottom = 0;
    /// One that is not in use is as good as not there.
    bool used = true;
    bool equipped = false;
    /// The user works on it.
    bool held = false;
};

/// Which panels get controls, and which give theirs back; all by their numbers.
struct PanelChanges {
    std::vector<std::size_t> strip;
    /// Can be seen: they get theirs before anything is painted.
    std::vector<std::size_t> equip;
    /// Lies beside those that can be seen and has none: gets them when nothing else is to be done.
    std::optional<std::size_t> prepare;

    bool operator==(const PanelChanges&) const = default;
};

/// The panels may come in any order; the list shows what lies between the two heights.
PanelChanges panelsAtHand(std::span<const PanelInList> panels, int viewTop, int viewBottom);

/// The panels that the Tab key may go to: in that one that has the focus, or past it. Without one
/// the key may enter the list at its beginning, or backwards at its end.
std::vector<std::size_t> panelsWithinTab(std::span<const PanelInList> panels,
                                         std::optional<std::size_t> focused, bool backwards);

}  // namespace ormala
