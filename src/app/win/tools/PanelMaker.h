#pragma once

#include <utility>

#include "app/ListedPanel.h"
#include "app/win/tools/PanelDialogs.h"
#include "app/win/tools/PanelList.h"
#include "language/clsGlobalEvents.h"
#include "scene/ToolSettings.h"
#include "stencil/SpecialRatios.h"
#include "toolkit/win/PanelWindow.h"
#include "worksheet/Sheet.h"

namespace ormala {

/// Makes the panels of the kinds of tools that the program has, and knows those that there are.
class PanelMaker : public PanelFactory {
  public:
    /// What panels show their tools by, and the dialogs that they open.
    struct Ports {
        const PanelList& list;
        /// Of held buttons, 40 ms.
        Clock& tmrFast;
        Sheet& sheet;
        PanelHost& host;
        PanelDialogs& dialogs;
        const ToolSettings& settings;
        const SpecialRatios& ratios;
        clsGlobalEvents& globalEvents;
        PanelControlStore& store;
        /// A tool, or what else its panel keeps in files, may have changed.
        std::function<void()> changed;
    };

    /// All must outlive the panels, and so must the maker.
    explicit PanelMaker(Ports ports) : ports_(std::move(ports)) {}

    std::unique_ptr<ListedPanel> makePanel(ToolKind kind, OverlayItem& tool) override;
    void setDpi(int dpi);
    /// Moves all panels to where the list wants them. While many come and go none is moved.
    void takePlaces();

    /// All panels, in the order of their making.
    [[nodiscard]] const std::vector<PanelWindow*>& panels() const { return panels_; }
    /// Null for a window that is none of them.
    [[nodiscard]] PanelWindow* panelOf(HWND window) const;
    /// The one that the control is in; null for any other window.
    [[nodiscard]] PanelWindow* panelWith(HWND control) const;

    /// A panel has come into use, or out of use.
    Event<> useChanged;

  private:
    class Listed;

    std::unique_ptr<SettingControl> makeCore(ToolKind kind, OverlayItem& tool, PanelView& view);

    Ports ports_;
    std::vector<PanelWindow*> panels_;
    /// How many panels there have been.
    int made_ = 0;
    int dpi_ = USER_DEFAULT_SCREEN_DPI;
};

}  // namespace ormala
