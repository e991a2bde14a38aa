#pragma once

#include <optional>

#include "stencil/StencilState.h"

namespace ormala {

class ctlRatioGrid;

/// What the panels of stencils ask of the application.
class StencilCommands {
  public:
    virtual ~StencilCommands() = default;

    /// Whether the user has confirmed the dialog of patterns, which opens at the page `tab`, 0 to
    /// 4; both are changed only then.
    [[nodiscard]] virtual bool SelectPattern(PatternList& patterns, int& tab) = 0;
    /// The ratio of width to height that the user has picked; nothing if the dialog was cancelled.
    [[nodiscard]] virtual std::optional<double> EditRatio(double present) = 0;
    /// Drags in the program below the stencil, along its unturned rectangle.
    virtual void applyMouseAction(ctlRatioGrid& stencil) = 0;
};

}  // namespace ormala
