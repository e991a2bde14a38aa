#include "stencil/win/RotationList.h"

#include <commctrl.h>

#include "platform/win/GdiCanvas.h"
#include "platform/win/fills.h"
#include "platform/win/handles.h"
#include "platform/win/text.h"
#include "widgets/dpi.h"
#include "widgets/lookColors.h"
#include "widgets/win/fieldLook.h"

namespace ormala {

namespace {

constexpr int rowHeight = 17;
constexpr int textMargin = 5;
constexpr int arrowWidth = 18;
constexpr int arrowHeight = 4;

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

void RotationList::otherNotification(int notification) {
    if (notification == CBN_DROPDOWN) {
        choice().opened();
    }
}

void RotationList::rowReached(int row) {
    row_ = row;
    Change.raise();
}

void RotationList::settled() {
    const int former = row_;
    select(choice().chosen().value_or(former));
    if (row_ != former) {
        Change.raise();
    }
}

/// The closed field is drawn by `paint`, whatever part of it the system asks for.
void RotationList::drawRow(const DRAWITEMSTRUCT& item) const {
    if ((item.itemState & ODS_COMBOBOXEDIT) != 0) {
        InvalidateRect(handle(), nullptr, FALSE);
        return;
    }
    const bool selected = (item.itemState & ODS_SELECTED) != 0;
    fillRect(item.hDC, item.rcItem, selected ? dark::on : dark::fieldGround);
    RECT box = item.rcItem;
    box.left += scaledLength(textMargin, dpi_);
    drawText(item.hDC, static_cast<int>(item.itemID), box,
             selected ? dark::chosenRowText : dark::text);
}

void RotationList::drawText(HDC context, int row, RECT box, Color color) const {
    if (row < 0) {
        return;
    }
    SetBkMode(context, TRANSPARENT);
    SetTextColor(context, colorRef(color));
    DrawTextW(context, wide(rowText(row)).c_str(), -1, &box,
              DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
}

void RotationList::drawField(HDC context) const {
    RECT box{};
    GetClientRect(handle(), &box);
    paintField(context, box, true, GetFocus() == handle(), dpi_);
    const Color color = isEnabled() ? dark::text : dark::dimMark;
    const int height = scaledLength(arrowHeight, dpi_);
    const int line = lineWidthAt(dpi_);
    const PixelPoint arrow{static_cast<int>(box.right) - line - scaledLength(arrowWidth, dpi_) / 2,
                           static_cast<int>(box.bottom - height) / 2};
    paintListArrow(context, arrow, height, color);
    box.left += scaledLength(textMargin, dpi_);
    drawText(context, selected(), box, color);
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
        case WM_LBUTTONDOWN:
        case WM_LBUTTONUP:
        case WM_SETFOCUS:
        case WM_KILLFOCUS: {
            const LRESULT result = standardHandling(message, wParam, lParam);
            InvalidateRect(handle(), nullptr, FALSE);
            return result;
        }
        default:
            return DropList::onMessage(message, wParam, lParam);
    }
}

}  // namespace ormala
