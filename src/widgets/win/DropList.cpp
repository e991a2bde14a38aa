#include "widgets/win/DropList.h"

#include "platform/win/text.h"

namespace ormala {

namespace {

/// Once the system has told all about the end of the list.
constexpr UINT wmSettle = WM_APP + 1;

}  // namespace

void DropList::setEnabled(bool enabled) {
    EnableWindow(handle(), enabled ? TRUE : FALSE);
    InvalidateRect(handle(), nullptr, FALSE);
}

int DropList::selected() const {
    return static_cast<int>(SendMessageW(handle(), CB_GETCURSEL, 0, 0));
}

std::string DropList::rowText(int row) const {
    const LRESULT length = SendMessageW(handle(), CB_GETLBTEXTLEN, static_cast<WPARAM>(row), 0);
    std::wstring found(length > 0 ? static_cast<std::size_t>(length) : 0, L'\0');
    SendMessageW(handle(), CB_GETLBTEXT, static_cast<WPARAM>(row),
                 reinterpret_cast<LPARAM>(found.data()));
    return narrow(found);
}

void DropList::notified(int notification) {
    switch (notification) {
        case CBN_SELCHANGE:
            if (const int row = selected(); !choice_.reached(row)) {
                rowReached(row);
            }
            break;
        case CBN_SELENDOK:
        case CBN_SELENDCANCEL:
            choice_.ended(notification == CBN_SELENDOK);
            break;
        case CBN_CLOSEUP:
            choice_.closed();
            listClosed();
            PostMessageW(handle(), wmSettle, 0, 0);
            break;
        default:
            otherNotification(notification);
    }
}

std::optional<LRESULT> DropList::onMessage(UINT message, WPARAM /*wParam*/, LPARAM /*lParam*/) {
    if (message == wmSettle) {
        if (choice_.settle()) {
            settled();
        }
        return 0;
    }
    return std::nullopt;
}

}  // namespace ormala
