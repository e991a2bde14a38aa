#pragma once

#include <memory>
#include <vector>

#include "app/FocusMemory.h"
#include "app/ModeSwitch.h"
#include "app/ProgramLife.h"
#include "app/ToolMaker.h"
#include "app/ViewState.h"
#include "app/WindowPart.h"
#include "app/win/shell/AutoSaveStage.h"
#include "app/win/shell/ModeStage.h"
#include "app/win/shell/OptionsKeeper.h"
#include "app/win/shell/frmSettings.h"
#include "app/win/tools/ToolsPane.h"
#include "app/win/view/ViewPane.h"
#include "dialogs/win/LostWindows.h"
#include "platform/win/MouseWheelHook.h"
#include "stencil/SpecialRatios.h"
#include "storage/win/WindowsCodePage.h"
#include "storage/win/WindowsFileStore.h"
#include "worksheet/win/frmResizer.h"

namespace ormala {

/// The running program: its parts, who of them hears of what, and the order in which they are
/// loaded, saved and taken down.
class Program : public WorksheetCommands, private ProgramEnding {
  public:
    /// Loads everything and shows the control window, unless it was told to end meanwhile.
    /// `anotherRuns` says whether another copy of the program is running.
    explicit Program(bool anotherRuns);

    [[nodiscard]] frmSettings& settings() { return *settings_; }
    [[nodiscard]] frmWorksheet& worksheet() { return *worksheet_; }
    [[nodiscard]] frmResizer& resizer() { return *resizer_; }
    [[nodiscard]] ToolsPane& tools() { return *tools_; }
    [[nodiscard]] ViewPane& view() { return *view_; }
    [[nodiscard]] ViewState& state() { return state_; }
    [[nodiscard]] ModeSwitch& modes() { return *modes_; }

    void execute(Command command) override;
    /// Sees a message before the window that it is for: true if it ends here.
    bool preview(const MSG& message);
    /// After a failure that nobody has handled: saves what can be saved.
    void rescue() { life_.fail(); }

  private:
    bool takeKey(int key, int modifiers) override;
    void raiseControlWindowAt(POINT screen) override;
    bool raiseLens(bool onlySticked) override { return view_ && view_->raiseLens(onlySticked); }
    void ShowContextMenu(POINT screen) override { view_->ShowContextMenu(screen); }
    void closeProgram() override;

    [[nodiscard]] bool isBusy() const override;
    bool ConfirmDiscard() override { return tools_->documents().ConfirmDiscard(); }
    void keep(bool tell) override;
    void save() override { keep(true); }
    void showReason(bool busy) override;
    void hideReason() override;
    void quit() override;

    void makeWindows();
    void listen();
    void restoreLook(bool anotherRuns);
    void makeLens();
    void RefreshRuntimeStrings();
    void ShowHelp();
    void worksheetWindowNormal();

    WindowsFileStore store_;
    WindowsCodePage codePage_;
    /// Of a first start, and of messages before the options are read.
    int localeLanguage_;
    OptionsKeeper optionsKeeper_;
    ViewState state_;
    SpecialRatios ratios_;
    ToolMaker factory_{state_.toolSettings(), ratios_};
    FocusMemory focus_;
    clsGlobalEvents globalEvents_;
    ProgramLife life_{*this};
    std::unique_ptr<frmSettings> settings_;
    std::unique_ptr<frmWorksheet> worksheet_;
    std::unique_ptr<frmResizer> resizer_;
    std::unique_ptr<ViewPane> view_;
    std::unique_ptr<ToolsPane> tools_;
    std::unique_ptr<ModeStage> stage_;
    std::unique_ptr<ModeSwitch> modes_;
    std::unique_ptr<AutoSaveStage> autoSave_;
    /// In the order of the key that goes through them.
    std::vector<WindowPart> parts_;
    std::unique_ptr<MouseWheelHook> wheelHook_;
    LostWindows lostWindows_{[this] {
        return std::vector<HWND>{settings_->handle(), resizer_->handle(),
                                 view_->lens().lens().handle()};
    }};
    /// Ended before anything else goes: the focus that the parts leave behind finds them half gone.
    std::vector<Subscription> subscriptions_;
};

}  // namespace ormala
