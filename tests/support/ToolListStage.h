#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "app/BusyView.h"
#include "app/ToolList.h"
#include "app/ToolMaker.h"
#include "measure/ctlSetMeasure.h"
#include "stencil/ctlSetRatioGrid.h"
#include "support/FakePanelCommands.h"
#include "support/FakePanelView.h"
#include "support/FakeSheetPort.h"
#include "support/MemoryMessagePresenter.h"
#include "support/OwnToolSettings.h"
#include "support/QuietToolHost.h"

namespace ormala {

/// A panel of real parts but for its window. Stencil panels are 100 pixels high, others 70.
template <typename View>
class StagedPanel : public ListedPanel {
  public:
    explicit StagedPanel(ToolKind kind) : height_(kind == ToolKind::stencil ? 100 : 70) {}

    View view;
    std::unique_ptr<SettingControl> core;

    [[nodiscard]] SettingControl& panel() override { return *core; }
    [[nodiscard]] int top() const override { return top_; }
    void setTop(int top) override { top_ = top; }
    [[nodiscard]] int height() const override { return height_; }
    [[nodiscard]] bool visible() const override { return visible_; }
    void setVisible(bool visible) override { visible_ = visible; }

  private:
    int top_ = 0;
    int height_;
    bool visible_ = false;
};

/// The view of the list and of busy states, which writes down what happens.
class StageView : public ToolListView, public BusyView {
  public:
    std::vector<std::string> log;
    int layouts = 0;
    int refreshes = 0;

    void UpdatePanelLayout(bool AdjustFormHeight, bool Force) override {
        layouts += AdjustFormHeight && !Force ? 1 : 0;
    }
    void refresh() override { ++refreshes; }
    void beginBusy(const std::string& info, bool hourglass) override {
        log.push_back((hourglass ? "hourglass " : "busy ") + info);
    }
    void endBusy() override { log.emplace_back("end"); }
    void refreshWorksheet() override { log.emplace_back("worksheet"); }
    void refreshControlWindow() override { log.emplace_back("window"); }
};

/// A tool list over a real sheet with real tools and panels, whose windows are of these types.
template <typename View, typename SheetView>
class StagedToolList : private PanelFactory {
  public:
    using Panel = StagedPanel<View>;

    explicit StagedToolList(PixelSize sheetSize = {1280, 1024}) {
        maker_.setSheet(sheet);
        sheet.resize(sheetSize);
    }

    OwnToolSettings settings;
    StageView view;
    MemoryMessagePresenter messages;
    MeasureUnits units;

  private:
    SheetView port_;
    QuietToolHost host_;
    SpecialRatios ratios_{[](int, std::string_view text) { return std::string(text); }, {}};
    ToolMaker maker_{settings, ratios_};
    FakePanelCommands commands_;
    Clock tmrFast_{[](bool) {}};

  public:
    Sheet sheet{port_, host_, maker_};
    ToolList list{{sheet, *this, view, messages, units}};

    /// The panels from top to bottom.
    [[nodiscard]] std::vector<Panel*> panels() const {
        std::vector<Panel*> found;
        for (const ToolList::Entry& entry : list.GetPanelsInVisualOrder()) {
            found.push_back(&dynamic_cast<Panel&>(entry.listed));
        }
        return found;
    }
    [[nodiscard]] static ctlSetMeasure& measureOf(Panel& panel) {
        return dynamic_cast<ctlSetMeasure&>(*panel.core);
    }
    [[nodiscard]] static ctlSetRatioGrid& stencilOf(Panel& panel) {
        return dynamic_cast<ctlSetRatioGrid&>(*panel.core);
    }
    [[nodiscard]] ctlSetMeasure& measure(std::size_t at) const {
        return measureOf(*panels().at(at));
    }
    [[nodiscard]] ctlSetRatioGrid& stencil(std::size_t at) const {
        return stencilOf(*panels().at(at));
    }

    ctlSetRatioGrid& addStencil() { return dynamic_cast<ctlSetRatioGrid&>(*list.AddNewControl(0)); }
    ctlSetMeasure& addMeasure() { return dynamic_cast<ctlSetMeasure&>(*list.AddNewControl(1)); }

    /// The kinds from top to bottom: "SM".
    [[nodiscard]] std::string kinds() const {
        std::string text;
        for (const ToolList::Entry& entry : list.GetPanelsInVisualOrder()) {
            text += entry.kind == ToolKind::stencil ? 'S' : 'M';
        }
        return text;
    }

  private:
    std::unique_ptr<ListedPanel> makePanel(ToolKind kind, OverlayItem& tool) override {
        auto made = std::make_unique<Panel>(kind);
        const PanelPorts ports{
            made->view, commands_, tmrFast_,
            [this](const OverlayItem& shown, bool visible) { sheet.setVisible(shown, visible); },
            [] { return 36000.0F; }};
        if (kind == ToolKind::stencil) {
            made->core = std::make_unique<ctlSetRatioGrid>(dynamic_cast<ctlRatioGrid&>(tool), ports,
                                                           commands_, settings, ratios_);
        } else {
            made->core = std::make_unique<ctlSetMeasure>(
                dynamic_cast<ctlMeasure&>(tool), ports,
                [this](ctlMeasure& measure) { return commands_.SelectUnits(measure); }, settings);
        }
        if constexpr (requires { made->view.onRemove; }) {
            const SettingControl& core = *made->core;
            made->view.onRemove = [this, &core] { list.RemovePanel(core); };
        }
        return made;
    }
};

using StagePanel = StagedPanel<FakePanelView>;
using ToolListStage = StagedToolList<FakePanelView, FakeSheetPort>;

}  // namespace ormala
