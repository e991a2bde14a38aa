#include "worksheet/CircleCompass.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "modAPI/constants.h"
#include "modAPI/drawingColors.h"
#include "modAPI/rounding.h"

namespace ormala {

namespace {

constexpr int leastRadius = 4;
/// A trembling hand gets no further.
constexpr int jitter = 12;

}  // namespace

void CircleCompass::press(const MouseInput& input, Color background) {
    show(std::nullopt);
    if (input.button != mouseButton::left) {
        return;
    }
    pressed_ = true;
    center_ = {RoundToInt(input.x), RoundToInt(input.y)};
    const bool onBright = Luminance(background) > 0.5F;
    using namespace sheetColor;
    circleColor_ = onBright ? compassOnBright : compassOnDark;
    centerColor_ = onBright ? compassOnDark : compassOnBright;
}

void CircleCompass::move(const MouseInput& input, bool enabled) {
    pressed_ = pressed_ && (input.button & mouseButton::left) != 0;
    if (!enabled || !pressed_ || input.button != mouseButton::left) {
        show(std::nullopt);
        return;
    }
    const Radii radii = radiiTo(input);
    if (shown_ || radii.outer > jitter) {
        show(radii);
    }
}

void CircleCompass::release(const MouseInput& input) {
    show(std::nullopt);
    pressed_ = pressed_ && input.button != mouseButton::left;
}

void CircleCompass::lost() {
    show(std::nullopt);
    pressed_ = false;
}

CircleCompass::Radii CircleCompass::radiiTo(const MouseInput& input) const {
    const double x = input.x;
    const double y = input.y;
    const double distance = std::hypot(x - center_.x, y - center_.y);
    return {std::max(RoundToInt(distance), leastRadius),
            std::max(RoundToInt(G * distance), RoundToInt(G * leastRadius)), distance};
}

std::optional<CircleCompass::Opening> CircleCompass::opening() const {
    return shown_ ? std::optional(Opening{center_, shown_->distance}) : std::nullopt;
}

PixelRect CircleCompass::circle(int radius) const {
    return PixelRect{center_.x, center_.y, center_.x + 1, center_.y + 1}.grown(radius);
}

PixelRect CircleCompass::centerMark() const {
    return circle(1);
}

void CircleCompass::show(const std::optional<Radii>& radii) {
    const bool appearing = shown_.has_value() != radii.has_value();
    if (appearing) {
        changed_.add(centerMark());
    }
    for (const auto which : {&Radii::outer, &Radii::inner}) {
        if (!appearing && (!radii || (*shown_).*which == (*radii).*which)) {
            continue;
        }
        for (const auto* state : {&std::as_const(shown_), &radii}) {
            if (state->has_value()) {
                changed_.addOutlineClosely(circle((**state).*which), 1);
            }
        }
    }
    shown_ = radii;
}

void CircleCompass::draw(Canvas& canvas) const {
    if (!shown_) {
        return;
    }
    for (const int radius : {shown_->outer, shown_->inner}) {
        canvas.shape({ShapeKind::oval, circle(radius), circleColor_, 1, std::nullopt});
    }
    canvas.shape({ShapeKind::rectangle, centerMark(), circleColor_, 1, centerColor_});
}

DirtyRegion CircleCompass::takeChanges() {
    return std::exchange(changed_, {});
}

}  // namespace ormala
