#pragma once

#include <memory>

#include "app/Options.h"
#include "app/win/CommandBar.h"
#include "app/win/LensPane.h"
#include "app/win/ScreenShot.h"
#include "app/win/ViewHost.h"
#include "app/win/WorksheetControls.h"
#include "app/win/frmMenu.h"
#include "dialogs/OptionsPort.h"
#include "scene/ToolSettings.h"
#include "worksheet/win/frmWorksheet.h"

namespace ormala {

class frmOptions;

/// What the program shows besides the tools, and what the user sets of it: the aids on the
/// worksheet with their toggles, the look of the worksheet, the magnifier, the popup menus, the
/// options and the screen shot.
/// Buttons and menus never disagree, whichever of them was used.
class ViewPane : public OptionsPort {
  public:
    struct Ports {
        /// The control window.
        const Window& window;
        ViewHost& host;
        CommandBar& bar;
        frmWorksheet& worksheet;
        Options& options;
        ToolSettings& toolSettings;
    };

    /// All must outlive it.
    explicit ViewPane(const Ports& ports);
    ~ViewPane() override;

    /// Brings the options to those who own them in the running program, all but the visibility of
    /// the magnifier, whose place comes from the file.
    void load(INIFile& file);
    /// Fetches the options from their owners.
    void fetchOptions();

    void SetGrid(bool enabled);
    void SetCrossHair(bool enabled);
    void SetCircleCompass(bool enabled);
    void SetReferenceLines(bool enabled);
    void SetLens(bool visible);
    /// Shows on buttons and menus what their owners say.
    void RefreshToggleStates();

    void layOut(const SettingsLayout& layout, int dpi);
    void ApplyLanguage() { controls_.ApplyLanguage(); }
    void modeChanged(int mode) { lens_.lens().SetMode(mode); }

    /// A command of the view; false for any other one.
    bool execute(Command command);
    /// Opens the worksheet's menu once the event is over that asks for it.
    void ShowContextMenu(POINT screen);
    /// The options dialog on one of its pages, from 0, or on the last one for -1.
    void ShowOptions(int Page);
    [[nodiscard]] OptionValues optionValues() const override;
    void applyOptions(const OptionValues& values) override;
    [[nodiscard]] LensPane& lens() { return lens_; }
    /// A message that the pane has sent the window.
    std::optional<LRESULT> onMessage(UINT message, WPARAM wParam);

    /// A timer of the control window that is not its own.
    void tick(UINT_PTR timer);

    /// For that moment the view is not what the user has made it, and takes no command.
    [[nodiscard]] bool takesScreenShot() const { return shotOf_.has_value(); }

    [[nodiscard]] frmMenu& menu() { return frmMenu_; }

  private:
    void changeLanguage(int language);

    [[nodiscard]] ToggleStates toggleStates() const;
    void toggle(Command command, bool on);
    void choose(MenuEntry entry);
    void takeScreenShot();
    void showNote(const std::string& text);
    [[nodiscard]] HWND ownerOfDialogs() const;
    void applyTransparency();
    void applyColor();
    void askForMenu(bool ofLens, POINT screen);
    void popUpMenu(bool ofLens);

    Ports ports_;
    WorksheetControls controls_;
    frmMenu frmMenu_;
    LensPane lens_;
    std::unique_ptr<frmOptions> frmOptions_;
    POINT menuPlace_{};
    /// What was shown before the screen shot that is being taken.
    std::optional<ToggleStates> shotOf_;
    ScreenShot shot_;
    Subscription shotTold_;
    Subscription editTransparency_;
    Subscription templateTransparency_;
    Subscription color_;
};

}  // namespace ormala
