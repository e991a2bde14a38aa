#pragma once

#include "widgets/lookColors.h"
#include "widgets/win/PaintedControl.h"

namespace ormala {

/// The base of the controls that show one line of text on the plain colour of their owner. Windows
/// of their own, so that the text can be read from outside.
class LineOfText : public PaintedControl {
  public:
    [[nodiscard]] const std::string& text() const { return text_; }
    /// Repaints only if the text is another one; likewise the colour.
    void setText(std::string_view text);
    void setBackColor(Color color) { change(backColor_, color); }

  protected:
    [[nodiscard]] Color backColor() const { return backColor_; }
    void tellFacts(AccessibleFacts& facts) const override;

    template <typename T>
    void change(T& member, const T& value) {
        if (member != value) {
            member = value;
            invalidate();
        }
    }

  private:
    std::string text_;
    Color backColor_ = dark::ground;
};

}  // namespace ormala
