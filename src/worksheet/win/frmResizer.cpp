#include "worksheet/win/frmResizer.h"
// Needs the system's basic types, which come with the window.
#include <windowsx.h>

#include <utility>

#include "language/MlStringModule.h"
#include "modAPI/drawingColors.h"
#include "platform/win/monitors.h"
#include "platform/win/regions.h"

namespace ormala {

namespace {

constexpr UINT tmrRefreshInterval = 222;
constexpr UINT tmrSetSizeInterval = 87;

/// Reads back where the worksheet lies, once what moved it is over.
constexpr UINT wmCheckHole = WM_APP + 1;

constexpr COLORREF keyColor = static_cast<COLORREF>(sheetColor::frameKey);
/// Only the key applies, whatever the opacity.
constexpr BYTE firstAlpha = 0;
constexpr BYTE shownAlpha = 230;

constexpr UINT keepOrder = SWP_NOACTIVATE | SWP_NOZORDER;

RECT firstPlace() {
    return toRect(
        defaultFramePlace({GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)}));
}

PixelSize sizeOf(const RECT& rect) {
    return {static_cast<int>(rect.right - rect.left), static_cast<int>(rect.bottom - rect.top)};
}

PixelSize leastSizeOf(HWND frame) {
    return leastFrameSize(static_cast<int>(GetDpiForWindow(frame)));
}

}  // namespace

frmResizer::frmResizer(frmWorksheet& worksheet, WorksheetCommands& commands)
    : worksheet_(worksheet), commands_(commands), fonts_(USER_DEFAULT_SCREEN_DPI) {
    constexpr int withoutGaps = 3;
    FormFrame_.setFrameStyle(withoutGaps);
    WindowDesign design;
    design.className = L"frmResizer";
    design.style = WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_THICKFRAME | WS_MAXIMIZEBOX;
    design.extendedStyle = WS_EX_LAYERED | WS_EX_TOPMOST;
    design.place = firstPlace();
    create(design);
    SetLayeredWindowAttributes(handle(), keyColor, firstAlpha, LWA_COLORKEY);
    worksheet_.setOwner(handle());
    worksheetMoved_ = worksheet_.placed.subscribe([this] { checkHoleSoon(); });
    worksheetSized_ = worksheet_.resized.subscribe([this] { checkHoleSoon(); });
}

frmResizer::~frmResizer() {
    // The system destroys what a window owns together with it.
    worksheet_.hide();
    worksheet_.setOwner(nullptr);
    destroy();
}

void frmResizer::SetRuntimeTexts(std::string_view title) {
    setCaption(std::string(title) + MlString(264, " Worksheet"));
}

void frmResizer::restore(const RECT& place, bool maximised) {
    WINDOWPLACEMENT placement{};
    placement.length = sizeof placement;
    GetWindowPlacement(handle(), &placement);
    placement.showCmd = SW_HIDE;
    placement.rcNormalPosition = place;
    SetWindowPlacement(handle(), &placement);
    PositionWorksheet();
    if (maximised) {
        maximise();
    }
}

void frmResizer::PositionWorksheet() {
    if (IsZoomed(handle()) != FALSE) {
        maximise();
    } else if (IsIconic(handle()) == FALSE) {
        layWorksheetInside();
        tellPlace();
    }
}

RECT frmResizer::holeInClient() const {
    return toRect(worksheetInFrame(sizeOf(clientRectangle())));
}

PixelRect frmResizer::hole() const {
    RECT place = holeInClient();
    MapWindowPoints(handle(), HWND_DESKTOP, reinterpret_cast<POINT*>(&place), 2);
    return fromRect(place);
}

void frmResizer::layWorksheetInside(POINT shift) {
    worksheet_.setMaxSized(false);
    const PixelRect place = hole();
    SetWindowPos(worksheet_.handle(), nullptr, place.left + shift.x, place.top + shift.y,
                 place.width(), place.height(), keepOrder);
    if (size_.changedTo(sizeOf(rectangle()))) {
        RedrawWindow(handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME);
    }
    checkHoleSoon();
}

void frmResizer::checkHoleSoon() {
    if (!worksheet_.MaxSized() && !std::exchange(checking_, true)) {
        PostMessageW(handle(), wmCheckHole, 0, 0);
    }
}

void frmResizer::checkHole() {
    checking_ = false;
    const bool atRest = IsIconic(handle()) == FALSE && IsZoomed(handle()) == FALSE &&
                        IsIconic(worksheet_.handle()) == FALSE && !unseenDrag_;
    if (!atRest || worksheet_.MaxSized()) {
        return;
    }
    switch (keeper_.next(fromRect(worksheet_.rectangle()), hole())) {
        case HoleKeeper::Step::putNow:
            PositionWorksheet();
            break;
        case HoleKeeper::Step::putLater:
            tmrSetSize_.start(handle(), tmrSetSizeInterval);
            break;
        case HoleKeeper::Step::rest:
            break;
    }
}

