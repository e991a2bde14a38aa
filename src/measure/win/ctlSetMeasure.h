#pragma once

#include "measure/MeasurePanel.h"
#include "toolkit/win/PanelWindow.h"

namespace ormala {

/// The panel of a measuring tool.
class ctlSetMeasure : public PanelWindow {
  public:
    /// All must outlive the panel.
    ctlSetMeasure(ctlMeasure& tool, const Ports& ports, MeasureCommands& commands,
                  const ToolSettings& settings);
    ~ctlSetMeasure() override { destroy(); }

    [[nodiscard]] MeasurePanel& core() override { return core_; }

  private:
    [[nodiscard]] UINT growthInterval() const override { return 45; }

    MeasurePanel core_;
};

}  // namespace ormala
