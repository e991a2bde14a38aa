#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "storage/HistoryHelper.h"
#include "toolkit/PanelView.h"
#include "toolkit/ThrottledRefresh.h"
#include "toolkit/ToolPanel.h"

namespace ormala {

/// What a panel works with. All must outlive it.
struct PanelPorts {
    PanelView& view;
    ToolVisibility& visibility;
    const DayClock& clock;
};

/// What the panels of all kinds of tool have in common: selection, pause, undo, and read-outs that
/// follow the tool at a limited rate. Its window is the view.
class PanelCore : public ToolPanel {
  public:
    PanelCore(const PanelCore&) = delete;
    PanelCore& operator=(const PanelCore&) = delete;

    [[nodiscard]] bool Selected() const override { return item_.control().Selected(); }
    void setSelected(bool selected) override { item_.control().setSelected(selected); }
    [[nodiscard]] bool Hidden() const override { return hidden_; }
    void setHidden(bool hidden) override;
    [[nodiscard]] OverlayItem& RefControlControl() override { return item_; }

    [[nodiscard]] bool Pause() const { return pause_; }
    void setPause(bool pause) override;
    void togglePause() { setPause(!pause_); }
    /// The user wants the tool gone; the panel may be destroyed in this call.
    void remove() { view().removeRequested(); }

    /// Shows the tool as it is, unless that has just been done: then once more when the timer
    /// ticks. The timer's tick calls it with `force`.
    void ShowAllProps(bool force);
    /// A button of the panel is held and repeats its step.
    void setRepeating(bool repeating) { repeating_ = repeating; }

    /// The tool's first state is complete.
    void InitializeFinished();
    /// A change from the panel is complete.
    void AddHistoryStep();
    void Undo();
    void Redo();

    /// Puts the tool back to its default place, as a step of undo.
    void setDefaultPlace();

  protected:
    PanelCore(OverlayItem& item, ToolEvents& events, HistoryHelper& history,
              const PanelPorts& ports);

    [[nodiscard]] virtual std::vector<ControlText> texts() const = 0;
    /// The colours of `cmdPause`.
    [[nodiscard]] virtual ButtonLook pauseLook() const = 0;
    /// Whether the read-outs of a hidden tool are disabled like the buttons.
    [[nodiscard]] virtual bool pauseDimsLabels() const { return false; }
    /// The entry of the popup menu.
    [[nodiscard]] virtual std::string removeText() const = 0;
    /// What shows the tool's state beside the texts.
    virtual void showState() = 0;
    /// An earlier or later state of the tool has come back.
    virtual void stateReplaced() = 0;
    virtual void placeByDefault() = 0;
    /// A key that the tool left, without modifiers, to this kind of panel.
    virtual void otherKeyDown(int key) = 0;
    /// What the mouse has begun on the panel and would go on by itself ends here: called before
    /// undo and redo, and when the panel is disabled or removed.
    virtual void letGo() {}

    [[nodiscard]] PanelView& view() { return ports_.view; }

  private:
    void showSelection();
    void showPause();
    void SetUndoButtons();
    void keyDownFiltered(int key, int shift);

    OverlayItem& item_;
    HistoryHelper& history_;
    PanelPorts ports_;
    Subscription change_;
    Subscription mouseUp_;
    Subscription keyDown_;
    ThrottledRefresh throttle_;
    std::optional<bool> shownAsSelected_;
    bool hidden_ = false;
    bool pause_ = false;
    bool repeating_ = false;
};

}  // namespace ormala
