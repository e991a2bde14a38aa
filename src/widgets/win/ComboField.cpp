#include "widgets/win/ComboField.h"

#include <commctrl.h>
#include <oleacc.h>

#include <algorithm>
#include <utility>

#include "platform/win/controlDpi.h"
#include "platform/win/fills.h"
#include "platform/win/handles.h"
#include "platform/win/text.h"
#include "widgets/lookColors.h"
#include "widgets/win/fieldLook.h"

namespace ormala {

namespace {

/// What a combo box adds to the height of its text, in pixels.
constexpr int heightOfEdges = 6;

constexpr DWORD allOfText = 0xFFFF0000U;

COMBOBOXINFO partsOf(HWND combo) {
    COMBOBOXINFO parts{};
    parts.cbSize = sizeof parts;
    GetComboBoxInfo(combo, &parts);
    return parts;
}

}  // namespace

void ComboField::create(HWND parent, int id, std::string_view name,
                        std::span<const std::string_view> proposals) {
    constexpr DWORD style =
        CBS_DROPDOWN | CBS_AUTOHSCROLL | WS_VSCROLL | WS_TABSTOP | WS_CLIPCHILDREN;
    StandardControl::create(parent, {WC_COMBOBOXW, style, id, name, ""});
    for (const std::string_view proposal : proposals) {
        SendMessageW(handle(), CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(wide(proposal).c_str()));
    }
    field_.attach(partsOf(handle()).hwndItem);
}

void ComboField::setFieldHeight(int height) {
    SendMessageW(handle(), CB_SETITEMHEIGHT, static_cast<WPARAM>(-1), height - heightOfEdges);
    centreText(height);
}

/// The system puts the text at the top.
void ComboField::centreText(int height) const {
    const WindowContext context(field_.handle());
    const auto font = reinterpret_cast<HFONT>(SendMessageW(handle(), WM_GETFONT, 0, 0));
    const Selected selected(context.get(), font);
    TEXTMETRICW metrics{};
    GetTextMetricsW(context.get(), &metrics);
    const RECT item = partsOf(handle()).rcItem;
    SetWindowPos(field_.handle(), nullptr, item.left, (height - metrics.tmHeight) / 2,
                 item.right - item.left, metrics.tmHeight, SWP_NOZORDER | SWP_NOACTIVATE);
}

void ComboField::SetTooltip(const std::string& text) {
    StandardControl::SetTooltip(text);
    field_.SetTooltip(text);
}

void ComboField::setAccessibleName(const std::string& name) {
    StandardControl::setAccessible(name, ROLE_SYSTEM_COMBOBOX);
    field_.setAccessible(name, ROLE_SYSTEM_TEXT);
}

bool ComboField::isDropped() const {
    return SendMessageW(handle(), CB_GETDROPPEDSTATE, 0, 0) != FALSE;
}

/// Marks the row of the present text. The system would mark one that only begins like it.
void ComboField::propose() const {
    const auto rows = static_cast<int>(SendMessageW(handle(), CB_GETCOUNT, 0, 0));
    int row = 0;
    while (row < rows && rowText(row) != former_) {
        ++row;
    }
    constexpr int none = -1;
    SendMessageW(partsOf(handle()).hwndList, LB_SETCURSEL,
                 static_cast<WPARAM>(row < rows ? row : none), 0);
}

void ComboField::showText(const std::string& text, DWORD selection) {
    const bool former = std::exchange(correcting_, true);
    if (text != this->text()) {
        setText(text);
    }
    SendMessageW(field_.handle(), EM_SETSEL, LOWORD(selection),
                 static_cast<LPARAM>(static_cast<SHORT>(HIWORD(selection))));
    correcting_ = former;
}

/// These keys would step through the rows of the closed list.
bool ComboField::openByKey(UINT message, WPARAM key) {
    const bool steps = key == VK_UP || key == VK_DOWN;
    const bool opens = message == WM_SYSKEYDOWN
                           ? steps
                           : steps || key == VK_PRIOR || key == VK_NEXT || key == VK_F4;
    if (!opens || isDropped()) {
        return false;
    }
    SendMessageW(handle(), CB_SHOWDROPDOWN, TRUE, 0);
    return true;
}

/// When the list comes up, or the button is let go that has opened it, the system takes a row that
/// begins like the text for the text.
LRESULT ComboField::mayOpen(UINT message, WPARAM wParam, LPARAM lParam) {
    const bool wasOpen = isDropped();
    const std::string before = text();
    const auto selection = static_cast<DWORD>(SendMessageW(field_.handle(), EM_GETSEL, 0, 0));
    const LRESULT result = standardHandling(message, wParam, lParam);
    if (!wasOpen && isDropped()) {
        former_ = before;
        formerSelection_ = selection;
        choice().opened();
    }
    if (isDropped()) {
        propose();
        showText(before, selection);
    }
    return result;
}

void ComboField::textChanged() {
    const std::string present = text();
    const std::string wanted = corrected ? corrected(former_, present) : present;
    former_ = wanted;
    if (wanted != present) {
        const auto caret = LOWORD(SendMessageW(field_.handle(), EM_GETSEL, 0, 0));
        const auto end = static_cast<WORD>(std::min<std::size_t>(caret, wide(wanted).size()));
        showText(wanted, MAKELONG(end, end));
    }
    formerSelection_ = static_cast<DWORD>(SendMessageW(field_.handle(), EM_GETSEL, 0, 0));
    if (choice().isOpen()) {
        choice().typed();
        propose();
    }
}

/// The system may tell of the row only after this.
void ComboField::listClosed() {
    const auto row = choice().chosen();
    showText(row ? rowText(*row) : former_, row ? allOfText : formerSelection_);
}

void ComboField::settled() {
    listClosed();
    former_ = text();
}

void ComboField::otherNotification(int notification) {
    if (notification == CBN_EDITCHANGE && !correcting_) {
        textChanged();
    }
}

void ComboField::paintArrow(HDC context, const RECT& area) const {
    const int height = std::max(2, static_cast<int>(area.right - area.left) / 4);
    const PixelPoint top{static_cast<int>(area.left + area.right) / 2,
                         static_cast<int>(area.top + area.bottom - height) / 2};
    paintListArrow(context, top, height, isEnabled() ? dark::text : dark::dimText);
}

LRESULT ComboField::onPaint() {
    const PaintScope scope(handle());
    RECT client{};
    GetClientRect(handle(), &client);
    const COMBOBOXINFO parts = partsOf(handle());
    const bool focused = GetFocus() == field_.handle();
    const int dpi = controlDpi(handle());
    paintField(scope.context(), client, isEnabled(), focused, dpi);
    paintArrow(scope.context(), parts.rcButton);
    return 0;
}

std::optional<LRESULT> ComboField::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
        case WM_LBUTTONUP:
        case CB_SHOWDROPDOWN:
            return mayOpen(message, wParam, lParam);
        case WM_MOUSEWHEEL:
            return isDropped() ? std::nullopt : std::optional<LRESULT>(0);
        case WM_SETTEXT: {
            const LRESULT result = standardHandling(message, wParam, lParam);
            if (!correcting_) {
                former_ = text();
            }
            return result;
        }
        case WM_PAINT:
            return onPaint();
        case WM_ERASEBKGND:
            return 1;
        default:
            break;
    }
    const auto answer = fieldColors(message, wParam);
    return answer ? answer : DropList::onMessage(message, wParam, lParam);
}

