#include "widgets/win/PaintedControl.h"

#include "platform/win/BackBuffer.h"
#include "platform/win/controlDpi.h"
#include "platform/win/controlName.h"
#include "platform/win/regions.h"

namespace ormala {

void PaintedControl::open(HWND parent, int id, std::string_view name, const Kind& kind) {
    WindowDesign design;
    design.className = kind.className;
    design.classStyle = kind.classStyle;
    design.style = WS_CHILD | WS_VISIBLE | kind.style;
    design.owner = parent;
    design.id = id;
    // What the keyboard can work; a text leaves the touch to the panel that it lies on.
    design.takesTouchAtOnce = (kind.style & WS_TABSTOP) != 0;
    create(design);
    setControlName(handle(), name);
    setDpi(controlDpi(handle()));
}

void PaintedControl::setDpi(int dpi) {
    if (dpi_ != dpi) {
        dpi_ = dpi;
        dpiChanged();
        invalidate();
    }
}

PixelSize PaintedControl::size() const {
    const PixelRect client = fromRect(clientRectangle());
    return {client.width(), client.height()};
}

void PaintedControl::invalidate() const {
    // Without a window it would be all windows; what is not seen is painted whole when it is shown.
    if (handle() != nullptr && IsWindowVisible(handle()) != FALSE) {
        InvalidateRect(handle(), nullptr, FALSE);
    }
}

void PaintedControl::invalidateValue() const {
    invalidate();
    NotifyWinEvent(EVENT_OBJECT_VALUECHANGE, handle(), OBJID_CLIENT, CHILDID_SELF);
}

void PaintedControl::drawInto(HDC context, PixelPoint corner) {
    const PixelSize whole = size();
    const int former = SaveDC(context);
    OffsetViewportOrgEx(context, corner.x, corner.y, nullptr);
    IntersectClipRect(context, 0, 0, whole.width, whole.height);
    clipToShape(context);
    draw(context);
    RestoreDC(context, former);
}

LRESULT PaintedControl::paint() {
    const PaintScope scope(handle());
    const PixelSize whole = size();
    BackBuffer buffer;
    if (buffer.resize(whole) && buffer.context() != nullptr) {
        draw(buffer.context());
        BitBlt(scope.context(), 0, 0, whole.width, whole.height, buffer.context(), 0, 0, SRCCOPY);
    }
    return 0;
}

std::optional<LRESULT> PaintedControl::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    tip_.relay(handle(), message, wParam, lParam);
    switch (message) {
        case WM_PAINT:
            return paint();
        case WM_ERASEBKGND:
            return 1;
        case WM_GETFONT:
            return reinterpret_cast<LRESULT>(textFont());
        case WM_DPICHANGED_AFTERPARENT:
            setDpi(controlDpi(handle()));
            return 0;
        case WM_GETOBJECT:
            return answerAccessible(handle(), wParam, lParam);
        case accessibleFactsMessage:
            tellFacts(wantedFacts(lParam));
            return TRUE;
        default:
            return std::nullopt;
    }
}

}  // namespace ormala
