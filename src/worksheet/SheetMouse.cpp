#include "worksheet/SheetMouse.h"

#include <algorithm>

namespace ormala {

namespace {

/// Seconds between two looks at a mouse that is outside the worksheet.
constexpr float outsideInterval = 0.1F;

/// Pixels that an arrow key moves the mouse by.
constexpr int pointerStep = 1;
constexpr int pointerStepWithCtrl = 10;

/// Right and down; none for a key that is no arrow.
PixelPoint wayOf(int key) {
    switch (key) {
        case key::left:
            return {-1, 0};
        case key::right:
            return {1, 0};
        case key::up:
            return {0, -1};
        case key::down:
            return {0, 1};
        default:
            return {};
    }
}

bool restsInDrag(int key) {
    return wayOf(key) != PixelPoint{} || key == key::home || key == key::remove;
}

bool isModifier(int key) {
    return key == key::shift || key == key::ctrl || key == key::alt;
}

}  // namespace

SheetMouse::SheetMouse(Sheet& sheet, Aids& aids, MousePort& port)
    : sheet_(sheet),
      aids_(aids),
      port_(port),
      outsideLooks_(outsideInterval),
      withdrawn_(sheet.withdrawn.subscribe([this](const OverlayItem& item) { forget(item); })) {}

OverlayItem* SheetMouse::itemAt(const MouseInput& input) const {
    const auto& order = sheet_.zOrder();
    const auto at = std::find_if(order.rbegin(), order.rend(), [&](OverlayItem* item) {
        return sheet_.isVisible(*item) && item->HitTest(input.x, input.y);
    });
    return at == order.rend() ? nullptr : *at;
}

MouseSource SheetMouse::sourceOf(OverlayItem* item) const {
    MouseSource source;
    source.tool = item != nullptr ? &item->control() : nullptr;
    source.holder = holder_ != nullptr ? &holder_->control() : nullptr;
    source.heldByOther = background_;
    return source;
}

void SheetMouse::BroadcastMouseMove(const MouseInput& input, const MouseSource& source) {
    const std::vector<OverlayItem*> all = sheet_.zOrder();
    for (OverlayItem* item : all) {
        if (sheet_.isVisible(*item)) {
            item->control().GlobalMouseMove(input, source);
        }
    }
    aids_.UpdateCrossHair();
}

void SheetMouse::press(const MouseInput& input) {
    last_ = {last_.button | input.button, input.shift, input.x, input.y};
    OverlayItem* item = holding() ? holder_ : itemAt(input);
    if (item == nullptr) {
        background_ = true;
        aids_.press(input);
        return;
    }
    holder_ = item;
    sheet_.giveFocus(*item);
    item->mouseDown(input, sourceOf(item));
    sheet_.SelectControl(*item);
}

void SheetMouse::move(const MouseInput& input) {
    last_ = input;
    looksAtRest_ = 0;
    OverlayItem* item = holding() ? holder_ : itemAt(input);
    const MouseSource source = sourceOf(item);
    // The tools hear of the mouse's place first: a drag then goes on from the grips as they are.
    BroadcastMouseMove(input, source);
    if (item != nullptr) {
        item->mouseMove(input, source);
    } else {
        aids_.move(input);
    }
    if (input.button == mouseButton::none) {
        // Also after a release that fell where no event came from.
        letGo();
    }
}

void SheetMouse::release(const MouseInput& input, int stillHeld) {
    OverlayItem* item = holding() ? holder_ : itemAt(input);
    last_ = {stillHeld, input.shift, input.x, input.y};
    if (stillHeld == 0) {
        letGo();
    }
    if (item != nullptr) {
        item->mouseUp(input, sourceOf(item));
        port_.raiseLens(true);
    } else {
        releaseOnBackground(input);
    }
}

void SheetMouse::releaseOnBackground(const MouseInput& input) {
    aids_.release(input);
    port_.raiseControlWindow();
    if (input.button == mouseButton::right) {
        port_.ShowContextMenu();
    }
}

void SheetMouse::lost() {
    OverlayItem* item = holder_;
    letGo();
    if (item != nullptr) {
        // Where the mouse will be next, nobody knows; no grip is under it until it moves.
        constexpr float nowhere = -32000;
        item->mouseUp({mouseButton::none, 0, nowhere, nowhere}, sourceOf(item));
        port_.raiseLens(true);
    } else {
        aids_.lost();
    }
}

bool SheetMouse::keyChanged(int key, int shift) {
    if (!isModifier(key) || !holding()) {
        return false;
    }
    if (shift != last_.shift) {
        MouseInput again = last_;
        again.shift = shift;
        move(again);
    }
    return true;
}

bool SheetMouse::keyPressed(int key, int shift) {
    const bool known = std::ranges::find(resting_, key) != resting_.end();
    const bool held = holder_ != nullptr && (last_.button & mouseButton::left) != 0;
    if (!restsInDrag(key) || !held) {
        return known;
    }
    if (!known) {
        resting_.push_back(key);
        // A tool that has just got the keyboard takes the next move for none of the hand.
        move(MouseInput(last_));
    }
    const PixelPoint way = wayOf(key);
    if (way != PixelPoint{}) {
        const int by = (shift & modifier::ctrl) != 0 ? pointerStepWithCtrl : pointerStep;
        port_.movePointer({way.x * by, way.y * by});
    }
    return true;
}

int SheetMouse::interval() const {
    // A little more than a tenth of a second, so that no look comes too early.
    constexpr int tickOutside = 110;
    constexpr int tickAtRest = 400;
    constexpr int looksOfASecond = 10;
    if (!sheet_.EditMode()) {
        return 0;
    }
    const int slow = looksAtRest_ < looksOfASecond ? tickOutside : tickAtRest;
    return aids_.wantsTick() ? Aids::crossHairInterval : slow;
}

void SheetMouse::tick() {
    if (sheet_.EditMode() && outsideLooks_.due(port_.now())) {
        lookOutside();
    }
    aids_.tick();
}

void SheetMouse::lookOutside() {
    const Pointer pointer = port_.pointer();
    looksAtRest_ = pointer.at == lastSeen_ ? looksAtRest_ + 1 : 0;
    lastSeen_ = pointer.at;
    if (pointer.worksheet.contains(pointer.at)) {
        return;
    }
    MouseSource source = sourceOf(nullptr);
    source.heldByOther = background_ || (pointer.held && !holding());
    BroadcastMouseMove(
        {mouseButton::none, 0, static_cast<float>(pointer.at.x - pointer.worksheet.left),
         static_cast<float>(pointer.at.y - pointer.worksheet.top)},
        source);
}

void SheetMouse::forget(const OverlayItem& item) {
    if (holder_ == &item) {
        holder_ = nullptr;
        background_ = true;
    }
}

void SheetMouse::letGo() {
    last_.button = mouseButton::none;
    holder_ = nullptr;
    background_ = false;
}

}  // namespace ormala
