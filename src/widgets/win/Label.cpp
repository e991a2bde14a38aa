#include "widgets/win/Label.h"

#include "platform/win/GdiCanvas.h"
#include "platform/win/fills.h"
#include "platform/win/mousePassing.h"
#include "platform/win/pixels.h"
#include "platform/win/regions.h"
#include "platform/win/text.h"
#include "widgets/win/controlFontSize.h"

namespace ormala {

Label::Label(HWND parent, int id, std::string_view name) {
    // An aligned text moves with either edge.
    open(parent, id, name, {L"Label", CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW});
}

void Label::setEnabled(bool enabled) {
    if ((IsWindowEnabled(handle()) != FALSE) != enabled) {
        EnableWindow(handle(), enabled ? TRUE : FALSE);
        invalidate();
    }
}

/// The blank behind a value takes no room that the value needs.
std::string Label::drawnText() const {
    return text().substr(0, text().find_last_not_of(' ') + 1);
}

bool Label::isCut() const {
    const WindowContext context(handle());
    const Selected font(context.get(), font_->get());
    const std::wstring shown = wide(drawnText());
    SIZE extent{};
    GetTextExtentPoint32W(context.get(), shown.c_str(), static_cast<int>(shown.size()), &extent);
    const LONG room = clientRectangle().right;
    // One without a place shows nothing to be cut.
    return room > 0 && extent.cx > room;
}

std::string Label::tipText() const {
    if (!isCut()) {
        return ownTip_;
    }
    // A tip of its own tells all of a text that its owner has shortened.
    return ownTip_.empty() ? drawnText() : drawnText() + "\n" + ownTip_;
}

void Label::setBold(bool bold) {
    bold_ = bold;
    change(font_, sharedControlFont(dpi(), bold ? FontLook::bold : FontLook::normal, points_));
}

void Label::setFontSize(int points) {
    points_ = points;
    setBold(bold_);
}

void Label::setGradient(Color top, Color bottom) {
    gradient_ = GradientDesign{top, bottom};
    invalidate();
}

void Label::drawGround(HDC context, const RECT& area) const {
    if (gradient_) {
        const PixelRect place = fromRect(area);
        copyPixels(context,
                   gradientImage(*gradient_, {place.width(), place.height()}, systemColors()));
    } else {
        fillRect(context, area, backColor());
    }
}

void Label::draw(HDC context) {
    RECT area = clientRectangle();
    drawGround(context, area);
    const Selected font(context, font_->get());
    SetBkMode(context, TRANSPARENT);
    const bool enabled = IsWindowEnabled(handle()) != FALSE;
    const Color ground = gradient_ ? gradient_->ColorTopLeft : backColor();
    SetTextColor(context, enabled ? textColorRef(textColor_, ground) : colorRef(dark::dimText));
    DrawTextW(
        context, wide(drawnText()).c_str(), -1, &area,
        alignmentFormat(alignment_) | DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
}

std::optional<LRESULT> Label::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    // What is cut is asked when the mouse comes, and not at each of the many changes of a text.
    if (isMouseMessage(message)) {
        if (const std::string shown = tipText(); shown != tip()) {
            setTip(shown);
        }
    }
    if (const auto answer = LineOfText::onMessage(message, wParam, lParam)) {
        return answer;
    }
    if (message == controlFontSizeMessage) {
        setFontSize(static_cast<int>(wParam));
        return 0;
    }
    if (passMouseToParent(handle(), message, wParam, lParam)) {
        return 0;
    }
    return std::nullopt;
}

}  // namespace ormala
