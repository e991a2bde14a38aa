#include <cmath>
#include <optional>
#include <string>

#include "modAPI/rectangles.h"
#include "stencil/StencilResize.h"
#include "stencil/StencilTexts.h"
#include "stencil/ctlRatioGrid.h"

// Mouse and keyboard of the stencil.

namespace ormala {

TipId ctlRatioGrid::tipOf(int grip) const {
    return stencilGripTip(stencilGrip(grip).kind);
}

void ctlRatioGrid::beginDrag(const MouseInput& input) {
    const int grip = *grips().active();
    const Grip& look = grips()[grip];
    held_.grip = stencilGrip(grip);
    held_.pressX = input.x;
    held_.pressY = input.y;
    held_.grabX = static_cast<double>(input.x) - static_cast<double>(look.box.left);
    held_.grabY = static_cast<double>(input.y) - static_cast<double>(look.box.top);
    held_.gripWidth = look.box.width;
    held_.gripHeight = look.box.height;
    held_.shift = input.shift;
    pressBound_ = state_.RectBound;
    pressAngle_ = state_.RotationAngle;
    moveOwed_ = false;
    aids_.begin(held_.grip, look, state_, settings_.showReferenceLines);
    // Before the first move lets it snap.
    aids_.setText(snapsToRatio(held_) ? dragText(held_) : std::string(), host().textMeter());
    PositionAll();
}

void ctlRatioGrid::mouseMove(const MouseInput& input, const MouseSource& source) {
    // Neither a modifier nor a lost release comes with the focus.
    const bool skipped =
        skipNextMove_ && input.button != mouseButton::none && input.shift == held_.shift;
    skipNextMove_ = false;
    if (skipped) {
        moveOwed_ = true;
    } else {
        GripTool::mouseMove(input, source);
    }
}

void ctlRatioGrid::mouseUp(const MouseInput& input, const MouseSource& source) {
    if (moveOwed_ && grips().active() && input.button != mouseButton::none) {
        drag(input);
    }
    GripTool::mouseUp(input, source);
}

void ctlRatioGrid::drag(const MouseInput& input) {
    held_.x = input.x;
    held_.y = input.y;
    held_.shift = input.shift;
    moveOwed_ = false;
    aids_.setText(dragState(held_), host().textMeter());
    const std::optional<Point> crossing =
        bindsToGrid(held_) ? std::optional(RectCenter(state_.RectBound)) : std::nullopt;
    aids_.setRing(crossing, host().textMeter().scale());
    PositionAll();
    events().change.raise();
}

std::string ctlRatioGrid::dragState(const GripDrag& held) {
    state_.RectBound = pressBound_;
    state_.RotationAngle = pressAngle_;
    const bool moves = !leavesAsPressed(held);
    switch (held.grip.kind) {
        case StencilGripKind::move:
            if (moves) {
                return moveText(DragMove(state_, held, settings_.grid), settings_.textForm);
            }
            break;
        case StencilGripKind::rotate:
            if (moves) {
                DragRotate(state_, held);
            }
            break;
        case StencilGripKind::size:
            if (moves) {
                DragSize(state_, held);
            }
            break;
        case StencilGripKind::sizeCorner:
            if (moves) {
                DragSizeCorner(state_, held);
            }
            break;
    }
    return dragText(held);
}

std::string ctlRatioGrid::dragText(const GripDrag& held) const {
    return snapsToRatio(held) ? sizeTextNearRatio(state_.RectBound, ratios_, settings_.textForm)
                              : gripText(held.grip.kind);
}

std::string ctlRatioGrid::gripText(StencilGripKind kind) const {
    switch (kind) {
        case StencilGripKind::move:
            return moveText(RectCenter(state_.RectBound), settings_.textForm);
        case StencilGripKind::rotate:
            return rotationText(state_.RotationAngle, settings_.textForm);
        default:
            return sizeText(state_.RectBound, ratios_, settings_.textForm);
    }
}

SpokenTool ctlRatioGrid::words(int ordinal) const {
    return {stencilName(ordinal), gripText(StencilGripKind::move),
            onOneLine(gripText(StencilGripKind::size)) + ", " +
                onOneLine(gripText(StencilGripKind::rotate)),
            0};
}

std::string ctlRatioGrid::gripName(int grip) const {
    return stencilGripName(stencilGrip(grip));
}

std::string ctlRatioGrid::gripValue(int grip) const {
    return onOneLine(gripText(stencilGrip(grip).kind));
}

void ctlRatioGrid::keyDown(int key, int shift) {
    const bool ctrl = (shift & modifier::ctrl) != 0;
    switch (key) {
        case key::up:
            moveCenterByKey(0, -1, ctrl);
            break;
        case key::down:
            moveCenterByKey(0, 1, ctrl);
            break;
        case key::left:
            moveCenterByKey(-1, 0, ctrl);
            break;
        case key::right:
            moveCenterByKey(1, 0, ctrl);
            break;
        case key::home:
            CenterToScreen(shift != 0, 0, false, false);
            break;
        case key::pageUp:
        case key::pageDown:
            ModifyAngle(key == key::pageDown, angleStepOf(shift));
            // A drag that is under way goes on with it.
            pressAngle_ = state_.RotationAngle;
            break;
        case key::end:
        case key::remove:
            events().keyDownFiltered.raise(key, shift);
            return;
        default:
            return;
    }
    events().change.raise();
}

void ctlRatioGrid::moveCenterByKey(int dx, int dy, bool byGrid) {
    const Grid& grid = settings_.grid;
    Point center = RectCenter(state_.RectBound);
    center.x += dx * (byGrid ? grid.stepX : 1);
    center.y += dy * (byGrid ? grid.stepY : 1);
    if (byGrid) {
        SnapToGrid(center.x, center.y, grid);
    }
    CenterRectOn(state_.RectBound, center);
    PositionAll();
}

}  // namespace ormala
