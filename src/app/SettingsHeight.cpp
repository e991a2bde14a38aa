#include "app/SettingsHeight.h"

#include <algorithm>
#include <limits>

#include "modAPI/rounding.h"

namespace ormala {

namespace {

constexpr double twipsPerInch = 1440;

int toInt(double value) {
    return static_cast<int>(std::clamp(RoundHalfAway(value, 0),
                                       static_cast<double>(std::numeric_limits<int>::min()),
                                       static_cast<double>(std::numeric_limits<int>::max())));
}

}  // namespace

std::optional<int> SettingsHeight::adjust(int mode, int formerMode, const Present& present) {
    pending_ = present.state == WindowState::minimised;
    if (present.state != WindowState::normal) {
        return std::nullopt;
    }
    if (mode == 1 || mode == 2) {
        if (formerMode == 0) {
            editModeHeight_ = present.height;
        }
        return present.shortHeight;
    }
    // A user who has pulled the short window to another height keeps that one.
    const bool standsShort = present.height == present.shortHeight;
    if (mode == 0 && standsShort && editModeHeight_ > 0) {
        return editModeHeight_;
    }
    return std::nullopt;
}

bool SettingsHeight::resized(WindowState state) {
    const bool due = state != WindowState::minimised && last_ == WindowState::minimised && pending_;
    last_ = state;
    return due;
}

int twipsOfPixels(int pixels, int dpi) {
    return toInt(pixels * twipsPerInch / dpi);
}

int pixelsOfTwips(int twips, int dpi) {
    return toInt(twips * static_cast<double>(dpi) / twipsPerInch);
}

}  // namespace ormala
