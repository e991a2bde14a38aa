#include "measure/win/ctlSetMeasure.h"

#include "measure/measurePanelDesign.h"

namespace ormala {

ctlSetMeasure::ctlSetMeasure(ctlMeasure& tool, const Ports& ports, MeasureCommands& commands,
                             const ToolSettings& settings)
    : PanelWindow(L"ctlSetMeasure", "SetMeasure", measurePanelDesign(), ports),
      core_(tool, {*this, ports.visibility, ports.clock}, commands, settings) {
    button("cmdColorA").setCaption("a");
    button("cmdColorB").setCaption("b");
    constexpr int toggle = 1;
    constexpr int oneOfSeveral = 2;
    for (const char* name : {"optMode(0)", "optMode(1)"}) {
        button(name).setControlType(oneOfSeveral);
    }
    for (const char* name : {"chkShowLength", "chkShowAngle"}) {
        button(name).setControlType(toggle);
    }
    onClick("cmdColorA", [this] { core_.clickColorA(); });
    onClick("cmdColorB", [this] { core_.clickColorB(); });
    onClick("cmdLineStyle", [this] { core_.clickLineStyle(); });
    onClick("cmdUnits", [this] { core_.clickUnits(); });
    onClick("optMode(0)", [this] { core_.connect(true); });
    onClick("optMode(1)", [this] { core_.connect(false); });
    onClick("chkShowLength", [this] { core_.toggleLengthLabels(); });
    onClick("chkShowAngle", [this] { core_.toggleAngleLabels(); });
    open();
}

}  // namespace ormala
