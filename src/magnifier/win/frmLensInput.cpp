#include <oleacc.h>

#include "magnifier/lensTexts.h"
#include "magnifier/win/frmLens.h"
#include "platform/win/Accessible.h"
#include "platform/win/fills.h"
#include "platform/win/monitors.h"
#include "platform/win/regions.h"

// The messages of the magnifier.

namespace ormala {

std::optional<LRESULT> frmLens::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_PAINT:
            return onPaint();
        case WM_ERASEBKGND:
            return 1;
        case WM_TIMER:
            onTick();
            return 0;
        case WM_SHOWWINDOW:
            return onShow(wParam != FALSE);
        case WM_ENTERSIZEMOVE:
        case WM_EXITSIZEMOVE:
            return onHeld(message == WM_ENTERSIZEMOVE);
        case WM_WINDOWPOSCHANGED:
            if (!Sticked()) {
                placed.raise();
            }
            return std::nullopt;
        case WM_SIZE:
            return onSize();
        case WM_GETMINMAXINFO:
            return onGetMinMaxInfo(lParam);
        case WM_ACTIVATE:
            if (LOWORD(wParam) != WA_INACTIVE) {
                onActivate();
            }
            return std::nullopt;
        case WM_RBUTTONUP:
            return onRightRelease();
        case WM_KEYDOWN:
        case WM_SYSKEYDOWN:
            return onKey(static_cast<int>(wParam));
        case WM_CLOSE:
            closeRequested.raise();
            return 0;
        case WM_DPICHANGED:
            return onDpiChanged(wParam, lParam);
        case WM_DISPLAYCHANGE:
        case WM_SETTINGCHANGE:
            readBounds();
            return std::nullopt;
        case WM_GETOBJECT:
            return answerAccessible(handle(), wParam, lParam);
        case accessibleFactsMessage:
            return onAccessibleFacts(lParam);
        default:
            return std::nullopt;
    }
}

LRESULT frmLens::onPaint() {
    const PaintScope scope(handle());
    const PixelRect client = fromRect(clientRectangle());
    if (!ground_.resize({client.width(), client.height()})) {
        return 0;
    }
    fillRect(ground_.context(), toRect(client), lensGround);
    GdiCanvas canvas(ground_.context(), client, fonts_);
    FormFrame_.draw(canvas);
    BitBlt(scope.context(), 0, 0, client.width(), client.height(), ground_.context(), 0, 0,
           SRCCOPY);
    return 0;
}

LRESULT frmLens::onSize() {
    const PixelRect client = fromRect(clientRectangle());
    FormFrame_.resize(client);
    if (parts_ && IsIconic(handle()) == FALSE) {
        InvalidateRect(handle(), nullptr, FALSE);
        if (client.height() >= 1) {
            LayoutLens();
        }
        SetLensCaption();
    }
    return 0;
}

LRESULT frmLens::onGetMinMaxInfo(LPARAM lParam) const {
    const PixelSize least = leastLensSize(dpi_);
    auto& limits = *reinterpret_cast<MINMAXINFO*>(lParam);
    limits.ptMinTrackSize = {least.width, least.height};
    return 0;
}

LRESULT frmLens::onDpiChanged(WPARAM wParam, LPARAM lParam) {
    const int former = dpi_;
    setDpi(LOWORD(wParam));
    if (!Sticked()) {
        const RECT& suggested = *reinterpret_cast<const RECT*>(lParam);
        acrossDpi_.take(handle(), acrossDpi_.at(handle(), former, dpi_, suggested));
    }
    // Of one that follows the mouse another size could bring it back onto the screen that it comes
    // from, without end.
    LayoutLens();
    return 0;
}

void frmLens::onActivate() const {
    SetWindowPos(handle(), HWND_TOPMOST, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_SHOWWINDOW);
}

LRESULT frmLens::onRightRelease() {
    commands_.showLensMenu(mousePoint());
    return 0;
}

std::optional<LRESULT> frmLens::onKey(int key) {
    return commands_.takeKey(key, heldModifiers()) ? std::optional<LRESULT>(0) : std::nullopt;
}

void frmLens::showMenuAtOrigin() {
    POINT origin{0, 0};
    ClientToScreen(handle(), &origin);
    commands_.showLensMenu({static_cast<int>(origin.x), static_cast<int>(origin.y)});
}

std::optional<LRESULT> frmLens::onShow(bool shown) {
    pace_ = {};
    tmrMain_.start(handle(), shown ? pace_.interval() : 0);
    hidePixel();
    return std::nullopt;
}

std::optional<LRESULT> frmLens::onHeld(bool held) {
    held_ = held;
    hidePixel();
    return std::nullopt;
}

LRESULT frmLens::onAccessibleFacts(LPARAM lParam) {
    // The caption is empty while the window follows the mouse; its name is not.
    AccessibleFacts& facts = wantedFacts(lParam);
    facts.name = lensName(Factor(), pixelUnderHotSpot());
    facts.role = ROLE_SYSTEM_CLIENT;
    return TRUE;
}

}  // namespace ormala