void frmResizer::tellPlace() const {
    if (IsIconic(worksheet_.handle()) == FALSE) {
        const RECT place = worksheet_.rectangle();
        worksheetPlaced.raise({static_cast<int>(place.left), static_cast<int>(place.top)});
    }
}

void frmResizer::layerAnew() {
    // Without the clearing a frame that was hidden would keep a layered state that is out of date.
    const LONG_PTR style = GetWindowLongPtrW(handle(), GWL_EXSTYLE);
    SetWindowLongPtrW(handle(), GWL_EXSTYLE, style & ~LONG_PTR{WS_EX_LAYERED});
    SetWindowLongPtrW(handle(), GWL_EXSTYLE, style | WS_EX_LAYERED);
    SetLayeredWindowAttributes(handle(), keyColor, shownAlpha, LWA_COLORKEY);
}

void frmResizer::keepBeneathWorksheet() {
    HWND above = GetWindow(handle(), GW_HWNDPREV);
    const HWND next = above != nullptr ? above : HWND_TOP;
    while (above != nullptr && above != worksheet_.handle()) {
        above = GetWindow(above, GW_HWNDPREV);
    }
    if (above == nullptr) {
        SetWindowPos(worksheet_.handle(), next, 0, 0, 0, 0,
                     SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_NOOWNERZORDER);
    }
}

void frmResizer::show() {
    if (!isVisible()) {
        layerAnew();
        ShowWindow(handle(), SW_SHOWNA);
    }
}

void frmResizer::hide() {
    ShowWindow(handle(), SW_HIDE);
}

void frmResizer::maximise() {
    hide();
    worksheet_.setMaxSized(true);
    if (IsZoomed(handle()) != FALSE) {
        leaveMaximised();
    }
    tellPlace();
}

void frmResizer::leaveMaximised() {
    // Only a shown window can leave that state; it does so fully transparent.
    leavingMaximised_ = true;
    SetLayeredWindowAttributes(handle(), keyColor, 0, LWA_COLORKEY | LWA_ALPHA);
    ShowWindow(handle(), SW_SHOWNOACTIVATE);
    ShowWindow(handle(), SW_HIDE);
    leavingMaximised_ = false;
}

void frmResizer::showNormal() {
    layerAnew();
    ShowWindow(handle(), SW_SHOWNOACTIVATE);
    PositionWorksheet();
}

void frmResizer::widenAndNarrow() {
    widenAndTakeBack(*this, 1);
    PositionWorksheet();
}

void frmResizer::follow() {
    // The hidden frame of a full-screen worksheet can be moved too, by a change of screens.
    const bool fullScreen = worksheet_.MaxSized() && !isVisible();
    if (!leavingMaximised_ && !fullScreen) {
        PositionWorksheet();
    }
}

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
        case WM_GETMINMAXINFO:
            return onGetMinMaxInfo(lParam);
        case WM_SYSCOMMAND:
            if ((wParam & 0xFFF0U) == SC_MAXIMIZE) {
                maximise();
                return 0;
            }
            return std::nullopt;
        case WM_KEYDOWN:
        case WM_SYSKEYDOWN:
            return worksheet_.KeyDown(static_cast<int>(wParam), heldModifiers())
                       ? std::optional<LRESULT>(0)
                       : std::nullopt;
        case WM_TIMER:
            return onTimer(wParam);
        case WM_DPICHANGED:
            return onDpiChanged(lParam);
        case WM_CLOSE:
            commands_.execute(Command::pauseMode);
            return 0;
        default:
            return std::nullopt;
    }
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
    const LRESULT result = DefWindowProcW(handle(), WM_SIZE, wParam, lParam);
    const PixelSize client = sizeOf(clientRectangle());
    FormFrame_.resize({0, 0, client.width, client.height});
    tmrRefresh_.start(handle(), tmrRefreshInterval);
    follow();
    return result;
}

LRESULT frmResizer::onGetMinMaxInfo(LPARAM lParam) {
    const PixelSize least = leastSizeOf(handle());
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
    const PixelSize least = leastSizeOf(handle());
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

LRESULT frmResizer::onDpiChanged(LPARAM lParam) {
    const RECT& place = *reinterpret_cast<const RECT*>(lParam);
    const PixelSize size = sizeOf(place);
    SetWindowPos(handle(), nullptr, place.left, place.top, size.width, size.height, keepOrder);
    return 0;
}

}  // namespace ormala
