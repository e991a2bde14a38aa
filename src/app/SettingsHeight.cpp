#include "app/SettingsHeight.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "modAPI/rounding.h"

namespace ormala {

namespace {

constexpr double twipsPerInch = 1440;

int toInt(double value) {
    return static_cast<int>(std::clamp(RoundHalfAway(value, 0),
                                       static_cast<double>(std::numeric_limits<int>::min()),
                                       static_cast<double>(std::numeric_limits<int>::max())));
}

bool isShort(Mode mode) {
    return mode == Mode::templateMode || mode == Mode::pause;
}

bool standsShort(const SettingsHeight::Present& present) {
    return present.height == present.shortHeight;
}

}  // namespace

std::optional<int> SettingsHeight::adjust(Mode mode, Mode formerMode, const Present& present) {
    pending_ = present.state == WindowState::minimised;
    const Mode from = std::exchange(pendingFrom_, std::nullopt).value_or(formerMode);
    const bool leavesEdit = from == Mode::edit && isShort(mode);
    if (present.state != WindowState::normal) {
        pendingFrom_ = pending_ ? std::optional(from) : std::nullopt;
        if (pending_ && leavesEdit && present.height > present.shortHeight) {
            // The program may end before the window comes back.
            editModeHeight_ = present.height;
        }
        return std::nullopt;
    }
    if (isShort(mode)) {
        if (leavesEdit) {
            editModeHeight_ = present.height;
        }
        return present.shortHeight;
    }
    // A user who has pulled the short window to another height keeps that one.
    if (mode == Mode::edit && standsShort(present) && editModeHeight_ > 0) {
        return editModeHeight_;
    }
    return std::nullopt;
}

std::optional<int> SettingsHeight::movedToDpi(int formerDpi, int dpi, const Present& former,
                                              int suggested, int shortHeight) {
    editModeHeight_ = pixelsOfTwips(twipsOfPixels(editModeHeight_, formerDpi), dpi);
    if (former.state == WindowState::minimised) {
        pending_ = true;
        return std::nullopt;
    }
    return standsShort(former) ? shortHeight : std::max(suggested, shortHeight);
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
