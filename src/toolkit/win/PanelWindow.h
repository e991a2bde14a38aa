#pragma once

#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "base/Event.h"
#include "platform/win/Timer.h"
#include "toolkit/PanelMemory.h"
#include "toolkit/SettingControl.h"
#include "toolkit/win/PanelControlStore.h"

namespace ormala {

class PanelWindow;

/// What the panels ask of the window that lists them.
class PanelHost {
  public:
    virtual ~PanelHost() = default;

    /// The panel's tool has just become the selected one.
    virtual void panelSelected(PanelWindow& panel) = 0;
    /// The user went to the panel or to one of its buttons, or the focus came back to it.
    virtual void panelGotFocus(PanelWindow& panel) = 0;
    /// The user wants tool and panel gone. They must outlive the call.
    virtual void removePanel(PanelWindow& panel, bool byMouse) = 0;
};

/// What has the keyboard and the mouse; null for what nobody has. The system is asked at once, for
/// all panels that are to be compared.
struct HeldWindows {
    HWND focus = GetFocus();
    HWND capture = GetCapture();
};

/// The window of a tool's panel. Its controls, which show what the panel tells and tell it what is
/// done to them, are there only while it has been given some: so many windows are too dear for
/// panels that nobody sees.
class PanelWindow : public Window, private PanelView {
  public:
    /// What a panel's window is made with. All must outlive it.
    struct Ports {
        HWND parent;
        /// Its control ID and the number in its name, from 1 on.
        int id;
        PanelHost& host;
        /// Of controls.
        PanelControlStore& store;
        /// The size of type of all windows of controls, when that changes.
        Event<int>& fontSizeChange;
    };
    using MakeCore = std::function<std::unique_ptr<SettingControl>(PanelView& view)>;

    /// Invisible and without controls.
    PanelWindow(const Ports& ports, const MakeCore& makeCore);
    ~PanelWindow() override;

    [[nodiscard]] SettingControl& core() { return *core_; }
    /// Lays the controls out for a monitor of that resolution.
    void setDpi(int dpi);
    /// In pixels of that monitor.
    [[nodiscard]] PixelSize size() const;
    /// Where it is to stand in the list, in pixels of the content; it moves there with `takePlace`.
    void setTop(int top) { top_ = top; }
    void takePlace();
    /// The place that it has or is to take.
    [[nodiscard]] PixelRect placeInList() const;
    /// Gives it its controls if it has none, and takes them away again. Either changes nothing of
    /// what the panel shows wherever it can be seen.
    void equip();
    void strip();
    [[nodiscard]] bool isEquipped() const { return controls_ != nullptr; }
    /// Draws a part of the panel, in its pixels, from whose corner the context counts. False if
    /// only the system can.
    [[nodiscard]] bool drawPart(HDC context, const PixelRect& part) const;
    /// One of its controls has one of them, or the panel itself has.
    [[nodiscard]] bool holds(const HeldWindows& held) const;
    /// Whether small buttons grow under the mouse, which the panel then looks for.
    void setGrowing(bool growing);

  private:
    std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

    void showTexts(const std::vector<ControlText>& texts) override;
    void showLook(const PanelLook& look) override;
    void showButton(ControlId button, const ButtonLook& look) override;
    void showPicture(ControlId button, PictureMaker maker) override;
    void enable(const PanelEnabling& enabling) override;
    void runTimer(PanelTimer timer, unsigned interval) override;
    void toolBecameSelected() override { host_.panelSelected(*this); }
    void removeRequested(bool byMouse) override { host_.removePanel(*this, byMouse); }
    void showMenu(const std::string& removeText) override;

    /// Its memory, and its controls if it has some.
    template <typename Call>
    void tell(const Call& call) {
        call(memory_);
        if (controls_) {
            call(*controls_);
        }
    }
    void ApplyLanguage();
    void growButtons();
    LRESULT onPaint();
    LRESULT onTimer(WPARAM id);
    void popUpMenu();

    PanelHost& host_;
    PanelControlStore& store_;
    int top_ = 0;
    std::optional<PixelRect> place_;
    int dpi_ = USER_DEFAULT_SCREEN_DPI;
    PanelMemory memory_;
    /// None while the panel is out of sight.
    std::unique_ptr<PanelControls> controls_;
    Timer tmrButtonBig_{1};
    /// In the order of their enumeration.
    std::array<Timer, 2> timers_{Timer(2), Timer(3)};
    std::wstring menuText_;
    POINT menuPlace_{};
    /// Goes before all that it shows.
    std::unique_ptr<SettingControl> core_;
    std::array<Subscription, 2> subscriptions_;
};

}  // namespace ormala
