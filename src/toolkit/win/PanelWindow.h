#pragma once

#include <array>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "base/Event.h"
#include "platform/win/Timer.h"
#include "toolkit/SettingControl.h"
#include "toolkit/win/ButtonGrowth.h"
#include "widgets/win/GradShape.h"
#include "widgets/win/Label.h"
#include "widgets/win/ZelvikButtonXP.h"

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

/// The window of a tool's panel: the controls of its design, which show what the panel tells and
/// tell it what is done to them.
class PanelWindow : public Window, private PanelView {
  public:
    /// What a panel's window is made with. All must outlive it.
    struct Ports {
        HWND parent;
        /// Its control ID and the number in its name, from 1 on.
        int id;
        PanelHost& host;
        /// The size of type of all windows of controls, when that changes.
        Event<int>& fontSizeChange;
    };
    using MakeCore = std::function<std::unique_ptr<SettingControl>(PanelView& view)>;

    /// Invisible.
    PanelWindow(const Ports& ports, const MakeCore& makeCore);
    ~PanelWindow() override { destroy(); }

    [[nodiscard]] SettingControl& core() { return *core_; }
    /// Lays the controls out for a monitor of that resolution.
    void setDpi(int dpi);
    /// In pixels of that monitor.
    [[nodiscard]] PixelSize size() const;
    /// Whether small buttons grow under the mouse, which the panel then looks for.
    void setGrowing(bool growing);

  private:
    /// One of the three, as its row in the design wants it.
    struct Control {
        std::unique_ptr<GradShape> band;
        std::unique_ptr<Label> label;
        std::unique_ptr<ZelvikButtonXP> button;
    };

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

    void makeControl(const PanelControl& row, int id);
    void makeBand(Control& made, const PanelControl& row, int id);
    void makeLabel(Control& made, const PanelControl& row, int id);
    void makeButton(Control& made, const PanelControl& row, int id);
    void connectClick(ZelvikButtonXP& button, const PanelControl& row);
    void connectStep(ZelvikButtonXP& button, const PanelControl& row);
    void connectHover(ZelvikButtonXP& button, const PanelControl& row);
    [[nodiscard]] Control& controlOf(ControlId id) { return controls_[rowOf_[id.index()]]; }
    void ApplyLanguage();
    void layOut();
    LRESULT onPaint();
    LRESULT onTimer(WPARAM id);
    void popUpMenu();

    PanelHost& host_;
    int dpi_ = USER_DEFAULT_SCREEN_DPI;
    PanelLook look_ = unselectedLook;
    /// In the order of the design.
    std::vector<Control> controls_;
    /// By the index of their ids.
    std::vector<std::size_t> rowOf_;
    std::vector<Subscription> subscriptions_;
    ButtonGrowth growth_{*this};
    Timer tmrButtonBig_{1};
    /// In the order of their enumeration.
    std::array<Timer, 2> timers_{Timer(2), Timer(3)};
    std::wstring menuText_;
    POINT menuPlace_{};
    /// Goes before all that it shows.
    std::unique_ptr<SettingControl> core_;
};

}  // namespace ormala
