#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/win/fonts.h"
#include "scene/Canvas.h"
#include "widgets/gradient.h"
#include "widgets/win/LineOfText.h"

namespace ormala {

/// A read-out. A text without room ends in an ellipsis, and the tip tells all of it. Its mouse
/// events go to its parent.
class Label : public LineOfText {
  public:
    /// A visible child of `parent` without a size. `name` is its control name.
    Label(HWND parent, int id, std::string_view name);
    ~Label() override { destroy(); }

    // Each repaints only what changes.
    void setTextColor(Color color) { change(textColor_, color); }
    void setAlignment(Alignment alignment) { change(alignment_, alignment); }
    void setBold(bool bold);
    /// In points; at first 8.
    void setFontSize(int points);
    /// The ground is a gradient from top to bottom, which continues that of a `GradShape` behind
    /// it of the same height.
    void setGradient(Color top, Color bottom);
    [[nodiscard]] HFONT font() const { return font_->get(); }
    void SetTooltip(const std::string& text) { ownTip_ = text; }
    /// The text that the tip shows now: the whole text if it is cut, and what the tip says itself.
    [[nodiscard]] std::string tipText() const;
    /// A disabled one is dimmed.
    void setEnabled(bool enabled);

  private:
    std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void draw(HDC context) override;
    [[nodiscard]] HFONT textFont() const override { return font(); }
    void dpiChanged() override { setBold(bold_); }
    void drawGround(HDC context, const RECT& area) const;
    [[nodiscard]] std::string drawnText() const;
    [[nodiscard]] bool isCut() const;

    Color textColor_ = dark::text;
    std::optional<GradientDesign> gradient_;
    Alignment alignment_ = Alignment::left;
    bool bold_ = false;
    int points_ = 8;
    SharedFont font_;
    std::string ownTip_;
};

}  // namespace ormala
