#pragma once

#include <functional>

#include "modAPI/points.h"
#include "scene/ToolControl.h"

namespace ormala {

/// The measuring tools on the worksheet, as each of them sees the others.
class OtherMeasures {
  public:
    virtual ~OtherMeasures() = default;

    /// Calls `visit` with the four ends of the lines of each visible measuring tool but `self`, in
    /// the order of the tools: first and second end of line a, then of line b.
    virtual void visitEnds(const OverlayItem& self,
                           const std::function<void(const Point&)>& visit) const = 0;
};

/// Moves `point` onto the nearest of the other tools' ends, if there is one within 8 pixels; false
/// if there is none.
bool SnapToOtherTools(Point& point, const OtherMeasures& others, const OverlayItem& self);

}  // namespace ormala
