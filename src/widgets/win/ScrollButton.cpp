#include "widgets/win/ScrollButton.h"

#include "platform/win/controlName.h"

namespace ormala {

void ScrollButton::open(HWND bar, int id, std::string_view name) {
    WindowDesign design;
    design.className = L"ZelvikButtonXP";
    // The class of all buttons: whichever is made first registers it.
    design.classStyle = CS_DBLCLKS;
    design.style = WS_CHILD | WS_TABSTOP;
    design.owner = bar;
    design.id = id;
    create(design);
    setControlName(handle(), name);
}

void ScrollButton::place(const PixelRect& box) const {
    const UINT visibility = box.empty() ? SWP_HIDEWINDOW : SWP_SHOWWINDOW;
    SetWindowPos(handle(), nullptr, box.left, box.top, box.width(), box.height(),
                 SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOREDRAW | SWP_NOCOPYBITS | visibility);
}

std::optional<LRESULT> ScrollButton::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    return host_.buttonMessage(*this, message, wParam, lParam);
}

}  // namespace ormala
