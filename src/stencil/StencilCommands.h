#pragma once

#include <optional>

#include "stencil/StencilState.h"
#include "toolkit/LookDialogs.h"

namespace ormala {

class ctlRatioGrid;

/// What the panels of stencils ask of the application.
class StencilCommands : public virtual LookDialogs {
  public:
    /// Whether the user has confirmed the dialog of patterns, which opens at the page `tab`, 0 to
    /// 4; both are changed only then.
    [[nodiscard]] virtual bool SelectPattern(PatternList& patterns, int& tab) = 0;
    /// The ratio of width to height that the user has picked; nothing if the dialog was cancelled.
    [[nodiscard]] virtual std::optional<double> EditRatio(double present) = 0;
    /// Drags in the program below the stencil, along its unturned rectangle.
    virtual void applyMouseAction(ctlRatioGrid& stencil) = 0;
};

/// The timer `tmrDelayMousePreview` of a panel.
class PreviewTimer {
  public:
    virtual ~PreviewTimer() = default;

    /// True starts it anew, false stops it.
    virtual void runPreviewTimer(bool run) = 0;

    /// How long the mouse rests on `cmdSendMouseInput` before the preview comes.
    static constexpr int previewMilliseconds = 777;
};

}  // namespace ormala
