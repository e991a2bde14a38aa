#include "e2e/support/Device.h"

#include <windows.h>

#include <exception>
#include <string>

#include "e2e/support/StageFailure.h"

namespace ormala::test {

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

void Device::press() {
    held_ = true;
    if (stage_.isThere()) {
        stage_.request("mousedown 1");
    } else {
        mouse_.press();
    }
}

void Device::release() {
    held_ = false;
    if (stage_.isThere()) {
        stage_.request("mouseup 1");
    } else {
        mouse_.release();
    }
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
