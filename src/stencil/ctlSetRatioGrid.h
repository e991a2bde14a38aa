#pragma once

#include "scene/ToolSettings.h"
#include "stencil/SpecialRatios.h"
#include "stencil/StencilCommands.h"
#include "stencil/ctlRatioGrid.h"
#include "toolkit/SettingControl.h"

namespace ormala {

/// The panel of a stencil. Each event of a button is one call.
class ctlSetRatioGrid : public SettingControl {
  public:
    /// How long the mouse rests on `cmdSendMouseInput` before the preview comes.
    static constexpr unsigned previewMilliseconds = 777;

    /// All must outlive the panel.
    ctlSetRatioGrid(ctlRatioGrid& tool, const PanelPorts& ports, StencilCommands& commands,
                    const ToolSettings& settings, const SpecialRatios& ratios);

    [[nodiscard]] ctlRatioGrid& RefControl() { return tool_; }

    [[nodiscard]] ormala::Color Color() const { return tool_.Color(); }
    void setColor(ormala::Color color);

    void SetDefaultProperties() override { tool_.SetDefaultProperties(); }
    void CenterToScreen(double offset) override;
    void timerTicked(PanelTimer timer) override;

    /// One step of `cmdMove` and of `cmdAngle`.
    void stepMove(const Press& press);
    void stepAngle(const Press& press);
    void clickAngleZero(const Press& press);
    void clickFullSize();
    void clickMoveCenter(const Press& press);
    void clickEditRatio();
    void clickSelectPattern();
    void clickColor();
    void clickSendMouseInput();
    /// The mouse comes over `cmdSendMouseInput` or leaves it.
    void hoverSendMouseInput(bool over);

  private:
    void readKeys(INIFile& file) override;
    bool visitKeys(ToolKeys& keys) const override;
    void setDefaultColors(ToolColors& colors) override;
    void placeByDefault() override;
    [[nodiscard]] std::vector<ControlText> texts() const override;
    void showState() override;
    void letGo() override;
    void endPreview();

    ctlRatioGrid& tool_;
    StencilCommands& commands_;
    const ToolSettings& settings_;
    const SpecialRatios& ratios_;
    std::optional<PatternList> shownPatterns_;
    /// The page at which the dialog of patterns opens.
    int patternTab_ = 0;
};

}  // namespace ormala
