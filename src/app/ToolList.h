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
/// kind stays: while it is not in use, its tool and its panel are hidden. What has been removed is
/// hidden too, and can come back until tools are added or removed the next time.
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
    void RemovePanel(const SettingControl& panel);
    void RemoveAllTools();
    /// What the last removal has taken stands where it stood, and what has come instead of it goes
    /// for good. Nothing if that has been dropped.
    void bringBack();
    /// What has been removed goes for good.
    void dropRemoved();
    [[nodiscard]] bool hasRemoved() const { return !removed_.pairs.empty(); }

    /// For its lifetime tools that are added come instead of the removed ones, which are not
    /// dropped. The list must outlive it.
    class Replacement {
      public:
        explicit Replacement(ToolList& list) : list_(list) { list_.replacing_ = true; }
        ~Replacement() { list_.replacing_ = false; }
        Replacement(const Replacement&) = delete;
        Replacement& operator=(const Replacement&) = delete;

      private:
        ToolList& list_;
    };

    /// The panel that is to follow when this one goes: the one that takes its place, else the last
    /// one that stays; null if none stays.
    [[nodiscard]] SettingControl* successorOf(const SettingControl& panel) const;

    /// The panel so many places below this one, or above it, in a ring; from none the one of the
    /// selected tool, or else the first. Null without any.
    [[nodiscard]] SettingControl* panelBeside(const SettingControl* panel, int places) const;

    struct Entry {
        ToolKind kind;
        ListedPanel& listed;
    };
    /// The panel of a tool in use, null if there is none.
    [[nodiscard]] SettingControl* panelOf(const OverlayItem* tool) const;
    /// From top to bottom, without hidden ones.
    [[nodiscard]] std::vector<Entry> GetPanelsInVisualOrder() const;
    /// The kinds and keys of all of them: two texts are equal if the files are.
    [[nodiscard]] std::string keysText() const;
    /// All texts of tools and panels anew, also of those that are out of use.
    void showTextsAnew();
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

    using Pairs = std::vector<Pair>;
    /// What the last removal has taken, and the whole list before it.
    struct Removed {
        Pairs pairs;
        struct Place {
            const ListedPanel* listed;
            bool shown;
        };
        std::vector<Place> places;
        const ListedPanel* selected = nullptr;

        /// Behind all places for a panel that had none.
        [[nodiscard]] std::size_t placeOf(const Pair& pair) const;
        [[nodiscard]] bool hadShown(const Pair& pair) const;
    };

    void prepareFirst(ToolKind kind);
    void beginRemoval();
    void takeOut(Pairs::iterator at);
    void hide(const Pair& pair);
    void show(const Pair& pair);
    void destroy(Pair pair);
    void removeReplacements(const Removed& removed);
    [[nodiscard]] static bool hasFirst(const Pairs& pairs, ToolKind kind);
    [[nodiscard]] std::size_t count() const;
    Pair* reuseFirst(ToolKind kind, std::optional<ToolChanges>& changes);
    Pair* makePair(ToolKind kind, std::optional<ToolChanges>& changes);
    Pair& append(ToolKind kind, bool first, OverlayItem& tool);
    void setUpLook(ToolKind kind, SettingControl& panel);
    double NextToolSize();
    [[nodiscard]] int countOf(ToolKind kind) const;

    Ports ports_;
    /// From top to bottom, hidden ones too; those of a kind in the order of their making.
    Pairs pairs_;
    Removed removed_;
    bool replacing_ = false;
    ToolColors colors_;
    ToolSizes sizes_;
};

}  // namespace ormala
