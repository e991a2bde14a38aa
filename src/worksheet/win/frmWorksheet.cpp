#include "worksheet/win/frmWorksheet.h"

#include <algorithm>

#include "language/MlStringModule.h"
#include "platform/win/dayTime.h"
#include "platform/win/monitors.h"
#include "platform/win/regions.h"
#include "worksheet/frameRules.h"
#include "worksheet/transparency.h"

namespace ormala {

namespace {

constexpr UINT_PTR tmrCrosshair = 1;
constexpr UINT tmrCrosshairInterval = 20;

/// Seconds between two broadcasts of a mouse that is outside the worksheet.
constexpr float outsideInterval = 0.1F;

RECT primaryWorkArea() {
    RECT area{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
    return area;
}

RECT areaToFill(HWND window) {
    const MONITORINFO monitor = monitorAround(window);
    const bool isPrimary = (monitor.dwFlags & MONITORINFOF_PRIMARY) != 0;
    return toRect(fullScreenPlace(fromRect(monitor.rcMonitor),
                                  fromRect(isPrimary ? primaryWorkArea() : monitor.rcMonitor)));
}

}  // namespace

frmWorksheet::frmWorksheet(ToolFactory& factory, ForegroundMemory& foreground,
                           WorksheetCommands& commands)
    : fonts_(designDpi),
      foreground_(foreground),
      commands_(commands),
      sheet_(*this, *this, factory),
      mouse_(sheet_),
      painter_(sheet_, compass_, fonts_),
      outsidePolls_(outsideInterval),
      crossHairMoves_(tmrCrosshairInterval / 1000.0F) {
    WindowDesign design;
    design.className = L"frmWorksheet";
    // Some window managers of other systems leave a window without it to itself, and it has then no
    // keyboard.
    design.style = WS_POPUP | WS_SYSMENU;
    design.extendedStyle = WS_EX_LAYERED | WS_EX_TOPMOST;
    design.place = primaryWorkArea();
    create(design);
    takeDpi(GetDpiForWindow(handle()));
    tip_ = std::make_unique<TipWindow>(handle());
    CrossHairX_ = std::make_unique<frmCrossHair>(handle(), "CrossHairX");
    CrossHairY_ = std::make_unique<frmCrossHair>(handle(), "CrossHairY");
    subscribeToMouse();
    SetTimer(handle(), tmrCrosshair, tmrCrosshairInterval, nullptr);
}

frmWorksheet::~frmWorksheet() {
    KillTimer(handle(), tmrCrosshair);
    CrossHairX_.reset();
    CrossHairY_.reset();
    tip_.reset();
    destroy();
}

void frmWorksheet::subscribeToMouse() {
    using Input = const MouseInput&;
    subscriptions_.push_back(
        mouse_.backgroundDown.subscribe([this](Input input) { onBackgroundDown(input); }));
    subscriptions_.push_back(
        mouse_.backgroundMove.subscribe([this](Input input) { onBackgroundMove(input); }));
    subscriptions_.push_back(
        mouse_.backgroundUp.subscribe([this](Input input) { onBackgroundUp(input); }));
    subscriptions_.push_back(mouse_.backgroundLost.subscribe([this] { hideCompass(); }));
    subscriptions_.push_back(mouse_.toolUp.subscribe([this] { commands_.raiseLens(true); }));
    subscriptions_.push_back(mouse_.broadcast.subscribe([this] { UpdateCrossHair(); }));
    subscriptions_.push_back(
        sheet_.withdrawn.subscribe([this](const OverlayItem& item) { showTip(item, 0); }));
    subscriptions_.push_back(
        GetLanguageSupport().LanguageChange.subscribe([this] { tip_->setText(sheetTip_.text()); }));
}

void frmWorksheet::setOwner(HWND owner) {
    SetWindowLongPtrW(handle(), GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(owner));
}

void frmWorksheet::ApplyLayered() {
    const LayeredLook look =
        layeredLook(clickable_, static_cast<Color>(painter_.background()), alpha_, clickAlpha_);
    // Without the mouse it obeys no keys either, and must not take them from who does.
    const DWORD focus = clickable_ ? 0 : WS_EX_NOACTIVATE;
    const DWORD mouse = transparentToMouse_ ? WS_EX_TRANSPARENT : 0;
    SetWindowLongPtrW(handle(), GWL_EXSTYLE,
                      static_cast<LONG_PTR>(look.extendedStyle | WS_EX_TOPMOST | focus | mouse));
    SetLayeredWindowAttributes(handle(), look.colorKey, static_cast<BYTE>(look.alpha), look.flags);
}

void frmWorksheet::letGoOfMouse() {
    if (GetCapture() == handle()) {
        ReleaseCapture();
    }
}

void frmWorksheet::setTransparentToMouse(bool transparent) {
    transparentToMouse_ = transparent;
    ApplyLayered();
}

void frmWorksheet::setClickable(bool clickable) {
    if (!clickable) {
        // A drag that is under way ends where it is.
        letGoOfMouse();
    }
    clickable_ = clickable;
    ApplyLayered();
    sheet_.setEditMode(clickable);
    if (!clickable) {
        hideCompass();
    }
    SyncCrossHair();
    paintNow();
}

void frmWorksheet::setAlpha(int alpha) {
    alpha_ = alpha;
    ApplyLayered();
}

void frmWorksheet::setClickAlpha(int alpha) {
    clickAlpha_ = alpha;
    ApplyLayered();
}

void frmWorksheet::setBackground(COLORREF color) {
    if (color != painter_.background()) {
        painter_.setBackground(color);
        InvalidateRect(handle(), nullptr, FALSE);
    }
}

void frmWorksheet::takeDpi(UINT dpi) {
    const SheetScale former = fonts_.scale();
    fonts_.setDpi(static_cast<int>(dpi));
    if (fonts_.scale() != former) {
        sheet_.resize(sheet_.size());
    }
}

void frmWorksheet::show() {
    // Whoever is hidden may not have been told of another one.
    takeDpi(GetDpiForWindow(handle()));
    ShowWindow(handle(), SW_SHOWNA);
    if (clickable_) {
        // A key that was taken away while the window was hidden can be left behind in its shape.
        SetLayeredWindowAttributes(handle(), painter_.background(), static_cast<BYTE>(clickAlpha_),
                                   LWA_COLORKEY | LWA_ALPHA);
        ApplyLayered();
    }
    if (maxSized_) {
        // The screen may have changed while the window was hidden.
        fillScreen();
    }
}

void frmWorksheet::hide() {
    ShowWindow(handle(), SW_HIDE);
}

void frmWorksheet::setMaxSized(bool maxSized) {
    maxSized_ = maxSized;
    if (!isVisible()) {
        show();
    } else if (maxSized) {
        fillScreen();
    }
    if (!maxSized && IsZoomed(handle()) != FALSE) {
        ShowWindow(handle(), SW_SHOWNOACTIVATE);
    }
}

void frmWorksheet::prepareMaxSized(bool maxSized) {
    maxSized_ = maxSized;
    if (maxSized) {
        fillScreen();
    }
}

void frmWorksheet::fillScreen() {
    if (IsZoomed(handle()) != FALSE) {
        // Where a maximised window comes to lie is the system's choice.
        ShowWindow(handle(), SW_SHOWNOACTIVATE);
    }
    const RECT area = areaToFill(handle());
    SetWindowPos(handle(), nullptr, area.left, area.top, area.right - area.left,
                 area.bottom - area.top, SWP_NOZORDER | SWP_NOACTIVATE);
}

void frmWorksheet::narrowAndWiden() {
    const RECT place = rectangle();
    const int width = place.right - place.left;
    const int height = place.bottom - place.top;
    constexpr UINT flags = SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE;
    SetWindowPos(handle(), nullptr, 0, 0, width - 1, height, flags);
    SetWindowPos(handle(), nullptr, 0, 0, width, height, flags);
}

bool frmWorksheet::wasInFront() const {
    return handle() == foreground_.LastForegroundWindow;
}

void frmWorksheet::rememberForeground() {
    foreground_.LastForegroundWindow = GetForegroundWindow();
}

void frmWorksheet::repaintTool(const OverlayItem& item) {
    const RegionHandle region = regionOf(item.footprint());
    painter_.restChanged(region.get());
    InvalidateRgn(handle(), region.get(), FALSE);
}

void frmWorksheet::repaint(const OverlayItem& item, const DirtyRegion& region) {
    if (region.empty() || !sheet_.isVisible(item)) {
        return;
    }
    const RegionHandle changed = regionOf(region);
    if (&item != sheet_.front()) {
        painter_.restChanged(changed.get());
    }
    InvalidateRgn(handle(), changed.get(), FALSE);
}

void frmWorksheet::paintNow() {
    UpdateWindow(handle());
}

void frmWorksheet::showTip(const OverlayItem& item, TipId tip) {
    if (sheetTip_.show(item, tip)) {
        tip_->setText(sheetTip_.text());
    }
}

void frmWorksheet::runTimer(Ticking& ticking, int interval, bool running) {
    const auto id = reinterpret_cast<UINT_PTR>(&ticking);
    std::erase(timers_, &ticking);
    if (running) {
        timers_.push_back(&ticking);
        SetTimer(handle(), id, static_cast<UINT>(interval), nullptr);
    } else {
        KillTimer(handle(), id);
    }
}

void frmWorksheet::pollOutside() {
    if (!clickable_ || !outsidePolls_.due(secondsSinceMidnight())) {
        return;
    }
    POINT cursor{};
    GetCursorPos(&cursor);
    const RECT place = rectangle();
    if (PtInRect(&place, cursor) == FALSE) {
        const bool heldByOther = GetCapture() != nullptr && !mouse_.holding();
        mouse_.outside(static_cast<float>(cursor.x - place.left),
                       static_cast<float>(cursor.y - place.top), heldByOther);
        paintNow();
    }
}

}  // namespace ormala
