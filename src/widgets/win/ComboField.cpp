#include "widgets/win/ComboField.h"

#include <commctrl.h>
#include <oleacc.h>

#include <algorithm>

#include "platform/win/handles.h"
#include "platform/win/text.h"
#include "widgets/win/darkColors.h"

namespace ormala {

namespace {

/// What a combo box adds to the height of its text, in pixels.
constexpr int heightOfEdges = 6;

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

void ComboField::setEnabled(bool enabled) {
    EnableWindow(handle(), enabled ? TRUE : FALSE);
    InvalidateRect(handle(), nullptr, FALSE);
}

void ComboField::SetTooltip(const std::string& text) {
    StandardControl::SetTooltip(text);
    field_.SetTooltip(text);
}

void ComboField::setAccessibleName(const std::string& name) {
    StandardControl::setAccessible(name, ROLE_SYSTEM_COMBOBOX);
    field_.setAccessible(name, ROLE_SYSTEM_TEXT);
}

void ComboField::notified(int notification) {
    if (notification != CBN_EDITCHANGE || correcting_ || !corrected) {
        return;
    }
    const std::string present = text();
    const std::string wanted = corrected(present);
    if (wanted != present) {
        correcting_ = true;
        setText(wanted);
        const auto end = static_cast<WPARAM>(wide(wanted).size());
        SendMessageW(field_.handle(), EM_SETSEL, end, static_cast<LPARAM>(end));
        correcting_ = false;
    }
}

void ComboField::paintArrow(HDC context, const RECT& area) const {
    const int height = std::max(2, static_cast<int>(area.right - area.left) / 4);
    const int middle = static_cast<int>(area.left + area.right) / 2;
    const int top = static_cast<int>(area.top + area.bottom - height) / 2;
    const Color color = IsWindowEnabled(handle()) != FALSE ? dark::text : dark::dimText;
    for (int i = 0; i < height; ++i) {
        const int half = height - i;
        fillRect(context, {middle - half, top + i, middle + half, top + i + 1}, color);
    }
}

LRESULT ComboField::onPaint() {
    const PaintScope scope(handle());
    RECT client{};
    GetClientRect(handle(), &client);
    const COMBOBOXINFO parts = partsOf(handle());
    const bool focused = GetFocus() == field_.handle();
    const int dpi = static_cast<int>(GetDpiForWindow(handle()));
    paintField(scope.context(), client, IsWindowEnabled(handle()) != FALSE, focused, dpi);
    paintArrow(scope.context(), parts.rcButton);
    return 0;
}

std::optional<LRESULT> ComboField::onMessage(UINT message, WPARAM wParam, LPARAM /*lParam*/) {
    switch (message) {
        case WM_PAINT:
            return onPaint();
        case WM_ERASEBKGND:
            return 1;
        default:
            return fieldColors(message, wParam);
    }
}

std::optional<LRESULT> ComboField::Field::onMessage(UINT message, WPARAM /*wParam*/,
                                                    LPARAM /*lParam*/) {
    switch (message) {
        case WM_CHAR:
            if (host_.takesKey && !host_.takesKey(text())) {
                return 0;
            }
            return std::nullopt;
        case WM_SETFOCUS:
        case WM_KILLFOCUS:
            InvalidateRect(host_.handle(), nullptr, FALSE);
            return std::nullopt;
        default:
            return std::nullopt;
    }
}

}  // namespace ormala
