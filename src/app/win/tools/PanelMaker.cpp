#include "app/win/tools/PanelMaker.h"

#include <algorithm>

#include "measure/ctlSetMeasure.h"
#include "platform/win/dayTime.h"
#include "stencil/ctlSetRatioGrid.h"

namespace ormala {

/// A panel's window in the list. It is visible as long as it is in use, also where nothing of the
/// list shows.
class PanelMaker::Listed : public ListedPanel {
  public:
    Listed(PanelMaker& maker, std::unique_ptr<PanelWindow> window)
        : maker_(maker), window_(std::move(window)) {
        maker_.panels_.push_back(window_.get());
    }
    ~Listed() override { std::erase(maker_.panels_, window_.get()); }

    [[nodiscard]] SettingControl& panel() override { return window_->core(); }
    [[nodiscard]] int top() const override { return window_->placeInList().top; }
    void setTop(int top) override {
        window_->setTop(top);
        if (!maker_.ports_.list.bulkUpdate()) {
            window_->takePlace();
        }
    }
    [[nodiscard]] int height() const override { return window_->size().height; }
    [[nodiscard]] bool visible() const override { return visible_; }
    void setVisible(bool visible) override {
        visible_ = visible;
        window_->setVisible(visible);
        maker_.useChanged.raise();
    }

  private:
    PanelMaker& maker_;
    std::unique_ptr<PanelWindow> window_;
    bool visible_ = false;
};

std::unique_ptr<ListedPanel> PanelMaker::makePanel(ToolKind kind, OverlayItem& tool) {
    auto window = std::make_unique<PanelWindow>(
        PanelWindow::Ports{ports_.list.picInner(), ++made_, ports_.host, ports_.store,
                           ports_.globalEvents.FontSizeChange},
        [&](PanelView& view) { return makeCore(kind, tool, view); });
    window->setDpi(dpi_);
    return std::make_unique<Listed>(*this, std::move(window));
}

std::unique_ptr<SettingControl> PanelMaker::makeCore(ToolKind kind, OverlayItem& tool,
                                                     PanelView& view) {
    PanelDialogs& dialogs = ports_.dialogs;
    const PanelPorts ports{view,
                           dialogs,
                           ports_.tmrFast,
                           [&sheet = ports_.sheet](const OverlayItem& shown, bool visible) {
                               sheet.setVisible(shown, visible);
                           },
                           &secondsSinceMidnight,
                           ports_.changed};
    if (kind == ToolKind::stencil) {
        return std::make_unique<ctlSetRatioGrid>(dynamic_cast<ctlRatioGrid&>(tool), ports, dialogs,
                                                 ports_.settings, ports_.ratios);
    }
    return std::make_unique<ctlSetMeasure>(
        dynamic_cast<ctlMeasure&>(tool), ports,
        [&dialogs](ctlMeasure& measure) { return dialogs.SelectUnits(measure); }, ports_.settings);
}

void PanelMaker::setDpi(int dpi) {
    dpi_ = dpi;
    for (PanelWindow* panel : panels_) {
        panel->setDpi(dpi);
    }
}

void PanelMaker::takePlaces() {
    for (PanelWindow* panel : panels_) {
        panel->takePlace();
    }
}

PanelWindow* PanelMaker::panelOf(HWND window) const {
    const auto at = std::ranges::find_if(
        panels_, [window](const PanelWindow* panel) { return panel->handle() == window; });
    return at == panels_.end() ? nullptr : *at;
}

PanelWindow* PanelMaker::panelWith(HWND control) const {
    const auto at = std::ranges::find_if(panels_, [control](const PanelWindow* panel) {
        return IsChild(panel->handle(), control) != FALSE;
    });
    return at == panels_.end() ? nullptr : *at;
}

}  // namespace ormala
