#pragma once

#include <string>
#include <string_view>

#include "base/Event.h"
#include "platform/win/StandardControl.h"
#include "platform/win/Window.h"
#include "widgets/NumericText.h"

namespace ormala {

/// A text box that holds nothing but a number.
class TextBoxNumeric : public Window {
  public:
    /// A visible child of `parent` without a size. `name` is its control name. The separator is the
    /// one of the user's locale.
    TextBoxNumeric(HWND parent, int id, std::string_view name, std::string_view decimalSeparator);
    ~TextBoxNumeric() override { destroy(); }

    /// Digits behind the separator.
    [[nodiscard]] int DecimalsMax() const { return rules_.DecimalsMax(); }
    void setDecimalsMax(int decimals) { rules_.setDecimalsMax(decimals); }
    /// 0 any sign, 1 positive only, 2 negative only.
    [[nodiscard]] int Sign() const { return rules_.Sign(); }
    void setSign(int sign) { rules_.setSign(sign); }
    /// Whether all is selected when the box gets the focus; at first it is.
    [[nodiscard]] bool MarkAllOnGotFocus() const { return markAllOnGotFocus_; }
    void setMarkAllOnGotFocus(bool mark) { markAllOnGotFocus_ = mark; }
    [[nodiscard]] bool Enabled() const { return IsWindowEnabled(handle()) != FALSE; }
    void setEnabled(bool enabled) { EnableWindow(handle(), enabled ? TRUE : FALSE); }
    /// The most characters that can be typed.
    void setMaxLength(int length);

    /// The number that the box shows; the setter raises `Change`.
    [[nodiscard]] double Value() const;
    void setValue(double value);
    [[nodiscard]] std::string Text() const { return tb_.text(); }
    /// The leading number of a text with a point, with all its digits.
    void setText(std::string_view text);

    void SetTooltip(const std::string& text) { tb_.SetTooltip(text); }
    /// What a screen reader calls the box.
    void setAccessibleName(const std::string& name);

    /// The box shows another text. A handler must not destroy the box.
    Event<> Change;

  private:
    /// The text box of the system.
    class Box : public StandardControl {
      public:
        explicit Box(TextBoxNumeric& host) : host_(host) {}
        ~Box() override { destroy(); }
        using StandardControl::standardHandling;

      private:
        std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

        TextBoxNumeric& host_;
    };

    std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    LRESULT onPaint();
    LRESULT onTextMessage(UINT message, WPARAM wParam, LPARAM lParam);
    void placeBox();
    LRESULT onCharacter(WPARAM wParam, LPARAM lParam);
    LRESULT onKeyDown(WPARAM wParam, LPARAM lParam);
    LRESULT onBoxFocus(UINT message, WPARAM wParam, LPARAM lParam);
    void onTextChange();
    void show(const std::string& text);
    void select(int start, int length);
    [[nodiscard]] TypedText typed() const;

    NumericText rules_;
    Box tb_{*this};
    bool markAllOnGotFocus_ = true;
    /// The text is being replaced by this control.
    bool writing_ = false;
};

}  // namespace ormala
