#pragma once

#include "base/Event.h"
#include "platform/win/fonts.h"
#include "widgets/win/LineOfText.h"

namespace ormala {

/// A line of text that opens something: by a click, by Space, and by Enter as the dialog's button
/// that has the focus.
class LinkLabel : public LineOfText {
  public:
    /// A visible child of `parent` without a size. `name` is its control name.
    LinkLabel(HWND parent, int id, std::string_view name);
    ~LinkLabel() override { destroy(); }

    /// A handler must not destroy the label.
    Event<> Click;

  private:
    std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void draw(HDC context) override;
    void tellFacts(AccessibleFacts& facts) const override;
    [[nodiscard]] HFONT textFont() const override { return font_.get(); }
    void dpiChanged() override;
    LRESULT click() const;
    LRESULT press();
    LRESULT release(LPARAM lParam);
    LRESULT showHand(LPARAM lParam);

    FontHandle font_;
    bool pressed_ = false;
};

}  // namespace ormala
