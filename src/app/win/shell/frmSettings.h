#pragma once

#include <functional>
#include <memory>
#include <utility>

#include "app/FocusMemory.h"
#include "app/ProgramLife.h"
#include "app/ViewState.h"
#include "app/win/shell/CommandBar.h"
#include "app/win/shell/DeferredCalls.h"
#include "app/win/shell/FontSizeBox.h"
#include "app/win/shell/ModeMenu.h"
#include "app/win/shell/SettingsSize.h"
#include "app/win/shell/WorksheetControls.h"
#include "app/win/shell/settingsIds.h"
#include "base/Event.h"
#include "platform/win/ScreenLock.h"
#include "platform/win/Window.h"
#include "toolkit/win/GrowthWatch.h"

namespace ormala {

/// The control window and main window of the program: its buttons and their layout, the system
/// menu, and its messages. What they mean is up to those who listen.
class frmSettings : public Window {
  public:
    struct Ports {
        ProgramLife& life;
        FocusMemory& focus;
        const ViewState& view;
        clsGlobalEvents& globalEvents;
    };

    /// Stays hidden. All must outlive it.
    explicit frmSettings(const Ports& ports);
    ~frmSettings() override { destroy(); }

    [[nodiscard]] CommandBar& bar() { return parts_->bar; }
    [[nodiscard]] WorksheetControls& look() { return parts_->look; }
    [[nodiscard]] SettingsSize& size() { return size_; }

    void RefreshRuntimeStrings();
    /// Caption and system menu say the present mode.
    void showMode();
    void layOutControls();
    /// The place of the list in the client area.
    [[nodiscard]] PixelRect listPlace() const;
    /// In front of the worksheet, without activating it.
    void raise() const;
    /// Once the present event is over.
    void later(std::function<void()> call) { calls_.add(handle(), std::move(call)); }
    /// Sees a message before the control that it is for: true if it was a key of the window.
    bool preview(const MSG& message);

    /// By a button, a key or the system menu.
    Event<Command> chosen;
    /// Whether the mouse is over the window or close to it.
    [[nodiscard]] bool isMouseNear() const { return watch_.isMouseNear(); }
    /// It has come, or has gone.
    [[nodiscard]] Event<>& mouseNear() { return watch_.changed; }
    /// A timer of the window has come that is not its own.
    Event<UINT_PTR> ticked;
    /// The list has another place.
    Event<> listPlaced;
    /// The window has come to another resolution.
    Event<> dpiChanged;
    /// The monitors, or what they have for windows, may be others than before.
    Event<> displayChanged;
    /// A mouse button goes down at a place of the screen while the window is inactive. Before the
    /// activation that it brings.
    Event<POINT> pressed;
    /// The window itself has got the keyboard and does not keep it.
    Event<> keyboardArrived;
    /// The Tab key is about to give it to the next control, or backwards.
    Event<bool> tabbing;
    /// The Tab key has given it to a control.
    Event<HWND> tabbed;
    /// Its place among the other windows may be another one.
    Event<> orderChanged;
    /// Its place on the screen, its size or its order may be another one.
    Event<> placed;
    /// Tells when the user turns away.
    [[nodiscard]] ScreenLock& screenLock() { return parts_->screenLock; }

  private:
    std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

    /// The child windows.
    struct Parts {
        Parts(const frmSettings& window, clsGlobalEvents& globalEvents);
        CommandBar bar;
        WorksheetControls look;
        FontSizeBox fontSizeBox;
        ScreenLock screenLock;
    };

    std::optional<LRESULT> onClose();
    std::optional<LRESULT> onSessionChange(WPARAM change);
    std::optional<LRESULT> onPower(WPARAM event);
    std::optional<LRESULT> onErase(WPARAM context) const;
    std::optional<LRESULT> onSize(WPARAM kind);
    std::optional<LRESULT> onGetMinMaxInfo(LPARAM limits) const;
    std::optional<LRESULT> onDpiChanged(WPARAM dpi, LPARAM suggested);
    /// Lays all out anew, at a place if there is one.
    void takeLayout(const std::optional<PixelRect>& place);
    std::optional<LRESULT> onScreens(UINT message, WPARAM setting);
    std::optional<LRESULT> onMouseOver();
    std::optional<LRESULT> onActivate(WPARAM kind, LPARAM otherWindow);
    std::optional<LRESULT> onMouseActivate() const;
    std::optional<LRESULT> onPlaced(LPARAM place);
    std::optional<LRESULT> onSysCommand(WPARAM entry, LPARAM place);
    std::optional<LRESULT> onTimer(UINT_PTR timer);
    std::optional<LRESULT> onCommand(WPARAM notification);
    bool focusNextControl(int held);
    bool focusButtonBeside(int key, int held) const;

    Ports ports_;
    SettingsSize size_{*this};
    std::unique_ptr<Parts> parts_;
    ModeMenu modeMenu_;
    DeferredCalls calls_;
    GrowthWatch watch_{*this, tmrButtonBig};
    Subscription buttonPressed_;
};

}  // namespace ormala
