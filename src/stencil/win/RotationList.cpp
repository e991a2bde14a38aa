#include "stencil/win/RotationList.h"

#include <commctrl.h>

#include <utility>

#include "modAPI/colors.h"
#include "platform/win/GdiCanvas.h"
#include "platform/win/handles.h"
#include "platform/win/text.h"
#include "toolkit/PanelView.h"
#include "widgets/captionColors.h"
#include "widgets/dpi.h"

namespace ormala {

namespace {

constexpr Color fieldGround = rgb(74, 74, 74);
constexpr Color textColor = rgb(255, 230, 0);
constexpr Color quietColor = rgb(112, 112, 112);
constexpr Color edge = rgb(64, 64, 64);
constexpr Color focusMark = rgb(140, 170, 230);

/// Once the system has told all about the end of the list.
constexpr UINT wmSettle = WM_APP + 1;

constexpr int rowHeight = 17;
constexpr int textMargin = 5;
constexpr int arrowWidth = 18;
constexpr int arrowHeight = 4;

void fill(HDC context, const RECT& box, Color color) {
    SetDCBrushColor(context, colorRef(color));
    FillRect(context, &box, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
}

}  // namespace

void RotationList::create(HWND parent, int id, std::string_view name) {
    constexpr DWORD style =
        CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS | WS_VSCROLL | WS_TABSTOP;
    StandardControl::create(parent, {WC_COMBOBOXW, style, id, name, {}});
}

void RotationList::setRows(const std::vector<std::string>& texts) {
    SendMessageW(handle(), CB_RESETCONTENT, 0, 0);
    for (const std::string& text : texts) {
        SendMessageW(handle(), CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(wide(text).c_str()));
    }
    // The whole list is seen at once.
    SendMessageW(handle(), CB_SETMINVISIBLE, texts.size(), 0);
}

void RotationList::setEnabled(bool enabled) {
    EnableWindow(handle(), enabled ? TRUE : FALSE);
    InvalidateRect(handle(), nullptr, FALSE);
}

void RotationList::place(const PixelRect& box, int dpi) {
    dpi_ = dpi;
    constexpr auto field = static_cast<WPARAM>(-1);
    const int row = scaledLength(rowHeight, dpi);
    for (const WPARAM part : {field, WPARAM{0}}) {
        SendMessageW(handle(), CB_SETITEMHEIGHT, part, row);
    }
    // The open list counts to the height of such a control.
    const auto rows = static_cast<int>(SendMessageW(handle(), CB_GETCOUNT, 0, 0));
    SetWindowPos(handle(), nullptr, box.left, box.top, box.width(), box.height() + (rows + 1) * row,
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

void RotationList::select(std::optional<int> row) {
    constexpr int none = -1;
    row_ = row.value_or(none);
    SendMessageW(handle(), CB_SETCURSEL, static_cast<WPARAM>(row_), 0);
    InvalidateRect(handle(), nullptr, FALSE);
}

void RotationList::notified(int notification) {
    switch (notification) {
        case CBN_DROPDOWN:
            settling_ = false;
            choice_.opened();
            break;
        case CBN_SELCHANGE:
            if (choice_.isOpen() || settling_) {
                choice_.reached(selected());
            } else {
                row_ = selected();
                Change.raise();
            }
            break;
        case CBN_SELENDOK:
        case CBN_SELENDCANCEL:
            choice_.ended(notification == CBN_SELENDOK);
            break;
        case CBN_CLOSEUP:
            // The system may tell of the row only after this.
            choice_.closed();
            settling_ = true;
            PostMessageW(handle(), wmSettle, 0, 0);
            break;
        default:
            break;
    }
}

void RotationList::settle() {
    const int former = row_;
    select(choice_.chosen().value_or(former));
    if (row_ != former) {
        Change.raise();
    }
}

int RotationList::selected() const {
    return static_cast<int>(SendMessageW(handle(), CB_GETCURSEL, 0, 0));
}

/// The closed field is drawn by `paint`, whatever part of it the system asks for.
void RotationList::drawRow(const DRAWITEMSTRUCT& item) const {
    if ((item.itemState & ODS_COMBOBOXEDIT) != 0) {
        InvalidateRect(handle(), nullptr, FALSE);
        return;
    }
    const bool selected = (item.itemState & ODS_SELECTED) != 0;
    fill(item.hDC, item.rcItem, selected ? onColor : fieldGround);
    RECT box = item.rcItem;
    box.left += scaledLength(textMargin, dpi_);
    drawText(item.hDC, static_cast<int>(item.itemID), box,
             colorRef(selected ? rgb(0, 0, 0) : textColor));
}

void RotationList::drawText(HDC context, int row, RECT box, COLORREF color) const {
    if (row < 0) {
        return;
    }
    const LRESULT length = SendMessageW(handle(), CB_GETLBTEXTLEN, static_cast<WPARAM>(row), 0);
    std::wstring text(length > 0 ? static_cast<std::size_t>(length) : 0, L'\0');
    SendMessageW(handle(), CB_GETLBTEXT, static_cast<WPARAM>(row),
                 reinterpret_cast<LPARAM>(text.data()));
    SetBkMode(context, TRANSPARENT);
    SetTextColor(context, color);
    DrawTextW(context, text.c_str(), -1, &box, DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
}

void RotationList::drawField(HDC context) const {
    RECT box{};
    GetClientRect(handle(), &box);
    const bool enabled = IsWindowEnabled(handle()) != FALSE;
    const COLORREF color = colorRef(enabled ? textColor : quietColor);
    fill(context, box, GetFocus() == handle() ? focusMark : edge);
    InflateRect(&box, -scaledLength(1, dpi_), -scaledLength(1, dpi_));
    fill(context, box, fieldGround);
    drawArrow(context, box, color);
    box.left += scaledLength(textMargin - 1, dpi_);
    drawText(context, selected(), box, color);
}

void RotationList::drawArrow(HDC context, const RECT& client, COLORREF color) const {
    const int height = scaledLength(arrowHeight, dpi_);
    const int middle = static_cast<int>(client.right) - scaledLength(arrowWidth, dpi_) / 2;
    const int top = static_cast<int>(client.top + client.bottom - height) / 2;
    SetDCBrushColor(context, color);
    for (int row = 0; row < height; ++row) {
        const int half = height - row;
        const RECT line{middle - half, top + row, middle + half, top + row + 1};
        FillRect(context, &line, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
    }
}

LRESULT RotationList::paint() {
    const PaintScope scope(handle());
    const Selected font(scope.context(),
                        reinterpret_cast<HFONT>(SendMessageW(handle(), WM_GETFONT, 0, 0)));
    drawField(scope.context());
    return 0;
}

std::optional<LRESULT> RotationList::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_PAINT:
            return paint();
        case WM_ERASEBKGND:
            return 1;
        case wmSettle:
            if (std::exchange(settling_, false)) {
                settle();
            }
            return 0;
        case WM_LBUTTONDOWN:
        case WM_LBUTTONUP:
        case WM_SETFOCUS:
        case WM_KILLFOCUS: {
            const LRESULT result = standardHandling(message, wParam, lParam);
            InvalidateRect(handle(), nullptr, FALSE);
            return result;
        }
        default:
            return std::nullopt;
    }
}

}  // namespace ormala
