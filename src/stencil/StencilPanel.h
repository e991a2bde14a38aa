#pragma once

#include "scene/ToolSettings.h"
#include "stencil/SpecialRatios.h"
#include "stencil/ctlRatioGrid.h"
#include "widgets/PanelCore.h"
#include "widgets/toolKeys.h"

namespace ormala {

/// The core of a stencil's panel.
class StencilPanel : public PanelCore {
  public:
    /// All must outlive the panel.
    StencilPanel(ctlRatioGrid& tool, const PanelPorts& ports, const ToolSettings& settings,
                 const SpecialRatios& ratios);

    [[nodiscard]] ctlRatioGrid& RefControl() { return tool_; }

    [[nodiscard]] ormala::Color Color() const { return tool_.Color(); }
    void setColor(ormala::Color color);
    [[nodiscard]] int LineWidth() const { return tool_.LineWidth(); }
    void setLineWidth(int lineCode);

    void LoadFromFile(INIFile& file) override;
    void StoreToFile(INIFile& file) const override;
    [[nodiscard]] bool EqualsFile(INIFile& file) const override;

    [[nodiscard]] int Number() const override { return 0; }
    void setNumber(int /*number*/) override {}
    void setDefaultLook(ToolColors& colors) override;
    void SetDefaultProperties() override { tool_.SetDefaultProperties(); }
    void setUnits(const MeasureUnits& /*units*/) override {}
    void inherit(const ToolPanel& former) override;
    void CenterToScreen(double offset) override;
    void finish() override;

  private:
    [[nodiscard]] std::vector<ControlText> texts() const override;
    [[nodiscard]] ButtonLook pauseLook() const override;
    [[nodiscard]] std::string removeText() const override;
    void showState() override {}
    void stateReplaced() override { view().showPattern(); }
    void placeByDefault() override;
    void otherKeyDown(int key) override;
    bool visitKeys(ToolKeys& keys) const;

    ctlRatioGrid& tool_;
    const ToolSettings& settings_;
    const SpecialRatios& ratios_;
};

}  // namespace ormala
