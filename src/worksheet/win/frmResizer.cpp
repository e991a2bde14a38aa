#include "worksheet/win/frmResizer.h"

#include <utility>

#include "language/MlStringModule.h"
#include "platform/win/inputMethod.h"
#include "platform/win/regions.h"
#include "worksheet/win/fullScreen.h"

namespace ormala {

namespace {

/// Only the key applies, whatever the opacity.
constexpr BYTE firstAlpha = 0;
constexpr BYTE shownAlpha = 230;

RECT firstPlace() {
    return toRect(
        defaultFramePlace({GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)}));
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
    takeNoInputMethod(handle());
    dpi_ = static_cast<int>(GetDpiForWindow(handle()));
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
    const std::string caption = std::string(title) + MlString(264, " Worksheet");
    setCaption(caption);
    worksheet_.setCaption(caption);
}

void frmResizer::restore(const PixelRect& place, bool maximised) {
    acrossDpi_.restore([this, &place] {
        setNormalPlace(handle(), place);
        return normalPlaceOf(handle()) == place;
    });
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
                 place.width(), place.height(), SWP_NOACTIVATE | SWP_NOZORDER);
    if (size_.changedTo(sizeOf(rectangle()))) {
        RedrawWindow(handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME);
    }
    checkHoleSoon();
}

void frmResizer::checkHoleSoon() {
    if (!std::exchange(checking_, true)) {
        PostMessageW(handle(), wmCheckHole, 0, 0);
    }
}

void frmResizer::checkHole() {
    checking_ = false;
    if (worksheet_.MaxSized()) {
        checkFullScreen();
        return;
    }
    const bool atRest = IsIconic(handle()) == FALSE && IsZoomed(handle()) == FALSE &&
                        IsIconic(worksheet_.handle()) == FALSE && !unseenDrag_;
    if (!atRest) {
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

/// A window manager may put a worksheet that has just left its frame back to where it was.
void frmResizer::checkFullScreen() {
    if (!worksheet_.isVisible() || IsIconic(worksheet_.handle()) != FALSE) {
        return;
    }
    const auto step =
        keeper_.next(fromRect(worksheet_.rectangle()), fullScreenPlaceAround(worksheet_.handle()));
    if (step == HoleKeeper::Step::putNow) {
        worksheet_.setMaxSized(true);
    } else if (step == HoleKeeper::Step::putLater) {
        tmrSetSize_.start(handle(), tmrSetSizeInterval);
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
        acrossDpi_.show(handle(), SW_SHOWNA);
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

void frmResizer::goFullScreenSoon() {
    // The system is in the midst of a call of its own, which a frame that hides would upset.
    if (!std::exchange(goingFullScreen_, true)) {
        makeUnseen();
        PostMessageW(handle(), wmFullScreen, FALSE, 0);
    }
}

LRESULT frmResizer::onFullScreen(bool asked) {
    goingFullScreen_ = false;
    if (asked || IsZoomed(handle()) != FALSE) {
        maximise();
    } else if (isVisible()) {
        // It has come back meanwhile.
        layerAnew();
        PositionWorksheet();
    }
    return 0;
}

void frmResizer::makeUnseen() const {
    SetLayeredWindowAttributes(handle(), keyColor, 0, LWA_COLORKEY | LWA_ALPHA);
}

void frmResizer::leaveMaximised() {
    // Only a shown window can leave that state.
    leavingMaximised_ = true;
    makeUnseen();
    ShowWindow(handle(), SW_SHOWNOACTIVATE);
    ShowWindow(handle(), SW_HIDE);
    leavingMaximised_ = false;
}

void frmResizer::showNormal() {
    layerAnew();
    acrossDpi_.show(handle(), SW_SHOWNOACTIVATE);
    PositionWorksheet();
}

void frmResizer::widenAndNarrow() {
    widenAndTakeBack(*this, 1);
    PositionWorksheet();
}

void frmResizer::follow() {
    if (leavingMaximised_) {
        return;
    }
    // The hidden frame of a full-screen worksheet can be moved too, by a change of screens.
    const bool fullScreen = worksheet_.MaxSized() && !isVisible();
    if (IsZoomed(handle()) != FALSE) {
        goFullScreenSoon();
    } else if (!fullScreen) {
        PositionWorksheet();
    }
}

}  // namespace ormala
