#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "base/Event.h"
#include "toolkit/PanelView.h"
#include "toolkit/SettingControl.h"
#include "toolkit/win/ButtonGrowth.h"
#include "widgets/win/GradShape.h"
#include "widgets/win/Label.h"
#include "widgets/win/ZelvikButtonXP.h"

namespace ormala {

/// The controls of a panel, on a ground of their own that covers the panel's window. They serve one
/// panel after the other: making so many windows takes the system long, moving their ground does
/// not. Mouse events of the ground go to its parent, and so does the focus.
class PanelControls : public Window, public PanelFace {
  public:
    /// The panel that they serve. The core must outlive that.
    struct User {
        SettingControl& core;
        /// The user has gone to one of the buttons. The panel may be destroyed in it.
        std::function<void()> wentToButton;
    };

    /// A hidden child of `parent` in the present language, that serves nobody. The design must
    /// outlive it.
    PanelControls(HWND parent, const PanelDesign& design);
    ~PanelControls() override { destroy(); }

    [[nodiscard]] const PanelDesign& design() const { return design_; }

    void serve(const User& user) { user_.emplace(user); }
    /// Hidden, and as if no mouse had ever been over them. What they did for the mouse has ended
    /// for their panel, too.
    void retire();
    /// Without asking each of them to erase what it paints anyway.
    void show() const {
        SetWindowPos(handle(), nullptr, 0, 0, 0, 0,
                     SWP_SHOWWINDOW | SWP_DEFERERASE | SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER |
                         SWP_NOACTIVATE);
    }
    void setParent(HWND parent) const { SetParent(handle(), parent); }
    /// For a monitor of that resolution.
    void layOut(int dpi);
    void ApplyLanguage();
    void setFontSize(int points) const;

    /// Draws what of them lies in that part, in pixels of their ground from whose corner the
    /// context counts. False if only the system can: a grown button lies over others.
    [[nodiscard]] bool drawPart(HDC context, const PixelRect& part) const;

    /// A look at the mouse, for the buttons that grow under it.
    void growButtons() { growth_.tick(dpi_); }
    void shrinkButtons() { growth_.reset(dpi_); }

    void showTexts(const std::vector<ControlText>& texts) override;
    void showLook(const PanelLook& look) override;
    void showButton(ControlId button, const ButtonLook& look) override;
    void showPicture(ControlId button, PictureMaker maker) override;
    void enable(const PanelEnabling& enabling) override;

  private:
    /// One of the three, as its row in the design wants it.
    struct Control {
        std::unique_ptr<GradShape> band;
        std::unique_ptr<Label> label;
        std::unique_ptr<ZelvikButtonXP> button;

        void drawInto(HDC context, PixelPoint corner) const;
    };

    std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

    void makeControl(const PanelControl& row, int id);
    void makeBand(Control& made, const PanelControl& row, int id);
    void makeLabel(Control& made, const PanelControl& row, int id);
    void makeButton(Control& made, const PanelControl& row, int id);
    void connectFocus(ZelvikButtonXP& button);
    void connectClick(ZelvikButtonXP& button, const PanelControl& row);
    void connectStep(ZelvikButtonXP& button, const PanelControl& row);
    void connectHover(ZelvikButtonXP& button, const PanelControl& row);
    /// Calls it with the panel's core, if they serve one.
    template <typename Call>
    void withCore(const Call& call) {
        if (user_) {
            call(user_->core);
        }
    }
    void wentToButton() const;
    [[nodiscard]] Control& controlOf(ControlId id) { return controls_[rowOf_[id.index()]]; }
    LRESULT onPaint();

    const PanelDesign& design_;
    std::optional<User> user_;
    /// None before they are laid out.
    int dpi_ = 0;
    PanelLook look_ = unselectedLook;
    /// In the order of the design.
    std::vector<Control> controls_;
    /// By the index of their ids.
    std::vector<std::size_t> rowOf_;
    ButtonGrowth growth_{*this};
    std::vector<Subscription> subscriptions_;
};

}  // namespace ormala
