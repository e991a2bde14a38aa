#include "widgets/win/Label.h"

#include <oleacc.h>

#include "platform/win/BackBuffer.h"
#include "platform/win/GdiCanvas.h"
#include "platform/win/controlName.h"
#include "platform/win/fills.h"
#include "platform/win/mousePassing.h"
#include "platform/win/pixels.h"
#include "platform/win/regions.h"
#include "platform/win/text.h"
#include "widgets/lookColors.h"
#include "widgets/win/controlFontSize.h"

namespace ormala {

Label::Label(HWND parent, int id, std::string_view name) {
    WindowDesign design;
    design.className = L"Label";
    // An aligned text moves with either edge.
    design.classStyle = CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW;
    design.style = WS_CHILD | WS_VISIBLE;
    design.owner = parent;
    design.id = id;
    create(design);
    setControlName(handle(), name);
    setDpi(static_cast<int>(GetDpiForWindow(handle())));
}

void Label::setText(std::string_view text) {
    if (text_ != text) {
        text_ = text;
        Window::setCaption(text);
        InvalidateRect(handle(), nullptr, FALSE);
    }
}

void Label::setEnabled(bool enabled) {
    if ((IsWindowEnabled(handle()) != FALSE) != enabled) {
        EnableWindow(handle(), enabled ? TRUE : FALSE);
        InvalidateRect(handle(), nullptr, FALSE);
    }
}

/// The blank behind a value takes no room that the value needs.
std::string Label::drawnText() const {
    return text_.substr(0, text_.find_last_not_of(' ') + 1);
}

bool Label::isCut() const {
    const WindowContext context(handle());
    const Selected font(context.get(), font_->get());
    const std::wstring shown = wide(drawnText());
    SIZE size{};
    GetTextExtentPoint32W(context.get(), shown.c_str(), static_cast<int>(shown.size()), &size);
    const LONG room = clientRectangle().right;
    // One without a place shows nothing to be cut.
    return room > 0 && size.cx > room;
}

std::string Label::tipText() const {
    if (!isCut()) {
        return ownTip_;
    }
    // A tip of its own tells all of a text that its owner has shortened.
    return ownTip_.empty() ? drawnText() : drawnText() + "\n" + ownTip_;
}

/// What is cut is asked when the mouse comes, and not at each of the many changes of a text.
void Label::showTip(UINT message, WPARAM wParam, LPARAM lParam) {
    if (isMouseMessage(message)) {
        if (const std::string text = tipText(); text != tip_.text()) {
            tip_.setText(text);
        }
    }
    tip_.relay(handle(), message, wParam, lParam);
}

void Label::setBold(bool bold) {
    bold_ = bold;
    change(font_, sharedControlFont(dpi_, bold ? FontLook::bold : FontLook::normal, points_));
}

void Label::setFontSize(int points) {
    points_ = points;
    setBold(bold_);
}

void Label::setDpi(int dpi) {
    dpi_ = dpi;
    setBold(bold_);
}

void Label::setGradient(Color top, Color bottom) {
    gradient_ = GradientDesign{top, bottom};
    InvalidateRect(handle(), nullptr, FALSE);
}

void Label::drawGround(HDC context, const RECT& area) const {
    if (gradient_) {
        const PixelRect place = fromRect(area);
        copyPixels(context,
                   gradientImage(*gradient_, {place.width(), place.height()}, &systemColor));
    } else {
        fillRect(context, area, backColor_);
    }
}

void Label::drawText(HDC context, const RECT& area) const {
    drawGround(context, area);
    const Selected font(context, font_->get());
    SetBkMode(context, TRANSPARENT);
    const bool enabled = IsWindowEnabled(handle()) != FALSE;
    SetTextColor(context, colorRef(enabled ? textColor_ : dark::dimText));
    RECT place = area;
    DrawTextW(
        context, wide(drawnText()).c_str(), -1, &place,
        alignmentFormat(alignment_) | DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
}

LRESULT Label::paint() {
    const PaintScope scope(handle());
    const RECT area = clientRectangle();
    BackBuffer buffer;
    if (buffer.resize({static_cast<int>(area.right), static_cast<int>(area.bottom)}) &&
        buffer.context() != nullptr) {
        drawText(buffer.context(), area);
        BitBlt(scope.context(), 0, 0, area.right, area.bottom, buffer.context(), 0, 0, SRCCOPY);
    }
    return 0;
}

LRESULT Label::tellFacts(AccessibleFacts& facts) const {
    facts.name = text_;
    facts.role = ROLE_SYSTEM_STATICTEXT;
    facts.state = STATE_SYSTEM_READONLY;
    return TRUE;
}

std::optional<LRESULT> Label::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_PAINT:
            return paint();
        case WM_ERASEBKGND:
            return 1;
        case WM_DPICHANGED_AFTERPARENT:
            setDpi(static_cast<int>(GetDpiForWindow(handle())));
            return 0;
        case controlFontSizeMessage:
            setFontSize(static_cast<int>(wParam));
            return 0;
        case WM_GETFONT:
            return reinterpret_cast<LRESULT>(font());
        case WM_GETOBJECT:
            return answerAccessible(handle(), wParam, lParam);
        case accessibleFactsMessage:
            return tellFacts(wantedFacts(lParam));
        default:
            break;
    }
    showTip(message, wParam, lParam);
    if (passMouseToParent(handle(), message, wParam, lParam)) {
        return 0;
    }
    return std::nullopt;
}

}  // namespace ormala
