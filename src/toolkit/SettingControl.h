#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "base/Event.h"
#include "toolkit/GripTool.h"
#include "toolkit/MeasureUnits.h"
#include "toolkit/PanelDesign.h"
#include "toolkit/PanelView.h"
#include "toolkit/RepeatButton.h"
#include "toolkit/ThrottledRefresh.h"
#include "toolkit/toolKeys.h"

namespace ormala {

/// What a panel works with. All must outlive it.
struct PanelPorts {
    PanelView& view;
    LookDialogs& dialogs;
    /// The shared clock of held buttons, 40 ms.
    Clock& tmrFast;
    /// Shows and hides a tool on the worksheet.
    std::function<void(const OverlayItem& tool, bool visible)> setVisible;
    /// The time of day.
    std::function<float()> secondsSinceMidnight;
    /// The tool, or what else the panel keeps in files, may have changed.
    std::function<void()> changed = [] {};
};

/// What a new tool takes over from the last one of its kind. All have a line; the rest is of
/// measuring tools.
struct ToolHabits {
    int LineWidth = 2;
    bool Connected = true;
    bool LabelsAngleVisible = true;
    bool LabelsLengthVisible = true;
};

/// The panel of a tool, whatever its kind: what the application core and the list of tools say to
/// it, and what all panels have in common: selection, pause, undo, buttons that are held, and
/// read-outs that follow the tool at a limited rate. Its window is the view.
class SettingControl {
  public:
    virtual ~SettingControl() = default;
    SettingControl(const SettingControl&) = delete;
    SettingControl& operator=(const SettingControl&) = delete;

    /// The panel's tool, which outlives all calls but the destruction.
    [[nodiscard]] OverlayItem& RefControlControl() { return tool_; }
    [[nodiscard]] const PanelDesign& design() const { return design_; }

    /// Whether the panel's tool is the selected one; the panel has no selection of its own.
    [[nodiscard]] bool Selected() const { return tool_.Selected(); }
    void setSelected(bool selected) { tool_.setSelected(selected); }
    /// The pair of panel and tool is not in use; every walk over the panels skips it.
    [[nodiscard]] bool Hidden() const { return hidden_; }
    void setHidden(bool hidden);
    /// True hides the tool and disables the panel.
    [[nodiscard]] bool Pause() const { return pause_; }
    void setPause(bool pause);
    void togglePause() { setPause(!pause_); }
    /// The number printed beside the tool, 0 for none.
    [[nodiscard]] int Number() const { return number_; }
    virtual void setNumber(int number) { number_ = number; }
    [[nodiscard]] int LineWidth() const { return tool_.LineWidth(); }
    void setLineWidth(int lineCode);

    /// Reads, writes and compares the tool's keys in the file's current section. `EqualsFile` is
    /// true if every key has the value that the tool has.
    void LoadFromFile(INIFile& file);
    void StoreToFile(INIFile& file) const;
    [[nodiscard]] bool EqualsFile(INIFile& file) const;
    /// All that goes to the file: two texts are equal if the files are.
    [[nodiscard]] std::string keysText() const;

    /// The next default colours, and a solid line of one pixel.
    void setDefaultLook(ToolColors& colors);
    virtual void SetDefaultProperties() = 0;
    /// Of tools that measure.
    virtual void setUnits(const MeasureUnits& /*units*/) {}
    [[nodiscard]] virtual ToolHabits habits() const { return {.LineWidth = LineWidth()}; }
    virtual void inherit(const ToolHabits& former) { setLineWidth(former.LineWidth); }
    /// A tool in its first shape, this far from the centre of the worksheet both ways.
    virtual void CenterToScreen(double offset) = 0;
    /// The tool's first state is complete: its history begins.
    void InitializeFinished();
    /// The same, and the panel shows it.
    void finish();

    /// Shows the tool as it is, unless that has just been done: then once more when the timer
    /// ticks. The timer's tick calls it with `force`.
    void ShowAllProps(bool force);
    virtual void timerTicked(PanelTimer timer);
    /// All texts of tool and panel anew: what they are formed by has changed.
    void showTextsAnew();

    /// The left button goes down on a `step` of the design: a step at once, and more while it is
    /// held.
    void press(const PanelControl& step, int shift);
    /// The same by the space bar: one step at each key-down.
    void pressKey(const PanelControl& step, int shift);
    /// The mouse button goes up, or the button loses the mouse: all steps since the press are one
    /// step of undo. Nothing if the mouse holds none.
    void release() { repeat_.release(); }
    /// The same of the space bar, which also ends its steps by losing the focus.
    void releaseKey() { repeat_.releaseKey(); }

    /// All that it reads out, as the tool is now; see `readOutLines`.
    [[nodiscard]] std::string readOuts() const;

    /// A change from the panel is complete.
    void AddHistoryStep();
    void Undo();
    void Redo();
    /// The user wants the tool gone; the panel may be destroyed in this call.
    void remove(const Press& press) { view().removeRequested(press.byMouse); }
    /// Puts the tool back to its default place, as a step of undo.
    void setDefaultPlace();
    void clickLineStyle();
    /// What the user is told once the tool has been removed.
    [[nodiscard]] std::string removedText() const { return textOfTool(design_.removedText); }
    /// The tool's history, wherever it stands in it.
    [[nodiscard]] const HistoryHelper& history() const { return tool_.History(); }

  protected:
    /// Tool and design must outlive the panel.
    SettingControl(GripTool& tool, const PanelDesign& design, const PanelPorts& ports);

    /// Takes the keys from the file, or their default values; visits them in the file's order. The
    /// panel adds the key of its pause.
    virtual void readKeys(INIFile& file) = 0;
    virtual bool visitKeys(ToolKeys& keys) const = 0;
    virtual void setDefaultColors(ToolColors& colors) = 0;
    virtual void placeByDefault() = 0;
    [[nodiscard]] virtual std::vector<ControlText> texts() const = 0;
    /// What shows the tool's state beside the texts.
    virtual void showState() = 0;
    /// What the mouse has begun on the panel and would go on by itself ends here: called before
    /// undo and redo, and when the panel is disabled or removed.
    virtual void letGo() { repeat_.stop(); }

    [[nodiscard]] PanelView& view() { return ports_.view; }
    [[nodiscard]] LookDialogs& dialogs() { return ports_.dialogs; }
    /// A change by the panel is complete and shows.
    void changed();

  private:
    void showSelection();
    void showPause();
    void SetUndoButtons();
    void keyDownFiltered(int key, int shift);
    void takeStep(const PanelControl& step, int shift, bool byMouse);
    void goTo(void (HistoryHelper::*neighbour)());
    [[nodiscard]] std::string textOfTool(int row) const;

    GripTool& tool_;
    const PanelDesign& design_;
    PanelPorts ports_;
    Subscription change_;
    Subscription mouseUp_;
    Subscription keyDown_;
    RepeatButton repeat_;
    ThrottledRefresh throttle_;
    std::optional<bool> shownAsSelected_;
    int number_ = 0;
    bool hidden_ = false;
    bool pause_ = false;
};

}  // namespace ormala
