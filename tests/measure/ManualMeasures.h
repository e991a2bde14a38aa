#pragma once

#include <algorithm>
#include <vector>

#include "measure/OtherMeasures.h"

namespace ormala {

/// Other measuring tools that are nothing but the ends of their lines.
class ManualMeasures : public OtherMeasures {
  public:
    std::vector<Point> ends;
    /// Who asked last.
    mutable const OverlayItem* asked = nullptr;

    void visitEnds(const OverlayItem& self,
                   const std::function<void(const Point&)>& visit) const override {
        asked = &self;
        std::ranges::for_each(ends, visit);
    }
};

}  // namespace ormala
