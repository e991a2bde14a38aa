#include "widgets/ButtonModel.h"

namespace ormala {

namespace {

/// Where a release clicks nothing.
constexpr PixelPoint outside{-1, -1};

}  // namespace

void ButtonModel::setEnabled(bool enabled) {
    if (enabled_ == enabled) {
        return;
    }
    enabled_ = enabled;
    keyFlag_ = false;
    setPressed(false);
    surface_.refresh();
    cancelPress();
}

ButtonState ButtonModel::state() const {
    const bool down = (pressed_ && !shownUp_) || checked();
    return {enabled_, hover_ && enabled_, down && enabled_ && !alwaysUp_, hasFocus_, checked()};
}

void ButtonModel::setPressed(bool pressed) {
    shownUp_ = false;
    change(pressed_, pressed);
}

void ButtonModel::mouseDown(const MouseArguments& at) {
    if (mouseIsDown_ && lastPress_.button != mouseButton::right && at.button != lastPress_.button) {
        // The press goes on that began with another mouse button.
        events_.MouseDown.raise(at);
        return;
    }
    lastPress_ = at;
    mouseIsDown_ = true;
    // What the space bar has begun is the mouse's from now on.
    keyFlag_ = false;
    if (at.button != mouseButton::right) {
        setPressed(true);
    }
    events_.MouseDown.raise(at);
}

void ButtonModel::mouseMove(const MouseArguments& at) {
    if (!hover_ && isInside(at)) {
        hover_ = true;
        shownUp_ = false;
        surface_.watchMouse(true);
        surface_.refresh();
        if (!survives(events_.MouseEnter, at.shift)) {
            return;
        }
    }
    events_.MouseMove.raise(at);
}

void ButtonModel::mouseUp(const MouseArguments& at) {
    if (!mouseIsDown_) {
        return;
    }
    if (at.button != lastPress_.button) {
        events_.MouseUp.raise(at);
        return;
    }
    mouseIsDown_ = false;
    setPressed(false);
    if (at.button != mouseButton::right && isInside(at) && !survives(events_.Click)) {
        return;
    }
    events_.MouseUp.raise(at);
}

void ButtonModel::doubleClick() {
    surface_.captureMouse();
    const std::weak_ptr<void> life = life_;
    mouseDown(MouseArguments(lastPress_));
    if (!life.expired()) {
        events_.DblClick.raise();
    }
}

void ButtonModel::mouseIsElsewhere(int shift) {
    if (!hover_) {
        return;
    }
    hover_ = false;
    shownUp_ = pressed_;
    surface_.watchMouse(false);
    surface_.refresh();
    events_.MouseExit.raise(shift);
}

void ButtonModel::cancelPress() {
    mouseUp({lastPress_.button, 0, outside.x, outside.y});
}

void ButtonModel::clickOnce() {
    const MouseArguments middle{mouseButton::left, 0, size_.width / 2, size_.height / 2};
    const std::weak_ptr<void> life = life_;
    mouseDown(middle);
    if (!life.expired()) {
        mouseUp(middle);
    }
}

void ButtonModel::keyDown(const KeyArguments& arguments) {
    if (arguments.keyCode == key::space && !keyFlag_ && !mouseIsDown_) {
        keyFlag_ = true;
        setPressed(true);
    }
    events_.KeyDown.raise(arguments);
}

void ButtonModel::keyUp(const KeyArguments& arguments) {
    // A space bar that went down in another window clicks nothing here.
    if (arguments.keyCode == key::space && keyFlag_) {
        keyFlag_ = false;
        setPressed(false);
        const std::weak_ptr<void> life = life_;
        events_.Click.raise();
        if (life.expired()) {
            return;
        }
    }
    events_.KeyUp.raise(arguments);
}

bool ButtonModel::pressAccessKey() const {
    if (enabled_) {
        events_.Click.raise();
        return true;
    }
    return false;
}

void ButtonModel::gainFocus() {
    hasFocus_ = true;
    surface_.refresh();
    events_.gotFocus.raise();
}

void ButtonModel::loseFocus() {
    hasFocus_ = false;
    keyFlag_ = false;
    setPressed(false);
    surface_.refresh();
    const std::weak_ptr<void> life = life_;
    cancelPress();
    if (!life.expired()) {
        events_.lostFocus.raise();
    }
}

}  // namespace ormala
