#include "widgets/win/ctlSlider.h"

#include <oleacc.h>
#include <windowsx.h>

#include <algorithm>

#include "platform/win/GdiCanvas.h"
#include "platform/win/fills.h"
#include "platform/win/regions.h"
#include "platform/win/text.h"
#include "widgets/dpi.h"
#include "widgets/lookColors.h"
#include "widgets/win/controlFontSize.h"

namespace ormala {

namespace {

int widthOf(HDC context, const std::string& text) {
    const std::wstring shown = wide(text);
    SIZE size{};
    GetTextExtentPoint32W(context, shown.c_str(), static_cast<int>(shown.size()), &size);
    return static_cast<int>(size.cx);
}

void drawLabel(HDC context, const std::string& text, const PixelRect& box, UINT format) {
    RECT area = toRect(box);
    DrawTextW(context, wide(text).c_str(), -1, &area, format | DT_SINGLELINE | DT_NOPREFIX);
}

}  // namespace

ctlSlider::ctlSlider(HWND parent, int id, std::string_view name) {
    open(parent, id, name, {L"ctlSlider", 0, WS_TABSTOP});
    showing_ = model_.LookChange.subscribe([this] { refresh(); });
    following_ = model_.Change.subscribe([this] { Change.raise(); });
}

// Each of these may change the room that the caption needs.

void ctlSlider::setMin(int min) {
    model_.setMin(min);
    arrange();
}

void ctlSlider::setMax(int max) {
    model_.setMax(max);
    arrange();
}

void ctlSlider::setStep(float step) {
    model_.setStep(step);
    arrange();
}

void ctlSlider::setCaption(const std::string& caption) {
    model_.setCaption(caption);
    arrange();
}

void ctlSlider::setDecimalSeparator(const std::string& separator) {
    model_.setDecimalSeparator(separator);
    arrange();
}

void ctlSlider::setMinText(const std::string& text) {
    minText_ = text;
    refresh();
}

void ctlSlider::setMaxText(const std::string& text) {
    maxText_ = text;
    refresh();
}

void ctlSlider::setFontSize(int points) {
    points_ = points;
    font_ = sharedControlFont(dpi(), FontLook::normal, points);
    arrange();
}

void ctlSlider::arrange() {
    // The system tells the size while the window is made.
    if (font_ == nullptr) {
        return;
    }
    const WindowContext context(handle());
    const Selected font(context.get(), font_->get());
    TEXTMETRICW metrics{};
    GetTextMetricsW(context.get(), &metrics);
    model_.arrange({size(), dpi(), static_cast<int>(metrics.tmHeight),
                    std::max(captionWidth(), captionRoom_)});
}

int ctlSlider::captionWidth() const {
    const WindowContext context(handle());
    const Selected font(context.get(), font_->get());
    return std::max(widthOf(context.get(), model_.captionWith(model_.Min())),
                    widthOf(context.get(), model_.captionWith(model_.Max())));
}

void ctlSlider::setCaptionRoom(int width) {
    captionRoom_ = width;
    arrange();
}

/// The window text and what a screen reader hears follow what is painted.
void ctlSlider::refresh() {
    if (handle() == nullptr) {
        return;
    }
    Window::setCaption(model_.captionText());
    if (const std::string value = model_.valueText(model_.Value()); value != toldValue_) {
        toldValue_ = value;
        NotifyWinEvent(EVENT_OBJECT_VALUECHANGE, handle(), OBJID_CLIENT, CHILDID_SELF);
    }
    invalidate();
}

void ctlSlider::drawTexts(HDC context) const {
    const SliderLayout& layout = model_.layout();
    const Selected font(context, font_->get());
    SetBkMode(context, TRANSPARENT);
    SetTextColor(context, colorRef(Enabled() ? dark::text : dark::dimText));
    const bool low = layout.lblMin.empty();
    drawLabel(context, model_.captionText(), layout.lblCaption, low ? DT_LEFT : DT_CENTER);
    drawLabel(context, minText_, layout.lblMin, DT_LEFT);
    drawLabel(context, maxText_, layout.lblMax, DT_RIGHT);
}

void ctlSlider::drawHandle(HDC context) const {
    const PixelRect box = model_.imgSlide();
    const int line = lineWidthAt(dpi());
    const bool enabled = Enabled();
    fillRect(context, toRect(box), enabled ? dark::off : dark::ground);
    frameRect(context, box, line, enabled ? dark::outline : dark::dimOutline);
    if (!enabled) {
        return;
    }
    const PixelRect inner = box.grown(-line);
    if (hover_ || model_.isHeld()) {
        frameRect(context, inner, line, dark::hoverMark);
    }
    const int middle = box.left + (box.width() - line) / 2;
    fillRect(context, toRect({middle, box.top + 4 * line, middle + line, box.bottom - 4 * line}),
             dark::offMark);
}

void ctlSlider::draw(HDC context) {
    const SliderLayout& layout = model_.layout();
    const PixelRect whole = fromRect(clientRectangle());
    const int line = lineWidthAt(dpi());
    fillRect(context, toRect(whole), dark::ground);
    const bool enabled = Enabled();
    fillRect(context, toRect(layout.shpLine), enabled ? dark::outline : dark::dimOutline);
    fillRect(context, toRect(layout.shpLine.grown(-line)), enabled ? dark::on : dark::ground);
    drawTexts(context);
    drawHandle(context);
    if (GetFocus() == handle()) {
        frameRect(context, whole, line, dark::on);
    }
}

void ctlSlider::tellFacts(AccessibleFacts& facts) const {
    facts.name = model_.Caption();
    facts.value = model_.valueText(model_.Value());
    facts.role = ROLE_SYSTEM_SLIDER;
}

LRESULT ctlSlider::press(PixelPoint point) {
    SetFocus(handle());
    SetCapture(handle());
    refresh();
    model_.press(point);
    return 0;
}

LRESULT ctlSlider::move(PixelPoint point) {
    TRACKMOUSEEVENT wanted{sizeof(TRACKMOUSEEVENT), TME_LEAVE, handle(), 0};
    TrackMouseEvent(&wanted);
    hover(model_.imgSlide().contains(point));
    model_.move(point);
    return 0;
}

LRESULT ctlSlider::release() {
    if (GetCapture() == handle()) {
        ReleaseCapture();
    }
    return 0;
}

LRESULT ctlSlider::onCaptureChanged() {
    model_.release();
    refresh();
    return 0;
}

void ctlSlider::hover(bool over) {
    if (hover_ != over) {
        hover_ = over;
        refresh();
    }
}

LRESULT ctlSlider::onEnable() {
    hover_ = false;
    release();
    refresh();
    return 0;
}

std::optional<LRESULT> ctlSlider::mouseMessage(UINT message, LPARAM lParam) {
    const PixelPoint point{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
    switch (message) {
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
            return press(point);
        case WM_MOUSEMOVE:
            return move(point);
        case WM_LBUTTONUP:
            return release();
        default:
            return std::nullopt;
    }
}

std::optional<LRESULT> ctlSlider::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (const auto answer = PaintedControl::onMessage(message, wParam, lParam)) {
        return answer;
    }
    switch (message) {
        case WM_SIZE:
            arrange();
            return 0;
        case WM_SETFOCUS:
        case WM_KILLFOCUS:
            refresh();
            return 0;
        case WM_ENABLE:
            return onEnable();
        case WM_GETDLGCODE:
            return DLGC_WANTARROWS;
        case WM_KEYDOWN:
            return model_.keyDown(static_cast<int>(wParam)) ? std::optional<LRESULT>(0)
                                                            : std::nullopt;
        case WM_MOUSELEAVE:
            hover(false);
            return 0;
        case WM_CAPTURECHANGED:
            return onCaptureChanged();
        case controlFontSizeMessage:
            setFontSize(static_cast<int>(wParam));
            return 0;
        default:
            return mouseMessage(message, lParam);
    }
}

}  // namespace ormala
