#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "base/Event.h"
#include "toolkit/PanelCore.h"
#include "toolkit/PanelDesign.h"
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

/// The window of a tool's panel: the controls of its design, which show what the panel's core
/// tells.
class PanelWindow : public Window, protected PanelView {
  public:
    /// What a panel's window is made with. All must outlive it.
    struct Ports {
        HWND parent;
        /// Its control ID and the number in its name, from 1 on.
        int id;
        PanelHost& host;
        ToolVisibility& visibility;
        const DayClock& clock;
        /// The shared clock of held buttons, 40 ms.
        Event<>& tmrFast;
        /// The size of type of all windows of controls, when that changes.
        Event<int>& fontSizeChange;
    };

    /// Timers of derived panels have this number and higher ones.
    static constexpr UINT_PTR firstOwnTimer = 10;

    ~PanelWindow() override;

    [[nodiscard]] virtual PanelCore& core() = 0;
    /// Lays the controls out for a monitor of that resolution.
    void setDpi(int dpi);
    /// In pixels of that monitor.
    [[nodiscard]] PixelSize size() const;
    /// Whether the list shows some of the panel: only then it looks where the mouse is.
    void setSeen(bool seen);

  protected:
    /// Invisible. The design must outlive it.
    PanelWindow(const wchar_t* className, std::string_view name, const PanelDesign& design,
                const Ports& ports);
    /// The interval of `tmrButtonBig`, in milliseconds.
    [[nodiscard]] virtual UINT growthInterval() const = 0;
    /// Connects the commands that all panels have and shows the texts, once the core stands.
    void open();

    std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

    [[nodiscard]] ZelvikButtonXP& button(std::string_view name);
    /// What a button does. A handler may end the panel.
    void onClick(std::string_view name, std::function<void()> action);
    /// The action gets the modifiers of the press.
    void onShiftClick(std::string_view name, std::function<void(int)> action);
    /// What a button does that repeats while it is held by the left mouse button or the space bar;
    /// `press` and `key` get the modifiers.
    struct Hold {
        std::function<void(int)> press;
        std::function<void(int)> key;
        std::function<void()> release;
        std::function<void()> releaseKey;
    };
    void onHold(std::string_view name, Hold hold);
    /// The mouse comes over the button or leaves it.
    void onHover(std::string_view name, const std::function<void(bool)>& action);
    [[nodiscard]] int dpi() const { return dpi_; }

    void showTexts(const std::vector<ControlText>& texts) override;
    void showLook(const PanelLook& look) override;
    void showButton(std::string_view name, const ButtonLook& look) override;
    void showLineStyle(int lineCode) override;
    void showPattern() override {}
    void enable(const PanelEnabling& enabling) override;
    void runRefreshTimer(bool run) override;
    void toolBecameSelected() override { host_.panelSelected(*this); }
    void removeRequested() override { host_.removePanel(*this, false); }
    void showMenu(const std::string& removeText) override;

  private:
    void makeControl(const PanelControl& control, int id);
    void makeBand(const PanelControl& control, int id);
    void makeLabel(const PanelControl& control, int id);
    void makeButton(const PanelControl& control, int id);
    void ApplyLanguage();
    void layOut();
    LRESULT onPaint();
    LRESULT onTimer(WPARAM id);
    void popUpMenu();
    void connectDelete();

    const PanelDesign& design_;
    PanelHost& host_;
    int dpi_;
    PanelLook look_ = unselectedLook;
    std::map<std::string, std::unique_ptr<GradShape>, std::less<>> bands_;
    std::map<std::string, std::unique_ptr<Label>, std::less<>> labels_;
    std::map<std::string, std::unique_ptr<ZelvikButtonXP>, std::less<>> buttons_;
    std::vector<Subscription> subscriptions_;
    ButtonGrowth growth_{*this};
    bool seen_ = false;
    std::wstring menuText_;
    POINT menuPlace_{};
};

}  // namespace ormala
