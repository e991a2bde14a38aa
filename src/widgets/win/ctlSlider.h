#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/win/fonts.h"
#include "widgets/SliderModel.h"
#include "widgets/win/PaintedControl.h"

namespace ormala {

/// A horizontal slider with its name, its value and its ends, in the program's own look. The parts
/// are painted; the window text is the name with the value.
class ctlSlider : public PaintedControl {
  public:
    /// A visible child of `parent` without a size. `name` is its control name.
    ctlSlider(HWND parent, int id, std::string_view name);
    ~ctlSlider() override { destroy(); }

    [[nodiscard]] int Min() const { return model_.Min(); }
    void setMin(int min);
    [[nodiscard]] int Max() const { return model_.Max(); }
    void setMax(int max);
    /// The setter keeps the value in the range and raises no `Change`.
    [[nodiscard]] float Value() const { return model_.Value(); }
    void setValue(float value) { model_.setValue(value); }
    [[nodiscard]] float Step() const { return model_.Step(); }
    void setStep(float step);
    [[nodiscard]] const std::string& Caption() const { return model_.Caption(); }
    void setCaption(const std::string& caption);
    /// Of the caption at its longest value, in pixels.
    [[nodiscard]] int captionWidth() const;
    /// Leaves a caption in front of the track at least that room, so that the tracks of several
    /// sliders begin at one place.
    void setCaptionRoom(int width);
    [[nodiscard]] const std::string& MinText() const { return minText_; }
    void setMinText(const std::string& text);
    [[nodiscard]] const std::string& MaxText() const { return maxText_; }
    void setMaxText(const std::string& text);
    [[nodiscard]] bool Enabled() const { return IsWindowEnabled(handle()) != FALSE; }
    void setEnabled(bool enabled) { EnableWindow(handle(), enabled ? TRUE : FALSE); }
    /// As the user writes numbers; at first a point.
    void setDecimalSeparator(const std::string& separator);

    void SetTooltip(const std::string& text) { setTip(text); }
    /// In points; at first 8.
    void setFontSize(int points);
    [[nodiscard]] const SliderLayout& layout() const { return model_.layout(); }
    [[nodiscard]] PixelRect imgSlide() const { return model_.imgSlide(); }

    /// The user has changed the value. A handler may destroy the slider.
    Event<> Change;

  private:
    std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    std::optional<LRESULT> mouseMessage(UINT message, LPARAM lParam);
    void draw(HDC context) override;
    void tellFacts(AccessibleFacts& facts) const override;
    [[nodiscard]] HFONT textFont() const override { return font_->get(); }
    void dpiChanged() override { setFontSize(points_); }
    LRESULT press(PixelPoint point);
    LRESULT move(PixelPoint point);
    LRESULT release();
    LRESULT onCaptureChanged();
    LRESULT onEnable();
    void refresh();
    void arrange();
    void hover(bool over);
    void drawTexts(HDC context) const;
    void drawHandle(HDC context) const;

    SliderModel model_;
    std::string minText_ = "Min";
    std::string maxText_ = "Max";
    SharedFont font_;
    /// The value that screen readers were told of last.
    std::string toldValue_;
    int points_ = 8;
    int captionRoom_ = 0;
    bool hover_ = false;
    Subscription showing_;
    Subscription following_;
};

}  // namespace ormala
