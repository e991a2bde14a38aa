#include "worksheet/win/frmCrossHair.h"

#include "platform/win/controlName.h"

namespace ormala {

namespace {

constexpr BYTE opacity = 84;
constexpr UINT keepOrder = SWP_NOACTIVATE | SWP_NOZORDER | SWP_NOOWNERZORDER;

}  // namespace

frmCrossHair::frmCrossHair(HWND owner, std::string_view name) {
    WindowDesign design;
    design.className = L"frmCrossHair";
    design.style = WS_POPUP;
    design.extendedStyle = WS_EX_LAYERED | WS_EX_TRANSPARENT | WS_EX_TOPMOST | WS_EX_NOACTIVATE;
    design.owner = owner;
    design.place = {0, 0, 1, 1};
    create(design);
    setControlName(handle(), name);
    SetLayeredWindowAttributes(handle(), 0, opacity, LWA_ALPHA);
}

void frmCrossHair::move(const CrossHairLine& line) const {
    const PixelRect& to = line.place;
    SetWindowPos(handle(), nullptr, to.left, to.top, to.width(), to.height(),
                 keepOrder | (line.shown ? SWP_SHOWWINDOW : SWP_HIDEWINDOW));
}

std::optional<LRESULT> frmCrossHair::onMessage(UINT message, WPARAM wParam, LPARAM /*lParam*/) {
    switch (message) {
        case WM_ERASEBKGND:
            return onErase(reinterpret_cast<HDC>(wParam));
        case WM_NCHITTEST:
            return HTTRANSPARENT;
        case WM_DPICHANGED:
            // A pixel stays a pixel on every screen.
            return 0;
        default:
            return std::nullopt;
    }
}

LRESULT frmCrossHair::onErase(HDC context) const {
    const RECT client = clientRectangle();
    FillRect(context, &client, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
    return 1;
}

}  // namespace ormala
