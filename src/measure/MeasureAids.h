#pragma once

#include <optional>
#include <string>

#include "measure/MeasureGrips.h"
#include "scene/DirtyRegion.h"
#include "toolkit/DragReadOut.h"
#include "toolkit/SnapRing.h"

namespace ormala {

/// What a drag shows beside the lines: a reference line from the place where a middle or the common
/// point was at the press, the read-out, and a ring around what it has snapped to. Owned by the
/// tool; shows nothing between drags.
class MeasureAids {
  public:
    /// A drag of `grip` begins. `line` says whether reference lines are wanted.
    void begin(MeasureGrip grip, Color color, const MeasureState& state, bool line);
    /// The lines have moved; the grip stands at `at` now.
    void update(const MeasureState& state, const Point& at, PixelSize sheet,
                const TextMeter& meter);
    void setText(std::string text, const TextMeter& meter);
    /// What the drag has snapped to carries a ring; nothing for none.
    void setRing(const std::optional<Point>& place, const SheetScale& scale) {
        ring_.show(place, color_, scale);
    }
    void hide();

    [[nodiscard]] const SnapRing& ring() const { return ring_; }
    [[nodiscard]] const ctlLabel& lblInfo() const { return info_.label(); }
    [[nodiscard]] const std::optional<Line>& lineHelper() const { return line_; }

    /// The line lies beneath the grips, ring and read-out above them.
    void drawBelowGrips(Canvas& canvas) const;
    void drawAboveGrips(Canvas& canvas) const;
    void addTo(DirtyRegion& region, const PixelRect& area) const;

  private:
    [[nodiscard]] Pen pen() const { return {color_, 2}; }

    MeasureGrip grip_ = MeasureGrip::intersect;
    Color color_ = 0;
    std::optional<Line> line_;
    DragReadOut info_;
    SnapRing ring_;
};

}  // namespace ormala
