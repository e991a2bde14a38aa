#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/Event.h"
#include "modAPI/PixelRect.h"
#include "modAPI/colors.h"
#include "widgets/win/DropList.h"

namespace ormala {

/// A list that drops down, in the program's own look. Its parent hands it the WM_DRAWITEM messages
/// and the notifications.
class RotationList : public DropList {
  public:
    ~RotationList() override { destroy(); }

    void create(HWND parent, int id, std::string_view name);
    void setRows(const std::vector<std::string>& texts);
    /// The place of the closed list, in the parent's pixels. All rows have room when it is open.
    void place(const PixelRect& box, int dpi);
    /// Nothing selects no row.
    void select(std::optional<int> row);
    /// The user has chosen another row.
    Event<> Change;

    void drawRow(const DRAWITEMSTRUCT& item) const;

  private:
    std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void rowReached(int row) override;
    void otherNotification(int notification) override;
    void settled() override;
    LRESULT paint();
    void drawField(HDC context) const;
    void drawText(HDC context, int row, RECT box, Color color) const;

    int dpi_ = 96;
    /// The row that counts, -1 for none.
    int row_ = -1;
};

}  // namespace ormala
