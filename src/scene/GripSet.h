#pragma once

#include <functional>
#include <optional>
#include <span>
#include <vector>

#include "scene/DirtyRegion.h"
#include "scene/Grip.h"

namespace ormala {

enum class HoverMode { hover, press, release };

/// One mouse position as the grips see it.
struct HoverInput {
    double x = 0;
    double y = 0;
    HoverMode mode = HoverMode::hover;
    /// The event comes from this tool or from the worksheet, not from another tool.
    bool ours = true;
    /// Something else than this tool holds the mouse.
    bool mouseHeldElsewhere = false;
};

/// For each grip the items that come to the front when it grows, the last one ending on top. Items
/// are numbered: first the grips, then what else of the tool lies among them, such as its lines.
using ForwardOrder = std::vector<std::vector<int>>;

/// A tool's grips in their control order, with the one that is being dragged and their stacking.
class GripSet {
  public:
    /// Each grip comes to the front alone.
    explicit GripSet(std::vector<Grip> grips);
    /// `forward` tells for each grip; `others` items lie beneath the grips at first.
    GripSet(std::vector<Grip> grips, ForwardOrder forward, int others);

    /// Lets the grip under the mouse grow and the others shrink, so that display, tip and press
    /// agree on one grip. Returns its index; the pixels of every grip that changes go to `changed`.
    std::optional<int> update(const HoverInput& input, DirtyRegion& changed);

    /// Gives all grips their sizes at that resolution. Whether it is another one; the grips have to
    /// be placed then.
    bool setScale(const SheetScale& scale);

    [[nodiscard]] std::optional<int> active() const { return active_; }
    void setActive(std::optional<int> index) { active_ = index; }

    [[nodiscard]] int count() const { return static_cast<int>(grips_.size()); }
    [[nodiscard]] const Grip& operator[](int index) const;
    void place(int index, const Point& point);
    void setVisible(bool visible);
    /// A grip that is hidden is at rest when it comes back, and is held no longer.
    void setTag(int index, GripTag tag);
    /// The border of every grip by its own colours; grey without focus and selection.
    void setBorderColors(bool focus, bool selected);

    /// Only the grips take the mouse; every other point belongs to what lies below.
    [[nodiscard]] bool HitTest(double x, double y) const;

    void draw(Canvas& canvas) const;
    /// With the other items, numbered from 0, where they lie among the grips.
    void draw(Canvas& canvas, const std::function<void(int)>& drawOther) const;
    void addTo(DirtyRegion& region) const;
    /// Grows with each change of order that moves the other items, which `update` cannot report.
    [[nodiscard]] unsigned restackings() const { return restackings_; }

  private:
    [[nodiscard]] std::optional<int> nearest(double x, double y) const;
    [[nodiscard]] std::optional<int> hitOf(const HoverInput& input) const;
    void applyHover(int index, bool hit, HoverMode mode);
    [[nodiscard]] Grip& at(int index);
    void raise(int index);
    void bringForward(std::span<const int> items);

    std::vector<Grip> grips_;
    /// Indices from the lowest to the uppermost.
    std::vector<int> stacking_;
    ForwardOrder forward_;
    unsigned restackings_ = 0;
    std::optional<int> active_;
    SheetScale scale_;
};

}  // namespace ormala
