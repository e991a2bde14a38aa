#pragma once

#include <memory>
#include <string>

#include "app/FocusMemory.h"
#include "app/Options.h"
#include "app/ProgramLife.h"
#include "app/SettingsHeight.h"
#include "app/ToolMaker.h"
#include "app/win/CommandBar.h"
#include "app/win/MouseWheelHook.h"
#include "app/win/ToolsPane.h"
#include "app/win/ViewPane.h"
#include "app/win/WindowsMessagePresenter.h"
#include "base/Event.h"
#include "language/clsGlobalEvents.h"
#include "platform/win/StandardControl.h"
#include "platform/win/Window.h"
#include "scene/ToolSettings.h"
#include "stencil/SpecialRatios.h"
#include "storage/win/WindowsCodePage.h"
#include "storage/win/WindowsFileStore.h"
#include "worksheet/win/frmResizer.h"

namespace ormala {

/// The control window and main window of the program: it owns the options, the worksheet and the
/// mode, and its closing ends the program.
class frmSettings : public Window,
                    public WorksheetCommands,
                    private ControlWindow,
                    private ViewHost,
                    private ProgramEnding {
  public:
    /// `anotherRuns` says whether another copy of the program is running.
    explicit frmSettings(bool anotherRuns);
    ~frmSettings() override;

    [[nodiscard]] int GetMode() const override { return mode_; }
    void SetMode(int mode, bool minimise) override;
    /// Whether a full-screen worksheet can be brought back into its frame now.
    [[nodiscard]] bool WorksheetMaxSized() const { return worksheetMaxSized_; }
    void setWorksheetMaxSized(bool maxSized);
    /// Brings a full-screen worksheet back into its frame.
    void worksheetWindowNormal();

    [[nodiscard]] frmWorksheet& worksheet() { return *worksheet_; }
    [[nodiscard]] frmResizer& resizer() { return *resizer_; }
    [[nodiscard]] ToolsPane& tools() { return *tools_; }
    [[nodiscard]] ViewPane& view() { return *view_; }

    /// After a failure that nobody has handled: saves what can be saved.
    void rescue() { life_.fail(); }

    /// Sees a message before the control that it is for: true if it was a key of the window.
    bool preview(const MSG& message);

  private:
    std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

    void ShowHelp() override;
    void stepHistory(OverlayItem& item, bool back) override;
    void raiseControlWindowAt(POINT screen) override;
    bool raiseLens(bool onlySticked) override { return view_ && view_->lens().raise(onlySticked); }
    void ShowContextMenu(POINT screen) override { view_->ShowContextMenu(screen); }
    void ShowOptions(int page) override { view_->ShowOptions(page); }
    void closeProgram() override;

    [[nodiscard]] PanelLayout::Window layoutWindow() const override;
    void takeHeight(int height) override;
    void raiseAboveAll() override;
    void putWindowsAside(bool aside) override;

    void execute(Command command) override;
    void maximiseWorksheet() override { resizer_->maximise(); }
    void RefreshRuntimeStrings() override;

    void load(bool anotherRuns);
    void openOptionsFile();
    void createWindow();
    void chooseLanguage(int localeLanguage);
    void AddModeSystemMenuItems();
    void makeControls();
    void makeFontSizeBox();
    void layOutControls();
    void loadTools();
    void loadWorksheet();
    void loadResizer();
    void placeWindow(bool anotherRuns);
    void cutEditModeHeight();
    void SaveOptions();

    [[nodiscard]] bool isBusy() const override;
    bool ConfirmDiscard() override { return tools_->documents().ConfirmDiscard(); }
    void keep(bool tell) override;
    void save() override;
    void showReason(bool busy) override;
    void hideReason() override;
    void quit() override;

    [[nodiscard]] bool worksheetHasKeyboard() const;
    void takeKeyboardFromWorksheet();
    void applyModeToWindows(int mode);
    void layOutAnew();
    [[nodiscard]] ModeWindows windowsOf(int mode) const;
    void AdjustFormHeight(int mode, int formerMode);
    void SyncSystemMenu(int mode);
    void UpdateCaption();
    [[nodiscard]] SettingsHeight::Present present() const;
    [[nodiscard]] SIZE frameSize() const;
    [[nodiscard]] SettingsLayout layout() const { return SettingsLayout(dpi_); }

    std::optional<LRESULT> onOwnMessage(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT onErase(HDC context);
    LRESULT onSize(WPARAM kind);
    LRESULT onActivate(WPARAM kind, HWND other);
    LRESULT onMouseActivate(WPARAM wParam, LPARAM lParam);
    LRESULT onFocus();
    LRESULT onGetMinMaxInfo(LPARAM lParam);
    LRESULT onSysCommand(WPARAM wParam, LPARAM lParam);
    LRESULT onDpiChanged(WPARAM wParam, LPARAM lParam);
    LRESULT onDisplayChange();
    LRESULT onTimer(WPARAM id);
    LRESULT onCommand(WPARAM wParam);
    bool onKey(int key);
    bool focusNextControl(int shift);
    bool stepHistoryOfSelected(bool back);

    WindowsFileStore store_;
    WindowsCodePage codePage_;
    WindowsMessagePresenter messages_;
    INIFile optionsFile_{store_, codePage_, messages_};
    Options options_;
    ToolSettings toolSettings_;
    SpecialRatios ratios_;
    ToolMaker factory_{toolSettings_, ratios_};
    FocusMemory focus_;
    int mode_ = mode::edit;
    /// The mode whose button is lit; during a change the new one already.
    int lit_ = mode::edit;
    int dpi_ = USER_DEFAULT_SCREEN_DPI;
    SettingsHeight height_;
    std::unique_ptr<CommandBar> bar_;
    Subscription chosen_;
    bool worksheetMaxSized_ = false;
    std::unique_ptr<frmWorksheet> worksheet_;
    Subscription worksheetResized_;
    std::unique_ptr<frmResizer> resizer_;
    Subscription worksheetPlaced_;
    clsGlobalEvents globalEvents_;
    Subscription fontSizeChange_;
    StandardControl check1_;
    std::unique_ptr<ViewPane> view_;
    std::unique_ptr<ToolsPane> tools_;
    std::unique_ptr<MouseWheelHook> wheelHook_;
    /// The parts of the window are gone or going; the system handles what comes.
    bool closed_ = false;
    ProgramLife life_{*this};
    /// What was shown of the windows that have been put aside.
    bool lensAside_ = false;
    bool frameAside_ = false;
};

}  // namespace ormala
