#pragma once

#include "app/ViewState.h"
#include "app/modes.h"

namespace ormala {

/// The windows, as a change of mode sets them. `ModeSwitch` says when.
class ModePort {
  public:
    virtual ~ModePort() = default;

    /// Lights the button of the mode, and shows and enables the others as it wants them.
    virtual void SyncModeButtons(Mode mode, bool worksheetMaxSized) = 0;
    /// Closes the menus, none of which may outlive the sight of its owner, and repaints the control
    /// window at once.
    virtual void refresh() = 0;
    /// The height of the control window on a change from `former` to `mode`.
    virtual void AdjustFormHeight(Mode mode, Mode former) = 0;
    /// A worksheet or frame that has the keyboard gives it to the control window, if that can be
    /// seen. Before its window goes, so that the system passes it on to none.
    virtual void keyboardToControlWindow() = 0;
    /// The same, to the foremost window of another program.
    virtual void keyboardToProgramBelow() = 0;
    /// Whether the worksheet fills its screen.
    [[nodiscard]] virtual bool MaxSized() const = 0;
    /// Worksheet and frame. One that takes the mouse again lays itself out anew and comes below the
    /// control window.
    virtual void showWorksheet(const ModeWindows& windows) = 0;
    /// Caption, system menu and magnifier, and then the control window minimised if wanted.
    virtual void showMode(Mode mode, bool minimise) = 0;
};

/// The one operation that turns one mode of the program into another.
class ModeSwitch {
  public:
    /// Both must outlive it. The mode itself is one of the view's options.
    ModeSwitch(ModePort& port, ViewState& view) : port_(port), view_(view) {}

    [[nodiscard]] Mode GetMode() const { return view_.options().mode; }
    /// Also from a mode to itself, which repeats the work. What is no mode changes no window and
    /// is kept.
    void SetMode(Mode mode, bool minimise);
    /// A command that changes the mode; false for any other one.
    bool execute(Command command);
    /// The border of template mode may have been changed.
    void refreshTemplateMode();

    /// A change of mode is complete.
    Event<> switched;

    /// Whether a full-screen worksheet can be brought back into its frame now.
    [[nodiscard]] bool WorksheetMaxSized() const { return worksheetMaxSized_; }
    void setWorksheetMaxSized(bool maxSized);
    /// The worksheet has another size: it may fill its screen now, or no longer.
    void worksheetResized();

  private:
    [[nodiscard]] ModeWindows windowsOf(Mode mode) const;

    ModePort& port_;
    ViewState& view_;
    /// The mode whose button is lit; during a change the new one already.
    Mode lit_ = Mode::edit;
    bool worksheetMaxSized_ = false;
};

}  // namespace ormala
