#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/win/Accessible.h"
#include "platform/win/TipWindow.h"
#include "platform/win/Window.h"
#include "platform/win/fonts.h"
#include "scene/Canvas.h"
#include "widgets/gradient.h"

namespace ormala {

/// A read-out: one line of text on the plain colour of its owner. A text without room ends in an
/// ellipsis, and the tip tells all of it. A window of its own, so that its text can be read from
/// outside; its mouse events go to its parent.
class Label : public Window {
  public:
    /// A visible child of `parent` without a size. `name` is its control name.
    Label(HWND parent, int id, std::string_view name);
    ~Label() override { destroy(); }

    [[nodiscard]] const std::string& text() const { return text_; }
    /// Repaints only if the text is another one, as do all that follow.
    void setText(std::string_view text);
    void setTextColor(Color color) { change(textColor_, color); }
    void setBackColor(Color color) { change(backColor_, color); }
    void setAlignment(Alignment alignment) { change(alignment_, alignment); }
    void setBold(bool bold);
    /// In points; at first 8.
    void setFontSize(int points);
    /// The ground is a gradient from top to bottom, which continues that of a `GradShape` behind
    /// it of the same height.
    void setGradient(Color top, Color bottom);
    [[nodiscard]] HFONT font() const { return font_->get(); }
    /// The resolution of the screen that it is drawn for; at first that of its window.
    void setDpi(int dpi);
    void SetTooltip(const std::string& text) { ownTip_ = text; }
    /// The text that the tip shows now: the whole text if it is cut, and what the tip says itself.
    [[nodiscard]] std::string tipText() const;
    /// A disabled one is dimmed.
    void setEnabled(bool enabled);

  private:
    std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    LRESULT paint();
    void drawGround(HDC context, const RECT& area) const;
    void drawText(HDC context, const RECT& area) const;
    LRESULT tellFacts(AccessibleFacts& facts) const;
    [[nodiscard]] std::string drawnText() const;
    [[nodiscard]] bool isCut() const;
    void showTip(UINT message, WPARAM wParam, LPARAM lParam);

    template <typename T>
    void change(T& member, T value) {
        if (member != value) {
            member = value;
            InvalidateRect(handle(), nullptr, FALSE);
        }
    }

    std::string text_;
    Color textColor_ = dark::text;
    Color backColor_ = dark::ground;
    std::optional<GradientDesign> gradient_;
    Alignment alignment_ = Alignment::left;
    bool bold_ = false;
    int points_ = 8;
    int dpi_ = 96;
    SharedFont font_;
    std::string ownTip_;
    HoverTip tip_;
};

}  // namespace ormala
