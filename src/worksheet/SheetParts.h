#pragma once

#include "scene/AccessibleParts.h"
#include "worksheet/Sheet.h"

namespace ormala {

/// The worksheet for those who can't see it: the visible tools with their grips.
class SheetParts : public AccessibleParts {
  public:
    /// The sheet must outlive it.
    explicit SheetParts(Sheet& sheet) : sheet_(sheet) {}

    [[nodiscard]] std::vector<int> tools() const override;
    [[nodiscard]] std::optional<AccessiblePart> part(PartId id) const override;
    [[nodiscard]] PartId partAt(PixelPoint point) const override;
    [[nodiscard]] int focusedTool() const override;
    [[nodiscard]] int selectedTool() const override;
    bool choose(int tool, bool focus) override;

  private:
    [[nodiscard]] std::optional<Sheet::Shown> find(int tool) const;
    [[nodiscard]] int idOf(const OverlayItem* item) const;
    [[nodiscard]] AccessiblePart toolPart(const Sheet::Shown& tool) const;

    Sheet& sheet_;
};

}  // namespace ormala
