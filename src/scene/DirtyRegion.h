#pragma once

#include <span>
#include <vector>

#include "modAPI/PixelRect.h"
#include "modAPI/points.h"
#include "scene/Canvas.h"

namespace ormala {

/// The pixels that something covers, as a list of rectangles that may overlap. Kept between
/// changes, so that the place that was left and the place that was taken are both repainted.
class DirtyRegion {
  public:
    void clear() { rects_.clear(); }
    void add(const PixelRect& rect);
    void add(const DirtyRegion& other);
    /// A long slanted stroke is added piece by piece: its one bounding box could be the whole
    /// sheet.
    void addStroke(const Pen& pen, const Point& p1, const Point& p2, const PixelRect& area);
    void addStroke(const Pen& pen, const Line& line, const PixelRect& area);
    /// The four sides of the box of an oval outline, not its inside.
    void addOutline(const PixelRect& box, int width);
    /// The same in many small pieces along it, for a large outline that changes with each move of
    /// the mouse while little else does: a fifth of those pixels or less.
    void addOutlineClosely(const PixelRect& box, int width);

    [[nodiscard]] std::span<const PixelRect> rects() const { return rects_; }
    [[nodiscard]] bool empty() const { return rects_.empty(); }
    [[nodiscard]] PixelRect bounds() const;
    /// Whether one box around all costs no more than the pieces.
    [[nodiscard]] bool dense() const;
    [[nodiscard]] bool meets(const PixelRect& rect) const;

  private:
    std::vector<PixelRect> rects_;
};

}  // namespace ormala
