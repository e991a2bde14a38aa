#include "worksheet/Aids.h"

namespace ormala {

CrossHairLine horizontalLine(PixelPoint cursor, const PixelRect& worksheet) {
    return {{worksheet.left, cursor.y, worksheet.right, cursor.y + 1},
            cursor.y >= worksheet.top && cursor.y <= worksheet.bottom};
}

CrossHairLine verticalLine(PixelPoint cursor, const PixelRect& worksheet) {
    return {{cursor.x, worksheet.top, cursor.x + 1, worksheet.bottom},
            cursor.x >= worksheet.left && cursor.x <= worksheet.right};
}

void Aids::editModeChanged() {
    if (!sheet_.EditMode()) {
        lost();
    }
    SyncCrossHair();
}

bool Aids::showsCrossHair() const {
    return options_.crossHair && !aside_ && sheet_.EditMode();
}

void Aids::SyncCrossHair() const {
    const Pointer pointer = port_.pointer();
    CrossHairLine along = horizontalLine(pointer.at, pointer.worksheet);
    CrossHairLine down = verticalLine(pointer.at, pointer.worksheet);
    along.shown = along.shown && showsCrossHair();
    down.shown = down.shown && showsCrossHair();
    port_.showCrossHair(along, down);
}

void Aids::UpdateCrossHair() {
    if (showsCrossHair() && crossHairMoves_.due(port_.now())) {
        SyncCrossHair();
    }
}

void Aids::tick() {
    if (wantsTick()) {
        UpdateCrossHair();
    }
}

void Aids::setAside(bool aside) {
    aside_ = aside;
    SyncCrossHair();
}

void Aids::press(const MouseInput& input) {
    // A press on the topmost worksheet has covered what lay above it.
    if (input.button == mouseButton::left && !port_.raiseLens(false)) {
        port_.raiseWorksheet(options_.crossHair);
    }
    compass_.press(input, background_);
    repaintCompass(input);
}

void Aids::move(const MouseInput& input) {
    compass_.move(input, options_.circleCompass);
    repaintCompass(input);
}

void Aids::release(const MouseInput& input) {
    compass_.release(input);
    repaintCompass(input);
}

void Aids::lost() {
    compass_.lost();
    repaintCompass({});
}

void Aids::repaintCompass(const MouseInput& mouse) {
    compassReadOut_.show(compass_.opening(), {mouse.x, mouse.y}, sheet_.size());
    DirtyRegion changed = compass_.takeChanges();
    changed.add(compassReadOut_.takeChanges());
    if (!changed.empty()) {
        port_.repaintInFront(changed);
    }
}

void Aids::draw(Canvas& canvas) const {
    compass_.draw(canvas);
    compassReadOut_.draw(canvas);
}

}  // namespace ormala
