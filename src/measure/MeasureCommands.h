#pragma once

#include "toolkit/LookDialogs.h"

namespace ormala {

class ctlMeasure;

/// What the panels of measuring tools ask of the application.
class MeasureCommands : public virtual LookDialogs {
  public:
    /// The dialog of a tool's units, which changes the tool; false if it was cancelled.
    [[nodiscard]] virtual bool SelectUnits(ctlMeasure& tool) = 0;
};

}  // namespace ormala
