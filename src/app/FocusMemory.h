#pragma once

#include "worksheet/ForegroundMemory.h"

namespace ormala {

/// Tells whether a panel gets the keyboard because the user wants it there or because the program
/// comes back from behind another one: a click that brings it back selects nothing. Windows are
/// compared only.
class FocusMemory {
  public:
    using Window = const void*;

    /// Shared with the worksheet, which tells the same of its tools.
    [[nodiscard]] ForegroundMemory& foreground() { return foreground_; }

    /// The program has come to the front, or another one has.
    void programActivated(bool active);
    /// A mouse button goes down in the control window, in a panel or elsewhere. Told before the
    /// activation that it brings.
    void pressed(bool onPanel);
    /// `fromOwnWindow`: another window of the program was active until now.
    void controlActivated(Window control, bool fromOwnWindow);
    void controlDeactivated();
    /// The control window itself gets the keyboard: whether it goes on to the panel that had it. If
    /// not, the press that is under way takes it.
    [[nodiscard]] bool passesKeyboardOn();
    /// A panel has got the keyboard: whether the user chose it. If not, it belongs to the panel of
    /// the selected tool.
    [[nodiscard]] bool panelIsChosen(Window control);

  private:
    ForegroundMemory foreground_;
    /// The program has come to the front, and no window of it has been told yet.
    bool returning_ = false;
    bool controlActive_ = false;
    /// The press that activates the control window is on a panel.
    bool pressOnPanel_ = false;
};

}  // namespace ormala
