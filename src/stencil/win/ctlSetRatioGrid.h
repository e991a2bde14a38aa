#pragma once

#include "stencil/StencilPanel.h"
#include "toolkit/win/PanelWindow.h"

namespace ormala {

/// The panel of a stencil.
class ctlSetRatioGrid : public PanelWindow, private PreviewTimer {
  public:
    /// All must outlive the panel.
    ctlSetRatioGrid(ctlRatioGrid& tool, const Ports& ports, StencilCommands& commands,
                    const ToolSettings& settings, const SpecialRatios& ratios);
    ~ctlSetRatioGrid() override { destroy(); }

    [[nodiscard]] StencilPanel& core() override { return core_; }

  private:
    std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    [[nodiscard]] UINT growthInterval() const override { return 46; }
    void showPattern() override;
    void runPreviewTimer(bool run) override;

    void connectSteps();
    void connectCommands();

    StencilPanel core_;
};

}  // namespace ormala
