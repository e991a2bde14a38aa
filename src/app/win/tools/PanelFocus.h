#pragma once

#include "app/FocusMemory.h"
#include "app/PressGuard.h"
#include "app/RemovedTools.h"
#include "app/ToolList.h"
#include "app/win/shell/frmSettings.h"
#include "app/win/tools/PanelList.h"
#include "app/win/tools/PanelMaker.h"
#include "app/win/view/ViewPane.h"

namespace ormala {

/// The focus and the selection that panels and tools share, and where both go when a panel goes.
class PanelFocus : public PanelHost {
  public:
    struct Ports {
        frmSettings& window;
        ViewPane& view;
        FocusMemory& focus;
        PanelList& list;
        const PanelMaker& panels;
        Sheet& sheet;
        ToolList& tools;
        RemovedTools& removed;
    };

    /// All must outlive it; of the list, the panels and the tools nothing is used meanwhile.
    explicit PanelFocus(const Ports& ports);

    /// Where the panels may go, and with them the keyboard, the list keeps it.
    void keepInList();
    /// Gives the keyboard to the panel so many places below the one that has it, or above it;
    /// from none to the one of the selected tool. Its first button has the focus then.
    void goToPanel(int places);
    /// Whether a panel has the keyboard.
    [[nodiscard]] bool hasKeyboard() const { return panelWithKeyboard() != nullptr; }
    /// Whether a message of the program ends here: the second press of a double click that has
    /// removed a panel.
    bool swallows(const MSG& message);

  private:
    void panelSelected(PanelWindow& panel) override;
    void panelGotFocus(PanelWindow& panel) override;
    void removePanel(PanelWindow& panel, bool byMouse) override;

    [[nodiscard]] bool hasPanelAt(POINT screen) const;
    /// The control window has got the keyboard: the panel that had it last gets it again.
    void giveFocusToPanel();
    void SetFocusToSelectedControl();
    /// From a window that has it, itself or in a part of it.
    void passFocus(HWND from, HWND to);
    void focusWithoutSelecting(HWND window);
    void EnsurePanelVisible(const PanelWindow& panel);
    void ensureControlVisible(HWND control);
    void removeNow(HWND window);
    [[nodiscard]] HWND followerOf(PanelWindow& panel) const;
    /// Null for none.
    [[nodiscard]] PanelWindow* panelWithKeyboard() const;
    [[nodiscard]] PanelWindow* windowOf(const SettingControl* core) const;

    Ports ports_;
    /// The panel that gets the focus when the window gets it; compared only, since it may be gone.
    HWND focused_ = nullptr;
    bool restoringFocus_ = false;
    PressGuard pressGuard_;
    std::array<Subscription, 3> subscriptions_;
};

}  // namespace ormala
