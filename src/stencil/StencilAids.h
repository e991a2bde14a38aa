#pragma once

#include <array>
#include <optional>
#include <string>

#include "scene/DirtyRegion.h"
#include "scene/ToolControl.h"
#include "stencil/StencilGrips.h"
#include "toolkit/DragReadOut.h"
#include "toolkit/SnapRing.h"

namespace ormala {

/// What a drag shows beside the stencil itself: reference lines, the circle that the rotate grips
/// run on, the read-out, and a ring around what it has snapped to. Owned by the stencil; shows
/// nothing between drags.
class StencilAids {
  public:
    /// The sheet's client area and, from its diagonal, the half length of the reference lines.
    void resize(PixelSize sheet);

    /// A drag of `grip` begins. `lines` says whether reference lines are wanted.
    void begin(StencilGrip grip, const Grip& look, const StencilState& state, bool lines);
    /// The grip stands at `at` now.
    void update(const StencilState& state, const Point& at, const TextMeter& meter);
    void setText(std::string text, const TextMeter& meter);
    /// What the drag has snapped to carries a ring; nothing for none.
    void setRing(const std::optional<Point>& place, const SheetScale& scale) {
        ring_.show(place, color_, scale);
    }
    void hide();

    [[nodiscard]] const SnapRing& ring() const { return ring_; }
    [[nodiscard]] const ctlLabel& lblInfo() const { return info_.label(); }
    [[nodiscard]] const std::array<std::optional<Line>, 3>& lineHelper() const { return lines_; }
    [[nodiscard]] const std::optional<PixelRect>& shpCircle() const { return circle_; }

    /// Lines and circle lie beneath the grips, ring and read-out above them.
    void drawBelowGrips(Canvas& canvas) const;
    void drawAboveGrips(Canvas& canvas) const;
    void addTo(DirtyRegion& region, const PixelRect& area) const;

  private:
    void showCircle(const StencilState& state);
    /// Both ways from the centre, in the direction of `angle`.
    [[nodiscard]] Line axis(const Point& center, double angle) const;

    StencilGrip grip_;
    Color color_ = 0;
    bool wanted_ = false;
    Point pressCenter_;
    PixelSize sheet_;
    double referenceLength_ = 0;
    std::array<std::optional<Line>, 3> lines_;
    std::optional<PixelRect> circle_;
    DragReadOut info_;
    SnapRing ring_;
};

}  // namespace ormala
