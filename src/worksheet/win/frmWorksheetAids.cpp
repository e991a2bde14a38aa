#include "platform/win/dayTime.h"
#include "platform/win/regions.h"
#include "platform/win/windowOrder.h"
#include "worksheet/win/frmWorksheet.h"

// Grid, cross hair and compass of the worksheet, and what the mouse does on its background.

namespace ormala {

namespace {

POINT cursorPlace() {
    POINT cursor{};
    GetCursorPos(&cursor);
    return cursor;
}

}  // namespace

void frmWorksheet::RefreshGrid() {
    painter_.setGrid(grid_);
    InvalidateRect(handle(), nullptr, FALSE);
    paintNow();
}

LRESULT frmWorksheet::onPaint() {
    painter_.paint(handle());
    painted.raise();
    return 0;
}

void frmWorksheet::setCrossHairEnabled(bool enabled) {
    crossHairEnabled_ = enabled;
    SyncCrossHair();
}

void frmWorksheet::SyncCrossHair() {
    if (crossHairEnabled_ && clickable_) {
        placeCrossHair();
    } else {
        CrossHairX_->setVisible(false);
        CrossHairY_->setVisible(false);
    }
}

void frmWorksheet::UpdateCrossHair() {
    if (crossHairEnabled_ && clickable_ && crossHairMoves_.due(secondsSinceMidnight())) {
        placeCrossHair();
    }
}

void frmWorksheet::placeCrossHair() {
    const POINT cursor = cursorPlace();
    const PixelPoint at{static_cast<int>(cursor.x), static_cast<int>(cursor.y)};
    const PixelRect sheet = fromRect(rectangle());
    CrossHairX_->move(horizontalLine(at, sheet));
    CrossHairY_->move(verticalLine(at, sheet));
}

void frmWorksheet::raiseUppermost() {
    // A press on the topmost worksheet has covered what lay above it.
    if (!commands_.raiseLens(false)) {
        const HWND uppermost = crossHairEnabled_ ? CrossHairX_->handle() : handle();
        raiseWithoutActivating(uppermost);
    }
}

void frmWorksheet::onBackgroundDown(const MouseInput& input) {
    if (input.button == mouseButton::left) {
        raiseUppermost();
    }
    compass_.press(input, static_cast<Color>(painter_.background()));
    repaintCompass();
}

void frmWorksheet::onBackgroundMove(const MouseInput& input) {
    compass_.move(input, circleCompassEnabled_);
    repaintCompass();
}

void frmWorksheet::onBackgroundUp(const MouseInput& input) {
    compass_.release(input);
    repaintCompass();
    commands_.raiseControlWindowAt(cursorPlace());
    if (input.button == mouseButton::right) {
        ShowContextMenu();
    }
}

void frmWorksheet::ShowContextMenu() {
    paintNow();
    if (GetCapture() == handle() && !mouse_.holding()) {
        // The menu takes the mouse.
        ReleaseCapture();
    }
    commands_.ShowContextMenu(cursorPlace());
}

void frmWorksheet::hideCompass() {
    compass_.lost();
    repaintCompass();
}

void frmWorksheet::repaintCompass() {
    const DirtyRegion changed = compass_.takeChanges();
    if (!changed.empty()) {
        const RegionHandle region = regionOf(changed);
        InvalidateRgn(handle(), region.get(), FALSE);
    }
}

}  // namespace ormala
