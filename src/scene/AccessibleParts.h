#pragma once

#include <optional>
#include <string>
#include <vector>

#include "modAPI/PixelRect.h"

namespace ormala {

/// What of a window is meant: all of it, a tool, or a grip of a tool.
struct PartId {
    /// Never that of another tool, also when the tool is gone; 0 for the whole window.
    int tool = 0;
    /// Counted from 1 among those that the tool shows; 0 for the tool.
    int grip = 0;

    bool operator==(const PartId&) const = default;
};

/// What a screen reader is told of a tool or a grip, in the user's language.
struct AccessiblePart {
    std::string name;
    std::string value;
    std::string description;
    /// In client pixels of the window.
    PixelRect place;
    /// How many parts it has itself.
    int parts = 0;
    bool focusable = false;
    bool focused = false;
    bool selected = false;
    /// The mouse holds it.
    bool pressed = false;

    bool operator==(const AccessiblePart&) const = default;
};

/// The parts of a window that are no windows themselves.
class AccessibleParts {
  public:
    virtual ~AccessibleParts() = default;

    /// Those that are shown, in the order of the Tab key.
    [[nodiscard]] virtual std::vector<int> tools() const = 0;
    /// Nothing for what isn't shown or does not exist any more, and for the whole.
    [[nodiscard]] virtual std::optional<AccessiblePart> part(PartId id) const = 0;
    /// The foremost one at a point in client pixels; the whole if there is none.
    [[nodiscard]] virtual PartId partAt(PixelPoint point) const = 0;
    /// The tool that has the keyboard, and the selected one; 0 for none.
    [[nodiscard]] virtual int focusedTool() const = 0;
    [[nodiscard]] virtual int selectedTool() const = 0;
    /// Selects a tool, with `focus` for the keys too; the window has the keyboard already. False if
    /// that can't be now.
    virtual bool choose(int tool, bool focus) = 0;
};

/// Nothing if a part has no such child: 0 means the part itself, n the n-th one, and -n the tool
/// whose id is n.
std::optional<PartId> childOf(const AccessibleParts& parts, PartId part, int number);

enum class PartStep { next, previous, firstChild, lastChild };

/// Nothing at the end of the row.
std::optional<PartId> neighbourOf(const AccessibleParts& parts, PartId part, PartStep step);

}  // namespace ormala
