#include "worksheet/CompassReadOut.h"

#include <algorithm>
#include <utility>

#include "modAPI/constants.h"
#include "modAPI/rounding.h"

namespace ormala {

namespace {

/// From the mouse, at 96 DPI: beside its pointer.
constexpr int gapBesideMouse = 20;

bool looksTheSame(const ctlLabel& a, const ctlLabel& b) {
    return a.visible() == b.visible() &&
           (!a.visible() || (a.box() == b.box() && a.Caption() == b.Caption()));
}

/// A coordinate of the mouse, which may have left all screens.
int whole(double value) {
    constexpr double most = 1.0e6;
    return RoundToInt(std::clamp(value, -most, most));
}

}  // namespace

CompassReadOut::CompassReadOut(const AidTexts& texts) : texts_(texts) {
    label_.setFontSize(readableFontSize);
}

void CompassReadOut::show(const std::optional<CircleCompass::Opening>& opening, const Point& mouse,
                          PixelSize sheet) {
    if (!opening && !label_.visible()) {
        return;
    }
    const ctlLabel former = label_;
    label_.setVisible(opening.has_value());
    if (opening) {
        label_.setCaption(compassText(opening->radius, texts_.form));
        label_.fit(texts_.meter);
        const PixelPoint center = opening->center;
        place({static_cast<double>(center.x), static_cast<double>(center.y)}, mouse, sheet);
    }
    if (!looksTheSame(former, label_)) {
        former.addTo(changed_);
        label_.addTo(changed_);
    }
}

void CompassReadOut::place(const Point& center, const Point& mouse, PixelSize sheet) {
    const int width = label_.box().width();
    const int height = label_.box().height();
    const int gap = texts_.meter.scale().pixels(gapBesideMouse);
    const int atLeft = whole(mouse.x) - gap - width;
    const int atRight = whole(mouse.x) + gap;
    const bool fitsLeft = atLeft >= 0;
    const bool fitsRight = atRight + width <= sheet.width;
    const bool left = mouse.x < center.x ? fitsLeft || !fitsRight : fitsLeft && !fitsRight;
    const auto inside = [](int place, int room) { return std::clamp(place, 0, std::max(room, 0)); };
    label_.moveTo(inside(left ? atLeft : atRight, sheet.width - width),
                  inside(whole(mouse.y) - height / 2, sheet.height - height));
}

DirtyRegion CompassReadOut::takeChanges() {
    return std::exchange(changed_, {});
}

std::string compassText(double radius, const TextForm& form) {
    const auto length = [&form](double value) { return FormatLength(value, 0, 1, {}, 0, form); };
    return "r = " + length(radius) + "\r\nG * r = " + length(G * radius);
}

}  // namespace ormala
