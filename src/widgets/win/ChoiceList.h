#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/win/StandardControl.h"

namespace ormala {

/// A list in the program's look, of which one row can be chosen. What follows a tab in a row stands
/// at the tab stop. Its parent hands it the messages of its drawing.
class ChoiceList : public StandardControl {
  public:
    ~ChoiceList() override { destroy(); }

    void create(HWND parent, int id, std::string_view name);
    /// From the text's left end, in pixels.
    void setTabStop(int tabStop) { tabStop_ = tabStop; }
    void fill(const std::vector<std::string>& rows);
    /// -1 chooses none; raises no notification.
    void select(int row);
    [[nodiscard]] int selected() const;

    /// The answer to WM_DRAWITEM of this list; nothing for any other message.
    std::optional<LRESULT> ownerMessage(UINT message, LPARAM lParam);

  private:
    std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void drawRow(const DRAWITEMSTRUCT& item) const;
    void fitRows();

    int id_ = 0;
    int tabStop_ = 0;
};

}  // namespace ormala
