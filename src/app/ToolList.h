#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "app/ListedPanel.h"
#include "app/ToolSizes.h"
#include "modAPI/colors.h"
#include "storage/MessagePresenter.h"
#include "worksheet/Sheet.h"

namespace ormala {

/// The pairs of tools on the worksheet and panels in the control window. The first pair of each
/// kind is made once and stays: while it is not in use, its tool and its panel are hidden.
class ToolList {
  public:
    /// No more pairs than this, first ones out of use included.
    static constexpr std::size_t largestCount = 34;

    struct Ports {
        Sheet& sheet;
        PanelFactory& panels;
        ToolListView& view;
        MessagePresenter& messages;
        /// What new measurement tools measure in.
        const MeasureUnits& units;
    };

    /// The ports must outlive the list.
    explicit ToolList(const Ports& ports) : ports_(ports) {}

    /// Makes the first pair of each kind, with visible panels and with tools that are hidden still.
    void prepareFirstTools();
    void showFirstTools();

    /// The panel of a new pair, selected; null for an unknown kind, and with a message to the user
    /// if there are too many. The tool is laid out once, after `fill`, which may change it further.
    SettingControl* AddNewControl(int Kind, const std::function<void(SettingControl&)>& fill = {});
    /// Destroys the panel, unless it is a first one.
    void RemovePanel(const SettingControl& panel);
    void RemoveAllTools();
    /// The panel that is to follow when this one goes: the one that takes its place, else the last
    /// one that stays; null if none stays.
    [[nodiscard]] SettingControl* successorOf(const SettingControl& panel) const;

    struct Entry {
        ToolKind kind;
        ListedPanel& listed;
    };
    /// From top to bottom, without hidden ones.
    [[nodiscard]] std::vector<Entry> GetPanelsInVisualOrder() const;
    void ArrangePanels();
    /// Of the list's content: the bottom of the lowest panel, 0 without any.
    [[nodiscard]] int contentHeight() const;

    /// The least number from 1 to 1111 that no panel in use has, 0 if there is none.
    [[nodiscard]] int NextFreeMeasureNumber() const;
    /// Null if no panel of that kind is visible.
    [[nodiscard]] SettingControl* LastVisiblePanel(ToolKind kind) const;

  private:
    struct Pair {
        ToolKind kind = ToolKind::stencil;
        bool first = false;
        std::unique_ptr<ListedPanel> listed;
        [[nodiscard]] SettingControl& panel() const { return listed->panel(); }
    };

    void prepareFirst(ToolKind kind);
    Pair* reuseFirst(ToolKind kind, std::optional<ToolChanges>& changes);
    Pair* makePair(ToolKind kind, std::optional<ToolChanges>& changes);
    Pair& append(ToolKind kind, bool first, OverlayItem& tool);
    void setUpLook(ToolKind kind, SettingControl& panel);
    double NextToolSize();
    [[nodiscard]] int countOf(ToolKind kind) const;

    Ports ports_;
    /// From top to bottom, hidden ones too; those of a kind in the order of their making.
    std::vector<Pair> pairs_;
    ToolColors colors_;
    ToolSizes sizes_;
};

}  // namespace ormala
