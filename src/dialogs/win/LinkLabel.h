#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/Event.h"
#include "platform/win/Window.h"
#include "platform/win/fonts.h"
#include "widgets/lookColors.h"

namespace ormala {

/// A line of text that opens something: by a click, by Space, and by Enter as the dialog's button
/// that has the focus.
class LinkLabel : public Window {
  public:
    /// A visible child of `parent` without a size. `name` is its control name.
    LinkLabel(HWND parent, int id, std::string_view name);
    ~LinkLabel() override { destroy(); }

    [[nodiscard]] const std::string& text() const { return text_; }
    void setText(const std::string& text);
    void setBackColor(Color color);
    void setDpi(int dpi);

    /// A handler must not destroy the label.
    Event<> Click;

  private:
    std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    std::optional<LRESULT> inputMessage(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT onPaint();
    void draw(HDC context, const RECT& area) const;
    LRESULT click();
    LRESULT press();
    LRESULT release(LPARAM lParam);
    LRESULT showHand(LPARAM lParam);
    LRESULT onAccessibleFacts(LPARAM lParam) const;
    void refresh();

    std::string text_;
    Color backColor_ = dark::ground;
    int dpi_ = 0;
    FontHandle font_;
    bool pressed_ = false;
};

}  // namespace ormala
