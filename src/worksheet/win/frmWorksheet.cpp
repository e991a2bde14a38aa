#include "worksheet/win/frmWorksheet.h"

#include <algorithm>
#include <utility>

#include "language/MlStringModule.h"
#include "platform/win/dayTime.h"
#include "platform/win/inputMethod.h"
#include "platform/win/keyedWindows.h"
#include "platform/win/monitors.h"
#include "platform/win/regions.h"
#include "platform/win/windowOrder.h"
#include "worksheet/win/fullScreen.h"

namespace ormala {

namespace {

RECT primaryWorkArea() {
    RECT area{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
    return area;
}

void letGoOfMouse(HWND window) {
    if (GetCapture() == window) {
        ReleaseCapture();
    }
}

}  // namespace

void widenAndTakeBack(const Window& window, int by) {
    const RECT place = window.rectangle();
    const int width = place.right - place.left;
    const int height = place.bottom - place.top;
    for (const int now : {width + by, width}) {
        SetWindowPos(window.handle(), nullptr, 0, 0, now, height,
                     SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
}

frmWorksheet::frmWorksheet(ToolFactory& factory, ForegroundMemory& foreground,
                           WorksheetCommands& commands, const AidOptions& aids,
                           const TextForm& form)
    : fonts_(designDpi),
      foreground_(foreground),
      commands_(commands),
      sheet_(*this, *this, factory),
      aids_(aids, sheet_, *this, {fonts_, form}),
      mouse_(sheet_, aids_, *this),
      painter_(sheet_, aids_, fonts_) {
    WindowDesign design;
    design.className = L"frmWorksheet";
    // Some window managers of other systems leave a window without it to itself, and it has then no
    // keyboard.
    design.style = WS_POPUP | WS_SYSMENU;
    design.extendedStyle = WS_EX_LAYERED | WS_EX_TOPMOST;
    design.place = primaryWorkArea();
    design.takesTouchAtOnce = true;
    create(design);
    layers_.emplace(handle(),
                    cutsKeyedWindowsAsShapes() ? std::optional(mostRunsOfShape) : std::nullopt);
    keepFromFullScreenMode(handle());
    takeNoInputMethod(handle());
    takeDpi(GetDpiForWindow(handle()));
    languageChanged_ = GetLanguageSupport().LanguageChange.subscribe([this] {
        tip_.setText(sheetTip_.text());
        tellScreenReaders();
    });
}

frmWorksheet::~frmWorksheet() {
    CrossHairX_.reset();
    CrossHairY_.reset();
    tip_ = {};
    forgetFullScreenMode(handle());
    destroy();
}

void frmWorksheet::setOwner(HWND owner) {
    SetWindowLongPtrW(handle(), GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(owner));
}

HWND frmWorksheet::frame() const {
    return GetWindow(handle(), GW_OWNER);
}

void frmWorksheet::ApplyLayered() {
    // How it is shown depends on the picture that the screen has.
    paintNow();
    layerAnew();
}

void frmWorksheet::layerAnew() {
    layers_->apply(layeredLook(transparency_, aids_.background()), painter_.picture());
}

void frmWorksheet::setTransparentToMouse(bool transparent) {
    transparency_.transparentToMouse = transparent;
    ApplyLayered();
}

void frmWorksheet::setClickable(bool clickable) {
    if (!clickable) {
        // A drag that is under way ends where it is.
        letGoOfMouse(handle());
    }
    transparency_.clickable = clickable;
    ApplyLayered();
    sheet_.setEditMode(clickable);
    aids_.editModeChanged();
    keepTime();
    paintNow();
}

void frmWorksheet::setAlpha(int alpha) {
    if (std::exchange(transparency_.alpha, alpha) != alpha) {
        ApplyLayered();
    }
}

void frmWorksheet::setClickAlpha(int alpha) {
    if (std::exchange(transparency_.clickAlpha, alpha) != alpha) {
        ApplyLayered();
    }
}

void frmWorksheet::setBackground(COLORREF color) {
    if (static_cast<Color>(color) != aids_.background()) {
        aids_.setBackground(static_cast<Color>(color));
        painter_.backgroundChanged();
        InvalidateRect(handle(), nullptr, FALSE);
    }
}

void frmWorksheet::aidsChanged() {
    if (painter_.RefreshGrid()) {
        InvalidateRect(handle(), nullptr, FALSE);
        paintNow();
    }
    aids_.SyncCrossHair();
}

void frmWorksheet::takeDpi(UINT dpi) {
    const SheetScale former = fonts_.scale();
    fonts_.setDpi(static_cast<int>(dpi));
    if (fonts_.scale() != former) {
        dpiChanged.raise();
        sheet_.resize(sheet_.size());
    }
}

void frmWorksheet::show() {
    // Whoever is hidden may not have been told of another one.
    takeDpi(GetDpiForWindow(handle()));
    ShowWindow(handle(), SW_SHOWNA);
    if (transparency_.clickable) {
        // A key that was taken away while the window was hidden can be left behind in its shape.
        // Nothing may be painted yet that is too fine for one.
        SetLayeredWindowAttributes(handle(), colorRef(aids_.background()),
                                   static_cast<BYTE>(transparency_.clickAlpha),
                                   LWA_COLORKEY | LWA_ALPHA);
        layerAnew();
    }
    if (maxSized_) {
        // The screen may have changed while the window was hidden.
        setMaxSized(true);
    }
    // Much may follow before the queue is empty and the screen would get it by itself.
    paintNow();
    GdiFlush();
}

void frmWorksheet::setShown(bool shown) {
    if (!shown) {
        hide();
    } else if (!isVisible()) {
        show();
    }
}

void frmWorksheet::hide() {
    ShowWindow(handle(), SW_HIDE);
}

void frmWorksheet::setMaxSized(bool maxSized) {
    maxSized_ = maxSized;
    if (IsZoomed(handle()) != FALSE && (maxSized || isVisible())) {
        // Where a maximised window comes to lie is the system's choice.
        ShowWindow(handle(), SW_SHOWNOACTIVATE);
    }
    if (maxSized) {
        place(fullScreenPlaceAround(handle()));
    }
}

void frmWorksheet::narrowAndWiden() {
    widenAndTakeBack(*this, -1);
}

void frmWorksheet::setFocusHeld(bool held) {
    const HWND focus = GetFocus();
    sheet_.setFocusHeld(held, focus != nullptr && (focus == handle() || focus == frame()));
    paintNow();
}

bool frmWorksheet::wasInFront() const {
    const void* const last = foreground_.LastForegroundWindow;
    return last != nullptr && (last == handle() || last == frame());
}

void frmWorksheet::rememberForeground() {
    foreground_.LastForegroundWindow = GetForegroundWindow();
}

void frmWorksheet::invalidate(const DirtyRegion& region, bool atRest) {
    painter_.changed(handle(), regionOf(region).get(), atRest);
}

void frmWorksheet::tellScreenReaders() {
    if (!mouse_.holding()) {
        teller_.later(handle());
    }
}

void frmWorksheet::repaintTool(const OverlayItem& item) {
    invalidate(item.footprint(), true);
    tellScreenReaders();
}

void frmWorksheet::repaint(const OverlayItem& item, const DirtyRegion& region) {
    tellScreenReaders();
    if (!region.empty() && sheet_.isVisible(item)) {
        invalidate(region, &item != sheet_.front());
    }
}

LRESULT frmWorksheet::paintNow() {
    UpdateWindow(handle());
    return 0;
}

void frmWorksheet::showTip(const OverlayItem& item, TipId tip) {
    if (sheetTip_.show(item, tip)) {
        tip_.setText(sheetTip_.text());
    }
}

void frmWorksheet::runTimer(Ticking& ticking, int interval, bool running) {
    const auto id = reinterpret_cast<UINT_PTR>(&ticking);
    timers_.erase(id);
    if (running) {
        timers_.try_emplace(id, id).first->second.start(handle(), static_cast<UINT>(interval));
    }
}

float frmWorksheet::now() const {
    return secondsSinceMidnight();
}

Pointer frmWorksheet::pointer() const {
    const POINT cursor = cursorPlace();
    return {{static_cast<int>(cursor.x), static_cast<int>(cursor.y)},
            fromRect(rectangle()),
            GetCapture() != nullptr};
}

void frmWorksheet::movePointer(PixelPoint by) {
    const POINT cursor = cursorPlace();
    SetCursorPos(static_cast<int>(cursor.x) + by.x, static_cast<int>(cursor.y) + by.y);
}

void frmWorksheet::showCrossHair(const CrossHairLine& along, const CrossHairLine& down) {
    if (!CrossHairX_) {
        if (!along.shown && !down.shown) {
            return;
        }
        CrossHairX_ = std::make_unique<frmCrossHair>(handle(), "CrossHairX");
        CrossHairY_ = std::make_unique<frmCrossHair>(handle(), "CrossHairY");
    }
    CrossHairX_->move(along);
    CrossHairY_->move(down);
}

void frmWorksheet::raiseWorksheet(bool crossHair) {
    raiseWithoutActivating(crossHair && CrossHairX_ ? CrossHairX_->handle() : handle());
}

void frmWorksheet::raiseControlWindow() {
    commands_.raiseControlWindowAt(cursorPlace());
}

void frmWorksheet::ShowContextMenu() {
    paintNow();
    if (!mouse_.holding()) {
        // The menu takes the mouse.
        letGoOfMouse(handle());
    }
    commands_.ShowContextMenu(cursorPlace());
}

}  // namespace ormala
