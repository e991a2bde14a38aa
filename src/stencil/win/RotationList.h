#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/Event.h"
#include "platform/win/StandardControl.h"
#include "scene/PixelRect.h"
#include "widgets/ListChoice.h"

namespace ormala {

/// A list that drops down, in the program's own look. While it is open it only proposes: leaving it
/// keeps the row. Its parent hands it the WM_DRAWITEM messages and the notifications.
class RotationList : public StandardControl {
  public:
    ~RotationList() override { destroy(); }

    void create(HWND parent, int id, std::string_view name);
    void setRows(const std::vector<std::string>& texts);
    void setEnabled(bool enabled);
    /// The place of the closed list, in the parent's pixels. All rows have room when it is open.
    void place(const PixelRect& box, int dpi);
    /// Nothing selects no row.
    void select(std::optional<int> row);
    [[nodiscard]] int selected() const;
    void notified(int notification);
    /// The user has chosen another row.
    Event<> Change;

    void drawRow(const DRAWITEMSTRUCT& item) const;

  private:
    std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void settle();
    LRESULT paint();
    void drawField(HDC context) const;
    void drawArrow(HDC context, const RECT& client, COLORREF color) const;
    void drawText(HDC context, int row, RECT box, COLORREF color) const;

    int dpi_ = 96;
    ListChoice choice_;
    /// The row that counts, -1 for none.
    int row_ = -1;
    /// The list has gone, but perhaps not all of its notifications have come.
    bool settling_ = false;
};

}  // namespace ormala
