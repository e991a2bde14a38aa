#include "toolkit/win/GrowthWatch.h"

#include <utility>

#include "platform/win/monitors.h"
#include "platform/win/regions.h"
#include "toolkit/GrowButtonNearMouse.h"

namespace ormala {

namespace {

/// Milliseconds between two looks.
constexpr UINT nearInterval = 44;
constexpr UINT farInterval = 500;

}  // namespace

bool GrowthWatch::isSeen() const {
    return window_.isVisible() && IsIconic(window_.handle()) == FALSE;
}

void GrowthWatch::windowChanged(int dpi) {
    if (isSeen() != timer_.isRunning()) {
        look(dpi);
    }
}

void GrowthWatch::mouseCame(int dpi) {
    if (!near_) {
        look(dpi);
    }
}

void GrowthWatch::look(int dpi) {
    const bool seen = isSeen();
    const PixelRect place = fromRect(window_.rectangle());
    const bool isNear = growthHasWork({seen, place, place, false}, mousePoint(), dpi);
    timer_.keep(window_.handle(), !seen ? 0 : isNear ? nearInterval : farInterval);
    if (std::exchange(near_, isNear) != isNear) {
        changed.raise();
    }
}

}  // namespace ormala
