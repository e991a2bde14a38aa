#pragma once

#include <functional>

#include "measure/ctlMeasure.h"
#include "scene/ToolSettings.h"
#include "toolkit/SettingControl.h"

namespace ormala {

/// The panel of a measuring tool.
class ctlSetMeasure : public SettingControl {
  public:
    /// The dialog of a tool's units, which changes the tool; false if it was cancelled.
    using SelectUnits = std::function<bool(ctlMeasure& tool)>;

    /// All must outlive the panel.
    ctlSetMeasure(ctlMeasure& tool, const PanelPorts& ports, SelectUnits selectUnits,
                  const ToolSettings& settings);

    [[nodiscard]] ctlMeasure& RefControl() { return tool_; }

    [[nodiscard]] Color ColorA() const { return tool_.ColorA(); }
    void setColorA(Color color);
    [[nodiscard]] Color ColorB() const { return tool_.ColorB(); }
    void setColorB(Color color);
    void setNumber(int number) override;

    void SetDefaultProperties() override { tool_.SetDefaultProperties(); }
    void setUnits(const MeasureUnits& units) override;
    [[nodiscard]] ToolHabits habits() const override;
    void inherit(const ToolHabits& former) override;
    void CenterToScreen(double offset) override;

    void connect() { setConnected(true); }
    void disconnect() { setConnected(false); }
    void toggleAngleLabels();
    void toggleLengthLabels();
    void clickColorA();
    void clickColorB();
    void clickUnits();

  private:
    void readKeys(INIFile& file) override;
    bool visitKeys(ToolKeys& keys) const override;
    void setDefaultColors(ToolColors& colors) override;
    void placeByDefault() override;
    [[nodiscard]] std::vector<ControlText> texts() const override;
    void showState() override;
    void setConnected(bool connected);
    [[nodiscard]] ControlText title() const;
    [[nodiscard]] MeasureUnits units() const;
    void loadLines(INIFile& file);

    ctlMeasure& tool_;
    SelectUnits selectUnits_;
    const ToolSettings& settings_;
};

}  // namespace ormala
