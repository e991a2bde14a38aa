#pragma once

#include <memory>

#include "language/MlStringModule.h"
#include "measure/ManualMeasures.h"
#include "measure/ctlSetMeasure.h"
#include "stencil/ctlSetRatioGrid.h"
#include "support/FakePanelCommands.h"
#include "support/OwnToolSettings.h"
#include "support/QuietToolHost.h"
#include "toolkit/win/PanelWindow.h"

namespace ormala {

/// Panels in real windows with their controls, outside of any list, in the language of its making.
/// Tools and panels must not outlive it.
class PanelStage : private PanelHost {
  public:
    [[nodiscard]] std::unique_ptr<ctlRatioGrid> makeStencil() {
        return std::make_unique<ctlRatioGrid>(toolHost_, settings_, ratios_);
    }
    [[nodiscard]] std::unique_ptr<ctlMeasure> makeMeasure() {
        return std::make_unique<ctlMeasure>(toolHost_, settings_, others_);
    }
    [[nodiscard]] std::unique_ptr<PanelWindow> makePanel(HWND parent, ctlRatioGrid& tool) {
        return window(parent, [&](PanelView& view) {
            return std::make_unique<ctlSetRatioGrid>(tool, ports(view), commands_, settings_,
                                                     ratios_);
        });
    }
    [[nodiscard]] std::unique_ptr<PanelWindow> makePanel(HWND parent, ctlMeasure& tool) {
        return window(parent, [&](PanelView& view) {
            return std::make_unique<ctlSetMeasure>(
                tool, ports(view),
                [this](ctlMeasure& measure) { return commands_.SelectUnits(measure); }, settings_);
        });
    }

  private:
    std::unique_ptr<PanelWindow> window(HWND parent, const PanelWindow::MakeCore& makeCore) {
        if (!store_) {
            store_ = std::make_unique<PanelControlStore>(parent, fontSizeChange_);
        }
        auto made = std::make_unique<PanelWindow>(
            PanelWindow::Ports{parent, ++made_, *this, *store_, fontSizeChange_}, makeCore);
        made->equip();
        return made;
    }
    [[nodiscard]] PanelPorts ports(PanelView& view) {
        return {view, commands_, tmrFast_, [](const OverlayItem&, bool) {},
                [] { return 36000.0F; }};
    }
    void panelSelected(PanelWindow& /*panel*/) override {}
    void panelGotFocus(PanelWindow& /*panel*/) override {}
    void removePanel(PanelWindow& /*panel*/, bool /*byMouse*/) override {}

    QuietToolHost toolHost_;
    OwnToolSettings settings_;
    SpecialRatios ratios_{[](int id, std::string_view text) { return MlString(id, text); },
                          settings_.textForm};
    ManualMeasures others_;
    FakePanelCommands commands_;
    Clock tmrFast_{[](bool) {}};
    Event<int> fontSizeChange_;
    std::unique_ptr<PanelControlStore> store_;
    int made_ = 0;
};

}  // namespace ormala
