#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "dialogs/LineSelectModel.h"
#include "dialogs/win/HeldMouse.h"
#include "platform/win/BackBuffer.h"
#include "platform/win/TipWindow.h"
#include "platform/win/Window.h"

namespace ormala {

/// Shows a sample of each line style in a row of its own, of which the user chooses one by mouse or
/// keys. A frame stands round the chosen row.
class ctlLineSelect : public Window {
  public:
    /// A visible child of `parent` without a size. `name` is its control name.
    ctlLineSelect(HWND parent, int id, std::string_view name);
    ~ctlLineSelect() override { destroy(); }

    /// The chosen row, and as well its line code: 0 dotted, 1 dashed, n >= 2 solid, n - 1 pixels.
    [[nodiscard]] int LineIndex() const { return model_.LineIndex(); }
    /// An index beyond an end becomes that end. Raises no `Change`.
    void setLineIndex(int index);

    /// Enter is a double click, as at first, or goes to the dialog.
    void setTakesEnter(bool takes) { takesEnter_ = takes; }
    /// The resolution of the screen that it is drawn for; at first that of its window.
    void setDpi(int dpi);
    /// In pixels; `index` from 0 to 4.
    [[nodiscard]] PixelRect picLine(int index) const;
    [[nodiscard]] PixelRect shpFocus() const { return model_.shpFocus(); }

    /// Also what screen readers call the control.
    void SetTooltip(const std::string& text) { tip_.setText(text); }

    /// The user has chosen another row. A handler must not destroy the list.
    Event<> Change;
    /// A double click or Enter. A handler may destroy the list.
    Event<> DoubleClick;

  private:
    std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    LRESULT onPaint();
    LRESULT onSize();
    LRESULT onFocus();
    LRESULT onAccessibleFacts(LPARAM lParam) const;
    void showChoice();
    void paint(HDC context, const RECT& client) const;
    void paintRow(HDC context, int index) const;

    LineSelectModel model_;
    HeldMouse mouse_{model_};
    BackBuffer buffer_;
    HoverTip tip_;
    int dpi_ = 96;
    bool takesEnter_ = true;
    Subscription changing_;
    Subscription ending_;
};

}  // namespace ormala
