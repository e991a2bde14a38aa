#include "widgets/win/ChoiceList.h"

#include <commctrl.h>

#include <algorithm>

#include "platform/win/GdiCanvas.h"
#include "platform/win/controlDpi.h"
#include "platform/win/fills.h"
#include "platform/win/handles.h"
#include "platform/win/text.h"
#include "scene/dpi.h"
#include "widgets/lookColors.h"

namespace ormala {

namespace {

/// From the left edge to the text, in pixels at 96 DPI.
constexpr int indent = 4;

void drawCell(HDC context, const std::wstring& text, RECT area) {
    DrawTextW(context, text.c_str(), static_cast<int>(text.size()), &area,
              DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
}

}  // namespace

void ChoiceList::create(HWND parent, int id, std::string_view name) {
    id_ = id;
    constexpr DWORD style = LBS_NOTIFY | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS | LBS_USETABSTOPS |
                            LBS_NOINTEGRALHEIGHT | WS_TABSTOP | WS_GROUP;
    StandardControl::create(parent, {WC_LISTBOXW, style, id, name, ""});
}

void ChoiceList::fill(const std::vector<std::string>& rows) {
    SendMessageW(handle(), WM_SETREDRAW, FALSE, 0);
    SendMessageW(handle(), LB_RESETCONTENT, 0, 0);
    for (const std::string& row : rows) {
        SendMessageW(handle(), LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(wide(row).c_str()));
    }
    fitRows();
    SendMessageW(handle(), WM_SETREDRAW, TRUE, 0);
    InvalidateRect(handle(), nullptr, TRUE);
}

/// All rows fill the height of the list.
void ChoiceList::fitRows() {
    RECT client{};
    GetClientRect(handle(), &client);
    const LRESULT count = SendMessageW(handle(), LB_GETCOUNT, 0, 0);
    if (count > 0) {
        const LRESULT height = std::max<LRESULT>(client.bottom / count, 1);
        SendMessageW(handle(), LB_SETITEMHEIGHT, 0, height);
    }
}

void ChoiceList::select(int row) {
    SendMessageW(handle(), LB_SETCURSEL, static_cast<WPARAM>(row), 0);
}

int ChoiceList::selected() const {
    return static_cast<int>(SendMessageW(handle(), LB_GETCURSEL, 0, 0));
}

void ChoiceList::drawRow(const DRAWITEMSTRUCT& item) const {
    const bool chosen = (item.itemState & ODS_SELECTED) != 0;
    fillRect(item.hDC, item.rcItem, chosen ? dark::on : dark::fieldGround);
    const auto length = SendMessageW(handle(), LB_GETTEXTLEN, item.itemID, 0);
    if (length == LB_ERR) {
        return;
    }
    std::wstring row(static_cast<std::size_t>(length) + 1, L'\0');
    SendMessageW(handle(), LB_GETTEXT, item.itemID, reinterpret_cast<LPARAM>(row.data()));
    row.pop_back();
    SetBkMode(item.hDC, TRANSPARENT);
    SetTextColor(item.hDC, colorRef(chosen ? dark::onText : dark::text));
    RECT area = item.rcItem;
    area.left += scaledLength(indent, controlDpi(handle()));
    const std::size_t tab = row.find(L'\t');
    drawCell(item.hDC, row.substr(0, tab), area);
    if (tab != std::wstring::npos) {
        area.left += tabStop_;
        drawCell(item.hDC, row.substr(tab + 1), area);
    }
}

std::optional<LRESULT> ChoiceList::ownerMessage(UINT message, LPARAM lParam) {
    if (message != WM_DRAWITEM) {
        return std::nullopt;
    }
    const auto& item = *reinterpret_cast<const DRAWITEMSTRUCT*>(lParam);
    if (static_cast<int>(item.CtlID) != id_) {
        return std::nullopt;
    }
    drawRow(item);
    return TRUE;
}

std::optional<LRESULT> ChoiceList::onMessage(UINT message, WPARAM /*wParam*/, LPARAM /*lParam*/) {
    if (message == WM_SIZE) {
        fitRows();
    }
    return std::nullopt;
}

}  // namespace ormala