/// The text that a typed character would make, in place of what is marked.
bool ComboField::Field::takes(wchar_t character) const {
    constexpr wchar_t firstPrinted = L' ';
    constexpr wchar_t deletedWord = 0x7F;
    if (host_.takesKey && !host_.takesKey(text())) {
        return false;
    }
    if (!host_.takesText || character < firstPrinted || character == deletedWord) {
        return true;
    }
    std::wstring typed = wide(text());
    const auto marked = static_cast<DWORD>(SendMessageW(handle(), EM_GETSEL, 0, 0));
    const std::size_t first = std::min<std::size_t>(LOWORD(marked), typed.size());
    const std::size_t last = std::min<std::size_t>(HIWORD(marked), typed.size());
    typed.replace(first, last - first, 1, character);
    return host_.takesText(narrow(typed));
}

std::optional<LRESULT> ComboField::Field::onMessage(UINT message, WPARAM wParam,
                                                    LPARAM /*lParam*/) {
    switch (message) {
        case WM_CHAR:
            return takes(static_cast<wchar_t>(wParam)) ? std::nullopt : std::optional<LRESULT>(0);
        case WM_KEYDOWN:
        case WM_SYSKEYDOWN:
            return host_.openByKey(message, wParam) ? std::optional<LRESULT>(0) : std::nullopt;
        case WM_MOUSEWHEEL:
            return host_.isDropped() ? std::nullopt : std::optional<LRESULT>(0);
        case WM_SETFOCUS:
        case WM_KILLFOCUS:
            InvalidateRect(host_.handle(), nullptr, FALSE);
            return std::nullopt;
        default:
            return std::nullopt;
    }
}

}  // namespace ormala
