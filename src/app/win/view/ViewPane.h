#pragma once

#include <functional>
#include <memory>
#include <optional>

#include "app/ViewState.h"
#include "app/win/shell/frmSettings.h"
#include "app/win/shell/settingsIds.h"
#include "app/win/view/CopiedText.h"
#include "app/win/view/LensPane.h"
#include "app/win/view/ScreenShot.h"
#include "app/win/view/frmMenu.h"
#include "dialogs/OptionsPort.h"
#include "platform/win/Timer.h"
#include "worksheet/win/frmResizer.h"

namespace ormala {

class frmOptions;

/// What the program shows besides the tools: the aids and the look of the worksheet, the
/// magnifier, the popup menus, the options dialog, the screen shot and the help. Buttons and menus
/// show what the view's state says, whichever of them was used.
class ViewPane : public OptionsPort {
  public:
    struct Ports {
        frmSettings& window;
        frmWorksheet& worksheet;
        frmResizer& resizer;
        ViewState& state;
        /// A command from a menu, or from a key of the magnifier.
        std::function<void(Command)> execute;
    };

    /// All must outlive it. The magnifier stays hidden until it is let show.
    explicit ViewPane(const Ports& ports);
    ~ViewPane() override;

    /// Brings the state to all that show it.
    void showState();
    /// The mode is another one.
    void showMode(Mode mode);
    /// A command of the view; false for any other one.
    bool execute(Command command);
    /// Opens the worksheet's menu once the event is over that asks for it.
    void ShowContextMenu(POINT screen);
    [[nodiscard]] OptionValues optionValues() const override { return ports_.state.values(); }
    void applyOptions(const OptionValues& values) override;
    /// The options dialog on one of its pages, from 0, or on the last one for -1.
    void ShowOptions(int Page);
    /// False, with a message, if there is no help or nothing to show it with.
    bool ShowHelp();
    /// In the place of the path, for as long as it takes to read it; an empty one ends the last.
    void showNote(const std::string& text);
    /// Puts a text on the clipboard and tells of it.
    void copy(TextCopy copied) { copied_.put(std::move(copied)); }
    /// The control window in front of the worksheet, and a magnifier beside the mouse in front of
    /// both.
    void raiseAboveAll();
    /// Hides the magnifier and the worksheet's frame, which would lie under a drag on the screen,
    /// and lets the mouse through the worksheet, or undoes all of that.
    void putWindowsAside(bool aside);

    /// For that moment the view is not what the user has made it, and takes no command.
    [[nodiscard]] bool takesScreenShot() const { return takesScreenShot_; }

    /// Made at the first call, which the start leaves until the worksheet is painted.
    [[nodiscard]] LensPane& lens();
    /// As that of the magnifier, if it is made.
    bool raiseLens(bool onlySticked);
    [[nodiscard]] frmMenu& menu() { return frmMenu_; }

    /// The user has closed the options dialog with OK, and everything has been set.
    Event<> applied;
    /// The texts of the program are those of another language; the windows are told afterwards.
    Event<> languageChanged;

  private:
    LensPane& makeLens();
    /// If it is made.
    void tellLens(const std::function<void(LensPane&)>& tell);
    void changeLanguage(int language);

    void loadLook();
    void takeLook();
    void takeScreenShot();
    void copyColor();
    void onTimer(UINT_PTR timer);
    [[nodiscard]] HWND ownerOfDialogs() const;
    void askForLensMenu(PixelPoint screen);
    void popUpMenu(HMENU menu, const Window& owner, POINT place) const;

    Ports ports_;
    frmMenu frmMenu_;
    std::optional<LensPane> lens_;
    std::unique_ptr<frmOptions> frmOptions_;
    ScreenShot shot_;
    CopiedText copied_;
    Timer tmrNote_{tmrNote};
    bool takesScreenShot_ = false;
    /// Whether the frame is to be shown again that has been put aside.
    bool frameAside_ = false;
    std::vector<Subscription> subscriptions_;
};

}  // namespace ormala
