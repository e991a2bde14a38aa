#include "widgets/win/TextBoxNumeric.h"

#include <commctrl.h>
#include <oleacc.h>

#include <utility>

#include "modAPI/colors.h"
#include "platform/win/GdiCanvas.h"
#include "platform/win/controlDpi.h"
#include "platform/win/controlName.h"
#include "platform/win/regions.h"
#include "widgets/dpi.h"
#include "widgets/win/fieldLook.h"

namespace ormala {

namespace {

constexpr int idBox = 1;

/// Between the outline and the text, in pixels at 96 DPI.
constexpr int padding = 3;

}  // namespace

TextBoxNumeric::TextBoxNumeric(HWND parent, int id, std::string_view name,
                               std::string_view decimalSeparator)
    : rules_(decimalSeparator) {
    WindowDesign design;
    design.className = L"TextBoxNumeric";
    design.style = WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN;
    design.extendedStyle = WS_EX_CONTROLPARENT;
    design.owner = parent;
    design.id = id;
    create(design);
    setControlName(handle(), name);
    tb_.create(handle(), {WC_EDITW, WS_TABSTOP | ES_AUTOHSCROLL, idBox, "TB", ""});
    setValue(0);
}

void TextBoxNumeric::setAccessibleName(const std::string& name) {
    tb_.setAccessible(name, ROLE_SYSTEM_TEXT);
}

void TextBoxNumeric::setMaxLength(int length) {
    SendMessageW(tb_.handle(), EM_SETLIMITTEXT, static_cast<WPARAM>(length), 0);
}

double TextBoxNumeric::Value() const {
    return NumericText::valueOf(tb_.text());
}

void TextBoxNumeric::setValue(double value) {
    show(rules_.textOf(value));
}

void TextBoxNumeric::setText(std::string_view text) {
    show(rules_.plainTextOf(text));
}

void TextBoxNumeric::show(const std::string& text) {
    const bool outer = !std::exchange(writing_, true);
    tb_.setText(text);
    if (GetFocus() == tb_.handle()) {
        select(static_cast<int>(text.size()), 0);
    }
    if (outer) {
        writing_ = false;
        Change.raise();
    }
}

void TextBoxNumeric::select(int start, int length) {
    SendMessageW(tb_.handle(), EM_SETSEL, static_cast<WPARAM>(start), start + length);
}

TypedText TextBoxNumeric::typed() const {
    DWORD first = 0;
    DWORD last = 0;
    SendMessageW(tb_.handle(), EM_GETSEL, reinterpret_cast<WPARAM>(&first),
                 reinterpret_cast<LPARAM>(&last));
    return {tb_.text(), static_cast<int>(first), static_cast<int>(last - first)};
}

LRESULT TextBoxNumeric::onCharacter(WPARAM wParam, LPARAM lParam) {
    const TypedText before = typed();
    const FilteredKey filtered = rules_.keyPress(static_cast<char32_t>(wParam), before);
    if (filtered.box.text != before.text) {
        show(filtered.box.text);
    }
    if (filtered.box != before) {
        select(filtered.box.caret, filtered.box.selected);
    }
    LRESULT result = 0;
    if (filtered.key != 0) {
        result = tb_.standardHandling(WM_CHAR, filtered.key, lParam);
    }
    rules_.keyHandled();
    return result;
}

LRESULT TextBoxNumeric::onKeyDown(WPARAM wParam, LPARAM lParam) {
    if (wParam == VK_DELETE) {
        rules_.deletePress();
    }
    const LRESULT result = tb_.standardHandling(WM_KEYDOWN, wParam, lParam);
    rules_.keyHandled();
    return result;
}

/// The system's own handling of a mouse press would undo a selection made before it.
LRESULT TextBoxNumeric::onBoxFocus(UINT message, WPARAM wParam, LPARAM lParam) {
    const LRESULT result = tb_.standardHandling(message, wParam, lParam);
    if (message == WM_SETFOCUS && markAllOnGotFocus_) {
        SendMessageW(tb_.handle(), EM_SETSEL, 0, -1);
    }
    InvalidateRect(handle(), nullptr, FALSE);
    return result;
}

void TextBoxNumeric::onTextChange() {
    if (writing_) {
        return;
    }
    if (const auto normal = rules_.changed(tb_.text())) {
        show(*normal);
    } else {
        Change.raise();
    }
}

std::optional<LRESULT> TextBoxNumeric::Box::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_CHAR:
            return host_.onCharacter(wParam, lParam);
        case WM_KEYDOWN:
            return host_.onKeyDown(wParam, lParam);
        case WM_SETFOCUS:
        case WM_KILLFOCUS:
            return host_.onBoxFocus(message, wParam, lParam);
        default:
            return std::nullopt;
    }
}

void TextBoxNumeric::placeBox() {
    const RECT client = clientRectangle();
    const int inset = scaledLength(padding, controlDpi(handle()));
    const auto font = reinterpret_cast<HFONT>(SendMessageW(tb_.handle(), WM_GETFONT, 0, 0));
    const WindowContext context(tb_.handle());
    const Selected selected(context.get(), font != nullptr ? font : GetStockObject(SYSTEM_FONT));
    TEXTMETRICW metrics{};
    GetTextMetricsW(context.get(), &metrics);
    const int height = metrics.tmHeight;
    SetWindowPos(tb_.handle(), nullptr, inset, (client.bottom - height) / 2,
                 client.right - 2 * inset, height, SWP_NOZORDER | SWP_NOACTIVATE);
}

LRESULT TextBoxNumeric::onPaint() {
    const PaintScope scope(handle());
    const bool focused = GetFocus() == tb_.handle();
    paintField(scope.context(), clientRectangle(), Enabled(), focused, controlDpi(handle()));
    return 0;
}

/// The box speaks for the whole control.
LRESULT TextBoxNumeric::onTextMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    return SendMessageW(tb_.handle(), message, wParam, lParam);
}

std::optional<LRESULT> TextBoxNumeric::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (tb_.handle() == nullptr) {
        return std::nullopt;
    }
    switch (message) {
        case WM_PAINT:
            return onPaint();
        case WM_ERASEBKGND:
            return 1;
        case WM_SIZE:
            placeBox();
            return 0;
        case WM_SETFONT:
            onTextMessage(message, wParam, lParam);
            placeBox();
            return 0;
        case WM_GETFONT:
        case WM_GETTEXT:
        case WM_GETTEXTLENGTH:
        case WM_SETTEXT:
            return onTextMessage(message, wParam, lParam);
        case WM_SETFOCUS:
            SetFocus(tb_.handle());
            return 0;
        case WM_ENABLE:
            EnableWindow(tb_.handle(), wParam != FALSE ? TRUE : FALSE);
            InvalidateRect(handle(), nullptr, FALSE);
            return 0;
        case WM_COMMAND:
            if (HIWORD(wParam) == EN_CHANGE) {
                onTextChange();
            }
            return 0;
        default:
            return fieldColors(message, wParam);
    }
}

}  // namespace ormala
