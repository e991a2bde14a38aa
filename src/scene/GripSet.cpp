#include "scene/GripSet.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "modAPI/angles.h"
#include "modAPI/drawingColors.h"

namespace ormala {

namespace {

constexpr int pressedBorder = 3;
constexpr int restingBorder = 1;
constexpr double farAway = 9999;

}  // namespace

GripSet::GripSet(std::vector<Grip> grips) : GripSet(std::move(grips), {}, 0) {}

GripSet::GripSet(std::vector<Grip> grips, ForwardOrder forward, int others)
    : grips_(std::move(grips)),
      stacking_(grips_.size() + static_cast<std::size_t>(others)),
      forward_(std::move(forward)) {
    const auto firstGrip = stacking_.begin() + others;
    std::iota(stacking_.begin(), firstGrip, count());
    std::iota(firstGrip, stacking_.end(), 0);
}

const Grip& GripSet::operator[](int index) const {
    return grips_[static_cast<std::size_t>(index)];
}

Grip& GripSet::at(int index) {
    return grips_[static_cast<std::size_t>(index)];
}

std::optional<int> GripSet::nearest(double x, double y) const {
    std::optional<int> hit;
    double best = farAway;
    for (int i = 0; i < count(); ++i) {
        const Grip& grip = (*this)[i];
        if (!grip.inUse() || !HitShapeTolerant(grip.box, x, y, grip.reach())) {
            continue;
        }
        const Point center = grip.center();
        const double distance = Distance(center.x, center.y, x, y);
        if (distance < best) {
            best = distance;
            hit = i;
        }
    }
    return hit;
}

std::optional<int> GripSet::hitOf(const HoverInput& input) const {
    if (input.mode != HoverMode::press && input.mouseHeldElsewhere) {
        return std::nullopt;
    }
    if (active_) {
        return active_;
    }
    return input.ours ? nearest(input.x, input.y) : std::nullopt;
}

std::optional<int> GripSet::update(const HoverInput& input, DirtyRegion& changed) {
    const std::optional<int> hit = hitOf(input);
    for (int i = 0; i < count(); ++i) {
        const Grip before = (*this)[i];
        applyHover(i, i == hit, input.mode);
        if ((*this)[i] != before) {
            changed.add(before.pixels().united((*this)[i].pixels()));
        }
    }
    return hit;
}

void GripSet::applyHover(int index, bool hit, HoverMode mode) {
    Grip& grip = at(index);
    if (!hit && index == active_) {
        return;
    }
    if (!hit) {
        grip.shrink();
    } else if (!grip.grown()) {
        grip.grow();
        raise(index);
    }
    if (mode != HoverMode::hover) {
        grip.pressed = hit && mode == HoverMode::press;
        grip.borderWidth = grip.pressed ? pressedBorder : restingBorder;
    }
}

void GripSet::raise(int index) {
    if (forward_.empty()) {
        bringForward(std::span(&index, 1));
        return;
    }
    const auto& items = forward_[static_cast<std::size_t>(index)];
    if (!std::equal(items.rbegin(), items.rend(), stacking_.rbegin())) {
        bringForward(items);
        ++restackings_;
    }
}

void GripSet::bringForward(std::span<const int> items) {
    for (const int item : items) {
        const auto at = std::ranges::find(stacking_, item);
        std::rotate(at, at + 1, stacking_.end());
    }
}

bool GripSet::setScale(const SheetScale& scale) {
    if (scale == scale_) {
        return false;
    }
    scale_ = scale;
    for (Grip& grip : grips_) {
        grip.setScale(scale);
    }
    return true;
}

void GripSet::place(int index, const Point& point) {
    at(index).place(point);
}

void GripSet::setVisible(bool visible) {
    for (Grip& grip : grips_) {
        grip.visible = visible;
    }
}

void GripSet::setTag(int index, GripTag tag) {
    Grip& grip = at(index);
    grip.tag = tag;
    if (tag == GripTag::hidden) {
        grip.shrink();
        grip.pressed = false;
        grip.borderWidth = restingBorder;
        if (active_ == index) {
            active_.reset();
        }
    }
}

void GripSet::setBorderColors(bool focus, bool selected) {
    for (Grip& grip : grips_) {
        const Color unfocused = selected ? grip.selectedBorder : sheetColor::quietGripEdge;
        grip.borderColor = focus ? grip.focusBorder : unfocused;
    }
}

bool GripSet::HitTest(double x, double y) const {
    return std::ranges::any_of(
        grips_, [&](const Grip& grip) { return grip.inUse() && HitShape(grip.box, x, y); });
}

void GripSet::draw(Canvas& canvas) const {
    draw(canvas, [](int) {});
}

void GripSet::draw(Canvas& canvas, const std::function<void(int)>& drawOther) const {
    for (const int item : stacking_) {
        if (item < count()) {
            (*this)[item].draw(canvas);
        } else {
            drawOther(item - count());
        }
    }
}

void GripSet::addTo(DirtyRegion& region) const {
    for (const Grip& grip : grips_) {
        if (grip.inUse()) {
            region.add(grip.pixels());
        }
    }
}

}  // namespace ormala
