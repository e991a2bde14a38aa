#pragma once

#include <functional>

#include "app/win/frmMenu.h"
#include "magnifier/win/frmLens.h"
#include "storage/INIFile.h"
#include "worksheet/win/frmWorksheet.h"

namespace ormala {

class ViewHost;

/// The magnifier in the program: its place among the windows, its menu and its section of the
/// options file.
class LensPane : private LensCommands {
  public:
    struct Ports {
        ViewHost& host;
        frmWorksheet& worksheet;
        const frmMenu& menu;
        std::function<void(int page)> showOptions;
        /// Pops the magnifier's menu up at a point of the screen.
        std::function<void(POINT screen)> showMenu;
        /// The user has closed the window.
        std::function<void()> closed;
    };

    /// Hidden. All must outlive it.
    explicit LensPane(Ports ports);

    [[nodiscard]] frmLens& lens() { return frmLens_; }
    [[nodiscard]] const frmLens& lens() const { return frmLens_; }
    /// Of the current section, and back to it.
    void restorePlace(INIFile& options);
    void savePlace(INIFile& options) const;

    void setVisible(bool visible);
    /// Hides it for a moment, or shows it again, without a change of what the user wants.
    void setAside(bool aside);
    /// In front of the others, without activating it; false if it is hidden, or, if only one that
    /// follows the mouse is meant, stands where the user has put it.
    bool raise(bool onlySticked);

    /// An entry of its menu; false for any other one.
    bool choose(MenuEntry entry);

  private:
    void SetMode(int mode, bool minimise) override;
    void ShowHelp() override;
    void ShowOptions(int page) override { ports_.showOptions(page); }
    void showLensMenu(PixelPoint screen) override;
    PixelRect RefreshScreenBounds() override;

    void tellOrigin();
    void showMenuState();

    Ports ports_;
    frmLens frmLens_;
    Subscription menuChanged_;
    Subscription closeRequested_;
    Subscription worksheetPlaced_;
    Subscription worksheetPainted_;
};

}  // namespace ormala
