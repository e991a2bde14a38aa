#pragma once

#include <memory>
#include <string>
#include <vector>

#include "app/BusyView.h"
#include "app/ToolList.h"
#include "app/ToolMaker.h"
#include "measure/MeasurePanel.h"
#include "stencil/StencilPanel.h"
#include "support/FakePanelCommands.h"
#include "support/MemoryMessagePresenter.h"
#include "support/OwnToolSettings.h"
#include "support/QuietToolHost.h"

namespace ormala::bench {

/// The window of a panel that shows nothing.
class QuietPanelView : public PanelView {
  public:
    void showTexts(const std::vector<ControlText>& /*texts*/) override {}
    void showLook(const PanelLook& /*look*/) override {}
    void showButton(ControlId /*button*/, const ButtonLook& /*look*/) override {}
    void showPicture(ControlId /*button*/, PictureMaker /*maker*/) override {}
    void enable(const PanelEnabling& /*enabling*/) override {}
    void runTimer(PanelTimer /*timer*/, unsigned /*interval*/) override {}
    void toolBecameSelected() override {}
    void removeRequested(bool /*byMouse*/) override {}
    void showMenu(const std::string& /*removeText*/) override {}
};

/// A panel of the list: its real core over a quiet view.
class QuietPanel : public ListedPanel {
  public:
    QuietPanelView view;
    std::unique_ptr<SettingControl> core;

    [[nodiscard]] SettingControl& panel() override { return *core; }
    [[nodiscard]] int top() const override { return top_; }
    void setTop(int top) override { top_ = top; }
    [[nodiscard]] int height() const override { return 100; }
    [[nodiscard]] bool visible() const override { return visible_; }
    void setVisible(bool visible) override { visible_ = visible; }

  private:
    int top_ = 0;
    bool visible_ = false;
};

/// The real list over a real sheet, with real tools and the cores of their panels, of which nothing
/// is painted. The first tool of each kind is in use.
class QuietToolList : public BusyView,
                      private PanelFactory,
                      private ToolListView,
                      private SheetPort {
  public:
    QuietToolList() {
        maker_.setSheet(sheet_);
        sheet_.resize({1920, 1080});
        list.prepareFirstTools();
        list.showFirstTools();
    }

    void add(ToolKind kind, int count) {
        for (int i = 0; i < count; ++i) {
            list.AddNewControl(static_cast<int>(kind));
        }
    }

  private:
    bool wasInFront() const override { return true; }
    void rememberForeground() override {}
    void repaintTool(const OverlayItem& /*item*/) override {}
    void UpdatePanelLayout(bool /*AdjustFormHeight*/, bool /*Force*/) override {}
    void refresh() override {}
    void beginBusy(const std::string& /*info*/, bool /*hourglass*/) override {}
    void endBusy() override {}
    void refreshWorksheet() override {}
    void refreshControlWindow() override {}

    std::unique_ptr<ListedPanel> makePanel(ToolKind kind, OverlayItem& tool) override {
        auto made = std::make_unique<QuietPanel>();
        const PanelPorts ports{
            made->view, commands_, tmrFast_,
            [this](const OverlayItem& shown, bool visible) { sheet_.setVisible(shown, visible); },
            [] { return 36000.0F; }};
        if (kind == ToolKind::stencil) {
            made->core = std::make_unique<StencilPanel>(dynamic_cast<ctlRatioGrid&>(tool), ports,
                                                        commands_, settings_, ratios_);
        } else {
            made->core = std::make_unique<MeasurePanel>(
                dynamic_cast<ctlMeasure&>(tool), ports,
                [this](ctlMeasure& measure) { return commands_.SelectUnits(measure); }, settings_);
        }
        return made;
    }

    OwnToolSettings settings_;
    QuietToolHost host_;
    FakePanelCommands commands_;
    Event<> tmrFast_;
    SpecialRatios ratios_{[](int, std::string_view text) { return std::string(text); }, {}};
    ToolMaker maker_{settings_, ratios_};
    Sheet sheet_{*this, host_, maker_};
    MemoryMessagePresenter messages_;
    MeasureUnits units_;

  public:
    ToolList list{{sheet_, *this, *this, messages_, units_}};
};

}  // namespace ormala::bench
