#pragma once

#include <optional>

#include "modAPI/points.h"
#include "scene/Canvas.h"
#include "scene/DirtyRegion.h"

namespace ormala {

/// A ring around the place that a drag snaps to, wider than any grip there. Owned by the tool's
/// aids; hidden between drags.
class SnapRing {
  public:
    /// Around that place, or hidden without one.
    void show(const std::optional<Point>& place, Color color, const SheetScale& scale);
    void hide() { face_.reset(); }

    [[nodiscard]] const std::optional<ShapeFace>& face() const { return face_; }
    void draw(Canvas& canvas) const;
    /// The pixels that `draw` covers.
    void addTo(DirtyRegion& region) const;

  private:
    std::optional<ShapeFace> face_;
};

}  // namespace ormala
