#include "e2e/support/Device.h"

#include <windows.h>

#include <exception>
#include <string>

#include "e2e/support/StageFailure.h"

namespace ormala::test {

namespace {

/// As the display counts them.
std::string numberOf(MouseButton button) {
    return button == MouseButton::Left ? "1" : button == MouseButton::Middle ? "2" : "3";
}

}  // namespace

Device::Device() : stage_(L"ORMALA_DEVICE") {}

Device::~Device() {
    try {
        if (held_) {
            release();
        }
    } catch (const std::exception&) {
        // The scenario has failed already.
    }
}

void Device::moveTo(ScreenPoint point) {
    if (stage_.isThere()) {
        stage_.request("mousemove " + std::to_string(point.x) + " " + std::to_string(point.y));
    } else {
        mouse_.moveTo(point);
    }
}

void Device::press(MouseButton button) {
    held_ = button;
    if (stage_.isThere()) {
        stage_.request("mousedown " + numberOf(button));
    } else {
        mouse_.press(button);
    }
}

void Device::release() {
    const MouseButton button = held_.value_or(MouseButton::Left);
    held_.reset();
    if (stage_.isThere()) {
        stage_.request("mouseup " + numberOf(button));
    } else {
        mouse_.release(button);
    }
}

void Device::click(ScreenPoint point, MouseButton button) {
    moveTo(point);
    press(button);
    release();
}

void Device::pressEscape() {
    if (stage_.isThere()) {
        stage_.request("key Escape");
    } else {
        keyboard::press(VK_ESCAPE);
    }
}

void Device::beginDrag(ScreenPoint from, ScreenPoint to, int steps) {
    moveTo(from);
    press();
    for (int step = 1; step <= steps; ++step) {
        moveTo({from.x + (to.x - from.x) * step / steps, from.y + (to.y - from.y) * step / steps});
    }
}

void Device::drag(ScreenPoint from, ScreenPoint to, int steps) {
    beginDrag(from, to, steps);
    release();
}

}  // namespace ormala::test
