#include "app/ToolMaker.h"

#include <algorithm>

#include "measure/ctlMeasure.h"
#include "stencil/ctlRatioGrid.h"

namespace ormala {

std::unique_ptr<OverlayItem> ToolMaker::makeTool(ToolKind kind, ToolHost& host) {
    const OtherMeasures& others = *this;
    switch (kind) {
        case ToolKind::stencil:
            return std::make_unique<ctlRatioGrid>(host, settings_, ratios_);
        case ToolKind::measurement:
            return std::make_unique<ctlMeasure>(host, settings_, others);
    }
    return nullptr;
}

void ToolMaker::visitEnds(const OverlayItem& self,
                          const std::function<void(const Point&)>& visit) const {
    if (sheet_ == nullptr) {
        return;
    }
    for (const OverlayItem* item : sheet_->visibleInArrayOrder()) {
        const auto* measure = dynamic_cast<const ctlMeasure*>(item);
        if (measure != nullptr && item != &self) {
            std::ranges::for_each(lineEnds(measure->state()), visit);
        }
    }
}

}  // namespace ormala
