#include "dialogs/win/ColorPic.h"

#include <algorithm>
#include <utility>

#include "platform/win/fills.h"
#include "platform/win/regions.h"

namespace ormala {

namespace {

constexpr UINT blinkInterval = 30;

/// The part of a field's shorter side that a line of the mark takes.
constexpr int markShare = 8;

}  // namespace

ColorPic::ColorPic(HWND parent, int id, std::string_view name) : PickerControl(model_) {
    open(parent, id, name, {L"ColorPic", CS_DBLCLKS, WS_TABSTOP});
    changing_ = model_.RGBChanged.subscribe([this] {
        invalidateValue();
        RGBChanged.raise();
    });
    ending_ = model_.DoubleClick.subscribe([this] { DoubleClick.raise(); });
    resize();
}

void ColorPic::setRGBColor(Color color) {
    model_.setRGBColor(color);
    invalidateValue();
}

void ColorPic::SetRGBColorToCurrentPixelColor() {
    model_.SetRGBColorToCurrentPixelColor();
    invalidateValue();
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
    setTakesFocus(false);
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
    const PixelSize whole = model_.size();
    SetWindowPos(handle(), nullptr, 0, 0, whole.width, whole.height,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    invalidate();
}

void ColorPic::draw(HDC context) {
    const PixelSize fields = palette().size;
    for (int y = 0; y < fields.height; ++y) {
        for (int x = 0; x < fields.width; ++x) {
            fillRect(context, toRect(fieldBox({x, y})), palette().at({x, y}));
        }
    }
    const PixelRect mark = shpSelected();
    const int line = std::max(1, std::min(mark.width(), mark.height()) / markShare);
    frameRect(context, mark, line, model_.markColor());
}

LRESULT ColorPic::onFocus(bool focused) {
    model_.setFocus(focused);
    Timer1_.start(handle(), focused ? blinkInterval : 0);
    invalidate();
    return 0;
}

LRESULT ColorPic::onTimer() {
    model_.tick();
    const RECT mark = toRect(shpSelected());
    InvalidateRect(handle(), &mark, FALSE);
    return 0;
}

LRESULT ColorPic::onRelease(LPARAM lParam) {
    const HWND window = handle();
    PickerControl::onMessage(WM_LBUTTONUP, 0, lParam);
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
    switch (message) {
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
        default:
            return PickerControl::onMessage(message, wParam, lParam);
    }
}

}  // namespace ormala
