#pragma once

#include <string_view>

#include "platform/win/Window.h"
#include "worksheet/MousePort.h"

namespace ormala {

/// One line of the cross hair: a faint black window, a pixel wide or high, that lies above all and
/// takes no click.
class frmCrossHair : public Window {
  public:
    /// Stays hidden. `owner` is the worksheet, above which it lies.
    frmCrossHair(HWND owner, std::string_view name);

    /// Without activating it and without a change of what lies above it.
    void move(const CrossHairLine& line) const;

  private:
    std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    LRESULT onErase(HDC context) const;
};

}  // namespace ormala
