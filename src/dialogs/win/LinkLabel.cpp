#include "dialogs/win/LinkLabel.h"

#include <oleacc.h>
#include <windowsx.h>

#include "platform/win/GdiCanvas.h"
#include "platform/win/fills.h"
#include "platform/win/regions.h"
#include "platform/win/text.h"
#include "scene/dpi.h"

namespace ormala {

namespace {

/// Round the text, for the mark of the focus, in pixels at 96 DPI.
constexpr int linkMargin = 2;

FontHandle underlined(const FontHandle& font) {
    LOGFONTW face{};
    GetObjectW(font.get(), sizeof(face), &face);
    face.lfUnderline = TRUE;
    return FontHandle(CreateFontIndirectW(&face));
}

}  // namespace

LinkLabel::LinkLabel(HWND parent, int id, std::string_view name) {
    open(parent, id, name, {L"LinkLabel", CS_HREDRAW | CS_VREDRAW, WS_TABSTOP});
}

void LinkLabel::dpiChanged() {
    font_ = underlined(controlFont(dpi(), FontLook::normal));
}

void LinkLabel::draw(HDC context) {
    const RECT area = clientRectangle();
    fillRect(context, area, backColor());
    const Selected font(context, font_.get());
    SetBkMode(context, TRANSPARENT);
    SetTextColor(context, colorRef(dark::link));
    RECT place = area;
    InflateRect(&place, -scaledLength(linkMargin, dpi()), 0);
    DrawTextW(context, wide(text()).c_str(), -1, &place,
              DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
    if (GetFocus() == handle()) {
        frameRect(context, fromRect(area), lineWidthAt(dpi()), dark::focusMark);
    }
}

LRESULT LinkLabel::click() const {
    Click.raise();
    return 0;
}

LRESULT LinkLabel::press() {
    SetFocus(handle());
    SetCapture(handle());
    pressed_ = true;
    return 0;
}

/// Only a press that also ends here is a click.
LRESULT LinkLabel::release(LPARAM lParam) {
    if (!pressed_) {
        return 0;
    }
    ReleaseCapture();
    const RECT area = clientRectangle();
    const POINT point{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
    return PtInRect(&area, point) != FALSE ? click() : 0;
}

LRESULT LinkLabel::showHand(LPARAM lParam) {
    if (LOWORD(lParam) != HTCLIENT) {
        return DefWindowProcW(handle(), WM_SETCURSOR, reinterpret_cast<WPARAM>(handle()), lParam);
    }
    SetCursor(LoadCursorW(nullptr, IDC_HAND));
    return TRUE;
}

void LinkLabel::tellFacts(AccessibleFacts& facts) const {
    facts.name = text();
    facts.role = ROLE_SYSTEM_LINK;
    facts.action = "Jump";
    facts.actionMessage = BM_CLICK;
}

std::optional<LRESULT> LinkLabel::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_SETFOCUS:
        case WM_KILLFOCUS:
            invalidate();
            return 0;
        case WM_LBUTTONDOWN:
            return press();
        case WM_LBUTTONUP:
            return release(lParam);
        case WM_CAPTURECHANGED:
            pressed_ = false;
            return 0;
        case WM_SETCURSOR:
            return showHand(lParam);
        case WM_KEYDOWN:
            return wParam == VK_SPACE ? std::optional<LRESULT>(click()) : std::nullopt;
        case BM_CLICK:
            return click();
        case WM_GETDLGCODE:
            // So that the dialog takes it for the button that Enter presses.
            return DLGC_UNDEFPUSHBUTTON;
        default:
            return LineOfText::onMessage(message, wParam, lParam);
    }
}

}  // namespace ormala
