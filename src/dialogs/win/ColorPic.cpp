#include "dialogs/win/ColorPic.h"

#include <oleacc.h>

#include <algorithm>
#include <utility>

#include "platform/win/Accessible.h"
#include "platform/win/controlName.h"
#include "platform/win/fills.h"
#include "platform/win/regions.h"

namespace ormala {

namespace {

constexpr UINT_PTR Timer1 = 1;
constexpr UINT blinkInterval = 30;

/// The part of a field's shorter side that a line of the mark takes.
constexpr int markShare = 8;

}  // namespace

ColorPic::ColorPic(HWND parent, int id, std::string_view name) {
    WindowDesign design;
    design.className = L"ColorPic";
    design.classStyle = CS_DBLCLKS;
    design.style = WS_CHILD | WS_VISIBLE | WS_TABSTOP;
    design.owner = parent;
    design.id = id;
    create(design);
    setControlName(handle(), name);
    changing_ = model_.RGBChanged.subscribe([this] {
        showColor();
        RGBChanged.raise();
    });
    ending_ = model_.DoubleClick.subscribe([this] { DoubleClick.raise(); });
    resize();
}

void ColorPic::setRGBColor(Color color) {
    model_.setRGBColor(color);
    showColor();
}

void ColorPic::SetRGBColorToCurrentPixelColor() {
    model_.SetRGBColorToCurrentPixelColor();
    showColor();
}

void ColorPic::setPictureIndex(int index) {
    model_.setPictureIndex(index);
    resize();
}

void ColorPic::setSizeFactorX(int factor) {
    model_.setSizeFactorX(factor);
    resize();
}

void ColorPic::setSizeFactorY(int factor) {
    model_.setSizeFactorY(factor);
    resize();
}

void ColorPic::place(PixelPoint corner) const {
    SetWindowPos(handle(), nullptr, corner.x, corner.y, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void ColorPic::place(const PixelRect& room) {
    model_.setRoom({room.width(), room.height()});
    place(PixelPoint{room.left, room.top});
    resize();
}

void ColorPic::leaveFocusToOthers() {
    leavesFocus_ = true;
    mouse_.setTakesFocus(false);
}

/// The press has brought the picker's window to the front, whose keys the user did not want.
void ColorPic::giveFocusBack() {
    const HWND former = std::exchange(formerFocus_, nullptr);
    if (former != nullptr && IsWindowVisible(former) != FALSE &&
        GetAncestor(former, GA_ROOT) != GetAncestor(handle(), GA_ROOT)) {
        SetFocus(former);
    }
}

void ColorPic::resize() {
    const PixelSize size = model_.size();
    SetWindowPos(handle(), nullptr, 0, 0, size.width, size.height,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    InvalidateRect(handle(), nullptr, FALSE);
}

void ColorPic::showColor() {
    InvalidateRect(handle(), nullptr, FALSE);
    NotifyWinEvent(EVENT_OBJECT_VALUECHANGE, handle(), OBJID_CLIENT, CHILDID_SELF);
}

void ColorPic::paint(HDC context, const PixelRect& wanted) const {
    const PixelSize fields = palette().size;
    for (int y = 0; y < fields.height; ++y) {
        for (int x = 0; x < fields.width; ++x) {
            if (const PixelRect box = fieldBox({x, y}); box.meets(wanted)) {
                fillRect(context, toRect(box), palette().at({x, y}));
            }
        }
    }
    const PixelRect mark = shpSelected();
    const int line = std::max(1, std::min(mark.width(), mark.height()) / markShare);
    frameRect(context, mark, line, model_.markColor());
}

/// While the mark blinks only its field is painted.
LRESULT ColorPic::onPaint() {
    const PaintScope scope(handle());
    if (buffer_.resize(size())) {
        const PixelRect wanted = fromRect(scope.area());
        paint(buffer_.context(), wanted);
        BitBlt(scope.context(), wanted.left, wanted.top, wanted.width(), wanted.height(),
               buffer_.context(), wanted.left, wanted.top, SRCCOPY);
    }
    return 0;
}

LRESULT ColorPic::onFocus(bool focused) {
    model_.setFocus(focused);
    if (focused) {
        SetTimer(handle(), Timer1, blinkInterval, nullptr);
    } else {
        KillTimer(handle(), Timer1);
    }
    InvalidateRect(handle(), nullptr, FALSE);
    return 0;
}

LRESULT ColorPic::onTimer() {
    model_.tick();
    const RECT mark = toRect(shpSelected());
    InvalidateRect(handle(), &mark, FALSE);
    return 0;
}

LRESULT ColorPic::onAccessibleFacts(LPARAM lParam) const {
    AccessibleFacts& facts = wantedFacts(lParam);
    facts.name = tip_.text();
    facts.value = model_.valueText();
    facts.role = ROLE_SYSTEM_LIST;
    return TRUE;
}

LRESULT ColorPic::onRelease(LPARAM lParam) {
    const HWND window = handle();
    mouse_.onMessage(window, WM_LBUTTONUP, lParam);
    // The end of a double click may have destroyed the picker.
    if (IsWindow(window) != FALSE) {
        giveFocusBack();
    }
    return 0;
}

std::optional<LRESULT> ColorPic::onKeyDown(int key) {
    if (model_.keyDown(key)) {
        return 0;
    }
    KeyDown.raise(key);
    return std::nullopt;
}

std::optional<LRESULT> ColorPic::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    tip_.relay(handle(), message, wParam, lParam);
    switch (message) {
        case WM_PAINT:
            return onPaint();
        case WM_ERASEBKGND:
            return 1;
        case WM_SETFOCUS:
        case WM_KILLFOCUS:
            return onFocus(message == WM_SETFOCUS);
        case WM_TIMER:
            return onTimer();
        case WM_GETDLGCODE:
            return DLGC_WANTARROWS;
        case WM_KEYDOWN:
            return onKeyDown(static_cast<int>(wParam));
        case WM_MOUSEACTIVATE:
            formerFocus_ = leavesFocus_ ? GetFocus() : nullptr;
            return std::nullopt;
        case WM_LBUTTONUP:
            return onRelease(lParam);
        case WM_GETOBJECT:
            return answerAccessible(handle(), wParam, lParam);
        case accessibleFactsMessage:
            return onAccessibleFacts(lParam);
        default:
            return mouse_.onMessage(handle(), message, lParam);
    }
}

}  // namespace ormala
