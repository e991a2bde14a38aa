#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "pictures/pictures.h"
#include "platform/win/Timer.h"
#include "platform/win/fonts.h"
#include "widgets/ButtonDesign.h"
#include "widgets/ButtonModel.h"
#include "widgets/buttonShape.h"
#include "widgets/win/PaintedControl.h"
#include "widgets/win/buttonPainter.h"

namespace ormala {

/// The push button of the program's own look, with a caption, a picture or both. A toggle follows
/// its `Value`, which only its owner changes. A handler of any event may destroy it.
class ZelvikButtonXP : public PaintedControl, public ButtonEvents, private ButtonSurface {
  public:
    /// A visible child of `parent` without a size; a side that is placed below 10 pixels at 96 DPI
    /// becomes that. `name` is its control name.
    ZelvikButtonXP(HWND parent, int id, std::string_view name);
    ~ZelvikButtonXP() override { destroy(); }

    /// A letter after "&" is the access key, which the owner routes to `pressAccessKey`.
    void setCaption(std::string_view caption);
    [[nodiscard]] const std::string& Caption() const { return design_.Caption; }
    /// Also the window's text while there is no caption.
    void SetTooltip(const std::string& text);
    [[nodiscard]] bool Enabled() const { return model_.Enabled(); }
    void setEnabled(bool enabled);
    /// 0 a push button, 1 a toggle, 2 a toggle that is one of several.
    [[nodiscard]] int ControlType() const { return model_.ControlType(); }
    void setControlType(int type) { model_.setControlType(type); }
    [[nodiscard]] bool Value() const { return model_.Value(); }
    void setValue(bool value);
    [[nodiscard]] bool AlwaysUp() const { return model_.AlwaysUp(); }
    void setAlwaysUp(bool alwaysUp) { model_.setAlwaysUp(alwaysUp); }

    // How it looks; see `ButtonDesign`.
    void setPicturePosition(int position) { design(&ButtonDesign::PicturePosition, position); }
    void setShowFocusRect(bool shown) { design(&ButtonDesign::ShowFocusRect, shown); }
    void setXPColor_Pressed(Color color) { design(&ButtonDesign::XPColor_Pressed, color); }
    void setXPColor_Hover(Color color) { design(&ButtonDesign::XPColor_Hover, color); }
    void setXPDefaultColors(bool used) { design(&ButtonDesign::XPDefaultColors, used); }
    void setBackColor(Color color) { design(&ButtonDesign::BackColor, color); }
    void setForeColor(Color color) { design(&ButtonDesign::ForeColor, color); }
    void setGreyPicture(bool grey) { design(&ButtonDesign::GreyPicture, grey); }
    void setPlaneFace(bool plane) { design(&ButtonDesign::PlaneFace, plane); }
    void setSign(ButtonSign sign) { design(&ButtonDesign::Sign, sign); }
    void setOpenBelow(bool open);
    void setButtonStyle(int style);
    void setUseCornerStyle(bool used);
    void setCornerStyle(int style);
    void setFont(FontLook look, int points = 8);

    /// Each picture is made when it is first painted, and again in another size.
    void setPicture(PictureMaker maker, PictureKind kind = PictureKind::drawing);
    /// Shown instead while the mouse is over the button.
    void setPictureHover(PictureMaker maker);
    /// In pixels at 96 DPI.
    void setPictureSize(int width, int height);

    /// As if the mouse had gone, whether it is over the button or not.
    void leaveMouse() { model_.mouseIsElsewhere(0); }

    /// While a press gives it the focus: a click may follow, or not.
    [[nodiscard]] bool isFocusedByPress() const { return focusedByPress_; }

    /// Where picture and caption stand in the button; empty for what it does not have.
    [[nodiscard]] ButtonContent content();

    /// Clicks if that is the access key of the caption, in either case; false if it isn't, or if
    /// the button is disabled.
    bool pressAccessKey(wchar_t key);

  protected:
    std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    struct Picture {
        PictureMaker maker;
        PixelImage image;
    };

    std::optional<LRESULT> mouseMessage(UINT message, WPARAM wParam, LPARAM lParam);
    std::optional<LRESULT> keyMessage(UINT message, WPARAM wParam);
    std::optional<LRESULT> stateMessage(UINT message, WPARAM wParam);
    std::optional<LRESULT> askedMessage(UINT message, WPARAM wParam);

    void draw(HDC context) override;
    void clipToShape(HDC context) const override;
    void tellFacts(AccessibleFacts& facts) const override;
    [[nodiscard]] HFONT textFont() const override { return font_->get(); }
    void dpiChanged() override;

    void refresh() override { invalidate(); }
    void watchMouse(bool on) override;
    void captureMouse() override;

    template <typename T>
    void design(T ButtonDesign::*member, T value) {
        if (design_.*member != value) {
            design_.*member = value;
            refresh();
        }
    }
    void showText();
    void applyShape();
    [[nodiscard]] ButtonFaceLook look();
    const PixelImage& currentPicture();
    void keepLeastSize(LPARAM lParam) const;
    LRESULT onSize();
    LRESULT press(int button, WPARAM wParam, LPARAM lParam);
    LRESULT release(int button, WPARAM wParam, LPARAM lParam);
    LRESULT move(WPARAM wParam, LPARAM lParam);
    void loseCapture();
    void lookForMouse();
    [[nodiscard]] LRESULT buttonState() const;

    ButtonDesign design_;
    ButtonModel model_{*this, *this};
    FontLook fontLook_ = FontLook::normal;
    int fontPoints_ = 8;
    SharedFont font_;
    Picture picture_;
    Picture pictureHover_;
    /// The one that the system cuts the window to.
    RoundedBox shape_;
    Timer OverTimer_{1};
    bool captured_ = false;
    bool focusedByPress_ = false;
};

}  // namespace ormala
