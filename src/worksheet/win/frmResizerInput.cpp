#include <windowsx.h>

#include <utility>

#include "platform/win/monitors.h"
#include "platform/win/regions.h"
#include "worksheet/win/frmResizer.h"

// The messages of the frame.

namespace ormala {

std::optional<LRESULT> frmResizer::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_PAINT:
            return onPaint();
        case WM_ERASEBKGND:
            return 1;
        case WM_ACTIVATE:
        case WM_WINDOWPOSCHANGED:
            // Not every system keeps a window in front of its owner.
            keepBeneathWorksheet();
            return std::nullopt;
        case WM_NCHITTEST:
            return onHitTest(lParam);
        case WM_SIZE:
            return onSize(wParam, lParam);
        case WM_MOVE:
            unseenDrag_.reset();
            follow();
            return std::nullopt;
        case WM_ENTERSIZEMOVE:
            onEnterSizeMove();
            return std::nullopt;
        case WM_MOVING:
            unseenDrag_.reset();
            return std::nullopt;
        case WM_EXITSIZEMOVE:
            onExitSizeMove();
            return std::nullopt;
        case wmCheckHole:
            checkHole();
            return 0;
        case wmFullScreen:
            return onFullScreen(wParam != FALSE);
        case WM_GETMINMAXINFO:
            return onGetMinMaxInfo(lParam);
        case WM_SYSCOMMAND:
            return onSystemCommand(wParam);
        case WM_SETFOCUS:
        case WM_KILLFOCUS:
            worksheet_.frameFocusChanged(message == WM_SETFOCUS, reinterpret_cast<HWND>(wParam));
            return std::nullopt;
        case WM_KEYDOWN:
        case WM_SYSKEYDOWN:
            return onKey(message, wParam, lParam);
        case WM_TIMER:
            return onTimer(wParam);
        case WM_DPICHANGED:
            return onDpiChanged(HIWORD(wParam), *reinterpret_cast<const RECT*>(lParam));
        case WM_CLOSE:
            commands_.execute(Command::pauseMode);
            return 0;
        default:
            return std::nullopt;
    }
}

std::optional<LRESULT> frmResizer::onSystemCommand(WPARAM command) {
    if ((command & 0xFFF0U) != SC_MAXIMIZE) {
        return std::nullopt;
    }
    PostMessageW(handle(), wmFullScreen, TRUE, 0);
    return 0;
}

/// Who changes windows by the keyboard comes here, and means the tools.
std::optional<LRESULT> frmResizer::onKey(UINT message, WPARAM wParam, LPARAM lParam) {
    if (worksheet_.KeyDown(static_cast<int>(wParam), heldModifiers())) {
        return 0;
    }
    SendMessageW(worksheet_.handle(), message, wParam, lParam);
    return std::nullopt;
}

LRESULT frmResizer::onHitTest(LPARAM lParam) {
    const LRESULT part = DefWindowProcW(handle(), WM_NCHITTEST, 0, lParam);
    POINT point{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
    ScreenToClient(handle(), &point);
    const RECT hole = holeInClient();
    if (part != HTCLIENT || PtInRect(&hole, point) == FALSE) {
        return part;
    }
    // The hole is one for the mouse too; a system that asks has let the frame come in front.
    keepBeneathWorksheet();
    return HTTRANSPARENT;
}

LRESULT frmResizer::onPaint() {
    const PaintScope scope(handle());
    const PixelSize client = sizeOf(clientRectangle());
    const RECT hole = holeInClient();
    SetDCBrushColor(scope.context(), keyColor);
    FillRect(scope.context(), &hole, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
    GdiCanvas canvas(scope.context(), {0, 0, client.width, client.height}, fonts_);
    FormFrame_.draw(canvas);
    return 0;
}

LRESULT frmResizer::onSize(WPARAM wParam, LPARAM lParam) {
    constexpr UINT tmrRefreshInterval = 222;
    const LRESULT result = DefWindowProcW(handle(), WM_SIZE, wParam, lParam);
    const PixelSize client = sizeOf(clientRectangle());
    FormFrame_.resize({0, 0, client.width, client.height});
    tmrRefresh_.start(handle(), tmrRefreshInterval);
    follow();
    return result;
}

LRESULT frmResizer::onGetMinMaxInfo(LPARAM lParam) {
    const PixelSize least = leastFrameSize(dpi_);
    auto& limits = *reinterpret_cast<MINMAXINFO*>(lParam);
    limits.ptMinTrackSize = {least.width, least.height};
    return DefWindowProcW(handle(), WM_GETMINMAXINFO, 0, lParam);
}

void frmResizer::onEnterSizeMove() {
    const POINT cursor = cursorPlace();
    const LRESULT held = SendMessageW(handle(), WM_NCHITTEST, 0, MAKELPARAM(cursor.x, cursor.y));
    unseenDrag_.reset();
    if (held == HTCAPTION) {
        unseenDrag_ = cursor;
        tmrSetSize_.start(handle(), tmrSetSizeInterval);
    }
}

void frmResizer::onExitSizeMove() {
    unseenDrag_.reset();
    tmrSetSize_.stop();
    const PixelSize size = sizeOf(rectangle());
    const PixelSize least = leastFrameSize(dpi_);
    if (size.width <= least.width || size.height <= least.height) {
        // What shows the window may have made it smaller; this makes both agree again.
        widenAndNarrow();
    }
    // A drag that is taken back may leave the frame where no message told of it.
    follow();
}

void frmResizer::followUnseen() {
    if (!unseenDrag_) {
        tmrSetSize_.stop();
        if (isVisible()) {
            PositionWorksheet();
        } else if (worksheet_.MaxSized()) {
            worksheet_.setMaxSized(true);
        }
    } else if (isVisible()) {
        const POINT cursor = cursorPlace();
        layWorksheetInside({cursor.x - unseenDrag_->x, cursor.y - unseenDrag_->y});
    }
}

LRESULT frmResizer::onTimer(WPARAM id) {
    if (id == tmrSetSize_.number()) {
        followUnseen();
    } else {
        tmrRefresh_.stop();
        RedrawWindow(handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    }
    return 0;
}

LRESULT frmResizer::onDpiChanged(int dpi, const RECT& suggested) {
    const int former = std::exchange(dpi_, dpi);
    if (IsZoomed(handle()) == FALSE && IsIconic(handle()) == FALSE) {
        acrossDpi_.take(handle(), acrossDpi_.at(handle(), former, dpi_, suggested));
    }
    return 0;
}

}  // namespace ormala
