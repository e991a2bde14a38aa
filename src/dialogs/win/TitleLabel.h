#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/win/Window.h"
#include "platform/win/fonts.h"
#include "widgets/lookColors.h"

namespace ormala {

/// A large line of text with its shadow.
class TitleLabel : public Window {
  public:
    /// A visible child of `parent` without a size. `name` is its control name.
    TitleLabel(HWND parent, int id, std::string_view name);
    ~TitleLabel() override { destroy(); }

    void setText(const std::string& text);
    void setBackColor(Color color);
    void setDpi(int dpi);

  private:
    std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    LRESULT onPaint();
    void draw(HDC context, const RECT& area) const;
    LRESULT onAccessibleFacts(LPARAM lParam) const;

    std::string text_;
    Color backColor_ = dark::ground;
    int dpi_ = 0;
    FontHandle font_;
};

}  // namespace ormala
