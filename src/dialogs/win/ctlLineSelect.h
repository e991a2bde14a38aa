#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "dialogs/LineSelectModel.h"
#include "dialogs/win/PickerControl.h"

namespace ormala {

/// Shows a sample of each line style in a row of its own, of which the user chooses one by mouse or
/// keys. A frame stands round the chosen row.
class ctlLineSelect : public PickerControl {
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
    /// In pixels; `index` from 0 to 4.
    [[nodiscard]] PixelRect picLine(int index) const;
    [[nodiscard]] PixelRect shpFocus() const { return model_.shpFocus(); }

    /// The user has chosen another row. A handler must not destroy the list.
    Event<> Change;
    /// A double click or Enter. A handler may destroy the list.
    Event<> DoubleClick;

  private:
    std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void draw(HDC context) override;
    void drawRow(HDC context, int index) const;

    LineSelectModel model_;
    bool takesEnter_ = true;
    Subscription changing_;
    Subscription ending_;
};

}  // namespace ormala
