#pragma once

#include "measure/MeasureCommands.h"
#include "measure/ctlMeasure.h"
#include "scene/ToolSettings.h"
#include "toolkit/PanelCore.h"
#include "toolkit/toolKeys.h"

namespace ormala {

/// The core of a measuring tool's panel.
class MeasurePanel : public PanelCore {
  public:
    /// All must outlive the panel.
    MeasurePanel(ctlMeasure& tool, const PanelPorts& ports, MeasureCommands& commands,
                 const ToolSettings& settings);

    [[nodiscard]] ctlMeasure& RefControl() { return tool_; }

    [[nodiscard]] Color ColorA() const { return tool_.ColorA(); }
    void setColorA(Color color);
    [[nodiscard]] Color ColorB() const { return tool_.ColorB(); }
    void setColorB(Color color);
    [[nodiscard]] int LineWidth() const { return tool_.LineWidth(); }
    void setLineWidth(int lineCode);
    [[nodiscard]] int Number() const override { return number_; }
    void setNumber(int number) override;

    /// The button "Connect" or "Disconnect" was pressed.
    void connect(bool connected);
    void toggleAngleLabels();
    void toggleLengthLabels();
    void clickColorA();
    void clickColorB();
    void clickLineStyle();
    void clickUnits();

    void LoadFromFile(INIFile& file) override;
    void StoreToFile(INIFile& file) const override;
    [[nodiscard]] bool EqualsFile(INIFile& file) const override;

    void setDefaultLook(ToolColors& colors) override;
    void SetDefaultProperties() override { tool_.SetDefaultProperties(); }
    void setUnits(const MeasureUnits& units) override;
    void inherit(const ToolPanel& former) override;
    void CenterToScreen(double offset) override;
    void finish() override;

  private:
    [[nodiscard]] std::vector<ControlText> texts() const override;
    [[nodiscard]] ButtonLook pauseLook() const override;
    [[nodiscard]] std::string removeText() const override;
    void showState() override;
    void stateReplaced() override {}
    void placeByDefault() override;
    void otherKeyDown(int /*key*/) override {}
    void showSwitch(std::string_view name, bool on);
    [[nodiscard]] ControlText title() const;
    [[nodiscard]] MeasureUnits units() const;
    void loadLines(INIFile& file);
    bool visitKeys(ToolKeys& keys) const;

    ctlMeasure& tool_;
    MeasureCommands& commands_;
    const ToolSettings& settings_;
    int number_ = 0;
};

}  // namespace ormala
