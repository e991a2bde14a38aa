#pragma once

#include <functional>

#include "app/ViewState.h"
#include "magnifier/win/frmLens.h"
#include "worksheet/win/frmWorksheet.h"

namespace ormala {

/// The magnifier in the program: its place among the windows, and what its state says of it.
class LensPane : private LensCommands {
  public:
    struct Ports {
        frmWorksheet& worksheet;
        ViewState& state;
        std::function<void(Command)> execute;
        /// Pops the magnifier's menu up at a point of the screen.
        std::function<void(PixelPoint screen)> showMenu;
    };

    /// Hidden, and aside until the program is loaded. All must outlive it.
    explicit LensPane(Ports ports);

    [[nodiscard]] frmLens& lens() { return frmLens_; }
    [[nodiscard]] const frmLens& lens() const { return frmLens_; }
    /// The state may have changed.
    void showState();
    /// Hides it for a moment, or lets it show again, without a change of what the user wants.
    void setAside(bool aside);
    /// In front of the others, without activating it; false if it is hidden, or, if only one that
    /// follows the mouse is meant, stands where the user has put it.
    bool raise(bool onlySticked);

  private:
    bool takeKey(int key, int modifiers) override;
    void showLensMenu(PixelPoint screen) override { ports_.showMenu(screen); }
    PixelRect RefreshScreenBounds() override;

    void tellOrigin();
    void showOrHide();

    Ports ports_;
    bool aside_ = true;
    frmLens frmLens_;
    Subscription closeRequested_;
    Subscription worksheetPlaced_;
};

}  // namespace ormala
