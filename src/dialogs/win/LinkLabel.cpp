#include "dialogs/win/LinkLabel.h"

#include <oleacc.h>
#include <windowsx.h>

#include "platform/win/Accessible.h"
#include "platform/win/BackBuffer.h"
#include "platform/win/GdiCanvas.h"
#include "platform/win/controlName.h"
#include "platform/win/fills.h"
#include "platform/win/regions.h"
#include "platform/win/text.h"
#include "scene/dpi.h"
#include "widgets/lookColors.h"

namespace ormala {

namespace {

/// Round the text, for the mark of the focus, in pixels at 96 DPI.
constexpr int margin = 2;

FontHandle underlined(const FontHandle& font) {
    LOGFONTW face{};
    GetObjectW(font.get(), sizeof(face), &face);
    face.lfUnderline = TRUE;
    return FontHandle(CreateFontIndirectW(&face));
}

}  // namespace

LinkLabel::LinkLabel(HWND parent, int id, std::string_view name) {
    WindowDesign design;
    design.className = L"LinkLabel";
    design.classStyle = CS_HREDRAW | CS_VREDRAW;
    design.style = WS_CHILD | WS_VISIBLE | WS_TABSTOP;
    design.owner = parent;
    design.id = id;
    create(design);
    setControlName(handle(), name);
    setDpi(static_cast<int>(GetDpiForWindow(handle())));
}

void LinkLabel::refresh() {
    InvalidateRect(handle(), nullptr, FALSE);
}

void LinkLabel::setText(const std::string& text) {
    text_ = text;
    setCaption(text);
    refresh();
}

void LinkLabel::setBackColor(Color color) {
    backColor_ = color;
    refresh();
}

void LinkLabel::setDpi(int dpi) {
    if (dpi_ != dpi) {
        dpi_ = dpi;
        font_ = underlined(controlFont(dpi, FontLook::normal));
        refresh();
    }
}

void LinkLabel::draw(HDC context, const RECT& area) const {
    fillRect(context, area, backColor_);
    const Selected font(context, font_.get());
    SetBkMode(context, TRANSPARENT);
    SetTextColor(context, colorRef(dark::text));
    RECT place = area;
    InflateRect(&place, -scaledLength(margin, dpi_), 0);
    DrawTextW(context, wide(text_).c_str(), -1, &place,
              DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
    if (GetFocus() == handle()) {
        frameRect(context, fromRect(area), lineWidthAt(dpi_), dark::focusMark);
    }
}

LRESULT LinkLabel::onPaint() {
    const PaintScope scope(handle());
    const RECT area = clientRectangle();
    BackBuffer buffer;
    if (buffer.resize({static_cast<int>(area.right), static_cast<int>(area.bottom)})) {
        draw(buffer.context(), area);
        BitBlt(scope.context(), 0, 0, area.right, area.bottom, buffer.context(), 0, 0, SRCCOPY);
    }
    return 0;
}

LRESULT LinkLabel::click() {
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

LRESULT LinkLabel::onAccessibleFacts(LPARAM lParam) const {
    AccessibleFacts& facts = wantedFacts(lParam);
    facts.name = text_;
    facts.role = ROLE_SYSTEM_LINK;
    facts.action = "Jump";
    facts.actionMessage = BM_CLICK;
    return TRUE;
}

std::optional<LRESULT> LinkLabel::inputMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
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
            return std::nullopt;
    }
}

std::optional<LRESULT> LinkLabel::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_PAINT:
            return onPaint();
        case WM_ERASEBKGND:
            return 1;
        case WM_SETFOCUS:
        case WM_KILLFOCUS:
            refresh();
            return 0;
        case WM_GETFONT:
            return reinterpret_cast<LRESULT>(font_.get());
        case WM_GETOBJECT:
            return answerAccessible(handle(), wParam, lParam);
        case accessibleFactsMessage:
            return onAccessibleFacts(lParam);
        default:
            return inputMessage(message, wParam, lParam);
    }
}

}  // namespace ormala
