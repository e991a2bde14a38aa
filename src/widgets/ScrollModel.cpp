#include "widgets/ScrollModel.h"

#include <algorithm>
#include <utility>

#include "modAPI/rounding.h"
#include "scene/Input.h"

namespace ormala {

namespace {

constexpr int ticksBetweenPages = 3;

constexpr int keySpace = 32;

}  // namespace

void ScrollModel::setEnabled(bool enabled) {
    enabled_ = enabled;
    if (!enabled) {
        cancel();
    }
}

void ScrollModel::setValue(int value) {
    store(value);
}

void ScrollModel::setLargeChange(int change) {
    range_.LargeChange = change;
    place();
}

void ScrollModel::setMax(int max) {
    range_.Max = max;
    store(range_.Value);
}

void ScrollModel::setMin(int min) {
    range_.Min = min;
    store(range_.Value);
}

void ScrollModel::resize(PixelSize size, int dpi) {
    size_ = size;
    dpi_ = dpi;
    layout_ = layoutScroll(size_, dpi_, range_);
    LayoutChange.raise();
}

void ScrollModel::place() {
    const ScrollLayout former = std::exchange(layout_, layoutScroll(size_, dpi_, range_));
    if (layout_ != former) {
        LayoutChange.raise();
    }
}

void ScrollModel::store(std::int64_t value) {
    const auto [low, high] = std::minmax(range_.Min, range_.Max);
    const auto held = static_cast<int>(std::clamp<std::int64_t>(value, low, high));
    const bool changed = held != range_.Value;
    range_.Value = held;
    place();
    if (changed) {
        Change.raise();
    }
}

void ScrollModel::press(ScrollPart part, PixelPoint point) {
    cancel();
    if (!enabled_) {
        return;
    }
    pressed_ = part;
    point_ = layout_.along(point);
    grip_ = point_ - layout_.thumbStart();
    if (part == ScrollPart::track && !layout_.cmdMove.empty()) {
        const std::int64_t page = range_.LargeChange;
        pageMode_ = true;
        step_ = grip_ < 0 ? -page : page;
    } else if (part == ScrollPart::topLeft) {
        step_ = -static_cast<std::int64_t>(smallChange_);
    } else if (part == ScrollPart::bottomRight) {
        step_ = smallChange_;
    }
    heldTicks_.begin(pageMode_ ? ticksBetweenPages : 0);
}

void ScrollModel::move(PixelPoint point) {
    point_ = layout_.along(point);
    const int free = layout_.free();
    if (pressed_ != ScrollPart::thumb || layout_.horizontal || free <= 0) {
        return;
    }
    const double share = static_cast<double>(point_ - grip_ - layout_.trackStart()) / free;
    // The range counts from 0, as it does for everything that is scrolled by its top.
    const double length = static_cast<double>(range_.Max) - range_.Min;
    constexpr double farthest = 1e15;
    store(
        static_cast<std::int64_t>(std::clamp(RoundHalfAway(share * length), -farthest, farthest)));
}

void ScrollModel::release(PixelPoint point) {
    point_ = layout_.along(point);
    const bool isShortClick = wantsTicks() && !stepped_ && layout_.partAt(point) == pressed_;
    const std::int64_t step = isShortClick ? step_ : 0;
    const bool reached = pageMode_ && thumbReachedPoint();
    cancel();
    if (step != 0 && !reached) {
        takeStep(step);
    }
}

void ScrollModel::cancel() {
    pressed_ = ScrollPart::none;
    step_ = 0;
    pageMode_ = false;
    stepped_ = false;
}

bool ScrollModel::thumbReachedPoint() const {
    return step_ < 0 ? point_ >= layout_.thumbStart() : point_ < layout_.thumbEnd();
}

void ScrollModel::takeStep(std::int64_t step) {
    if (enabled_) {
        store(range_.Value - step);
    }
}

void ScrollModel::takeHeldStep() {
    if (pageMode_ && thumbReachedPoint()) {
        return;
    }
    stepped_ = true;
    takeStep(step_);
}

void ScrollModel::tick() {
    if (wantsTicks() && heldTicks_.tick()) {
        takeHeldStep();
    }
}

void ScrollModel::stepOnce(ScrollPart arrow) {
    const std::int64_t small = smallChange_;
    if (arrow == ScrollPart::topLeft) {
        takeStep(-small);
    } else if (arrow == ScrollPart::bottomRight) {
        takeStep(small);
    }
}

bool ScrollModel::keyDown(ScrollPart part, int key) {
    const std::int64_t page = range_.LargeChange;
    switch (key) {
        case key::up:
            stepOnce(ScrollPart::topLeft);
            return true;
        case key::down:
            stepOnce(ScrollPart::bottomRight);
            return true;
        case key::pageUp:
            takeStep(-page);
            return true;
        case key::pageDown:
            takeStep(page);
            return true;
        case keySpace:
            stepOnce(part);
            return part == ScrollPart::topLeft || part == ScrollPart::bottomRight;
        default:
            return false;
    }
}

}  // namespace ormala
