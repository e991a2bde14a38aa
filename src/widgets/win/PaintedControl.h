#pragma once

#include <string>
#include <string_view>

#include "modAPI/PixelRect.h"
#include "platform/win/Accessible.h"
#include "platform/win/TipWindow.h"
#include "platform/win/Window.h"

namespace ormala {

/// The base of the controls that the program paints: out of sight, so that nothing flickers, for
/// the resolution of their screen, with a tip and with facts for screen readers. A derived class
/// calls `open` in its constructor and `destroy` in its destructor.
class PaintedControl : public Window {
  public:
    /// The resolution of the screen that it is drawn for; at first that of its window.
    void setDpi(int dpi);

    /// Draws the control as it stands on a picture of its parent, at its place there.
    void drawInto(HDC context, PixelPoint corner);

  protected:
    /// How a kind of control is made.
    struct Kind {
        const wchar_t* className = L"";
        UINT classStyle = 0;
        /// Besides WS_CHILD and WS_VISIBLE.
        DWORD style = 0;
    };

    /// A visible child of `parent` without a size. `name` is its control name.
    void open(HWND parent, int id, std::string_view name, const Kind& kind);

    /// Answers what all of them answer alike; a derived class asks it first.
    std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

    [[nodiscard]] int dpi() const { return dpi_; }
    [[nodiscard]] PixelSize size() const;
    /// To be painted again.
    void invalidate() const;
    /// The same, and screen readers are told of another value.
    void invalidateValue() const;
    [[nodiscard]] const std::string& tip() const { return tip_.text(); }
    /// An empty text shows nothing.
    void setTip(const std::string& text) { tip_.setText(text); }

  private:
    /// Draws the whole client area.
    virtual void draw(HDC context) = 0;
    /// Keeps a drawing to the pixels that the window has, where they are fewer than its rectangle.
    /// The context counts from its corner.
    virtual void clipToShape(HDC /*context*/) const {}
    virtual void tellFacts(AccessibleFacts& facts) const = 0;
    /// The type of its text, null for a control without.
    [[nodiscard]] virtual HFONT textFont() const { return nullptr; }
    /// Fetches what depends on the resolution.
    virtual void dpiChanged() {}

    LRESULT paint();

    int dpi_ = 0;
    HoverTip tip_;
};

}  // namespace ormala
