#pragma once

#include <optional>
#include <vector>

#include "measure/ctlMeasure.h"
#include "stencil/StencilCommands.h"
#include "toolkit/PanelView.h"

namespace ormala {

/// The dialogs of all panels, which are confirmed at once with what the test has set, or cancelled.
class FakePanelCommands : public LookDialogs, public StencilCommands {
  public:
    std::optional<Color> color;
    std::optional<int> lineStyle;
    std::optional<PatternList> patterns;
    int tabLeft = 0;
    std::optional<double> ratio;
    std::vector<int> tabsOpened;
    std::vector<double> ratiosShown;
    std::vector<const ctlRatioGrid*> mouseActions;
    std::optional<MeasureUnits> units;
    std::vector<MeasureUnits> unitsShown;

    Color SelectColor(Color present) override { return color.value_or(present); }
    int SelectLineStyle(int present) override { return lineStyle.value_or(present); }
    bool SelectPattern(PatternList& shown, int& tab) override {
        tabsOpened.push_back(tab);
        if (!patterns) {
            return false;
        }
        shown = *patterns;
        tab = tabLeft;
        return true;
    }
    std::optional<double> EditRatio(double present) override {
        ratiosShown.push_back(present);
        return ratio;
    }
    void applyMouseAction(ctlRatioGrid& stencil) override { mouseActions.push_back(&stencil); }
    bool SelectUnits(ctlMeasure& tool) {
        unitsShown.push_back(
            {tool.AngleMode(), tool.LengthMode(), tool.LengthFactor(), tool.LengthUnit()});
        if (units) {
            tool.setAngleMode(units->AngleMode);
            tool.setLengthMode(units->LengthMode);
            tool.setLengthFactor(units->LengthFactor);
            tool.setLengthUnit(units->LengthUnit);
        }
        return units.has_value();
    }
};

}  // namespace ormala
