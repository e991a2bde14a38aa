#pragma once

#include <optional>
#include <string_view>

#include "platform/win/Window.h"
#include "widgets/scrollLayout.h"

namespace ormala {

class ScrollButton;

/// The bar that a button is part of. It looks after all that its buttons do.
class ScrollButtonHost {
  public:
    virtual std::optional<LRESULT> buttonMessage(ScrollButton& button, UINT message, WPARAM wParam,
                                                 LPARAM lParam) = 0;

  protected:
    ~ScrollButtonHost() = default;
};

/// An arrow or the thumb of a scroll bar as a window, which can have the focus and a text.
class ScrollButton : public Window {
  public:
    ScrollButton(ScrollButtonHost& host, ScrollPart part) : host_(host), part_(part) {}

    /// `id` is the control ID within the bar.
    void open(HWND bar, int id, std::string_view name);
    [[nodiscard]] ScrollPart part() const { return part_; }
    /// Moves it without painting, and hides it where the place is empty.
    void place(const PixelRect& box) const;

  private:
    std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

    ScrollButtonHost& host_;
    ScrollPart part_;
};

}  // namespace ormala
