#include "scene/Grip.h"

#include "modAPI/placing.h"
#include "modAPI/rectangles.h"

namespace ormala {

namespace {

// Lengths at 96 DPI.

/// A grip under the mouse is larger by this on each side.
constexpr int growth = 6;
/// Between the widths at rest (9 and 13) and the grown ones (21 and 25).
constexpr double grownWidth = 14;
/// A resting grip reaches this far beyond itself.
constexpr int restingReach = 6;

void enlarge(ShapeBox& box, int margin) {
    const auto by = static_cast<float>(margin);
    box.left -= by;
    box.top -= by;
    box.width += 2 * by;
    box.height += 2 * by;
}

}  // namespace

bool Grip::grown() const {
    return box.width > scale.length(grownWidth);
}

void Grip::grow() {
    if (box.width < scale.length(grownWidth)) {
        enlarge(box, scale.pixels(growth));
    }
}

void Grip::shrink() {
    if (grown()) {
        enlarge(box, -scale.pixels(growth));
    }
}

void Grip::setScale(const SheetScale& present) {
    if (scale == present) {
        return;
    }
    const bool wasGrown = grown();
    scale = present;
    box.width = box.height = static_cast<float>(scale.oddPixels(size));
    if (wasGrown) {
        grow();
    }
}

double Grip::reach() const {
    // As far as it grows, to the pixel.
    return grown() ? 0 : scale.pixels(restingReach);
}

void Grip::place(const Point& point) {
    const Point corner = PlaceByAnchor(box.width, box.height, point, Anchor::centre);
    box.left = static_cast<float>(corner.x);
    box.top = static_cast<float>(corner.y);
}

Point Grip::center() const {
    return RectCenter(RectOfShape(box));
}

PixelRect Grip::pixels() const {
    // Beyond this a grip lies off every screen, and its place would not fit into an integer.
    constexpr float far = 1.0e8F;
    if (!(box.left > -far && box.left < far && box.top > -far && box.top < far)) {
        return {};
    }
    const int left = static_cast<int>(box.left);
    const int top = static_cast<int>(box.top);
    return {left, top, left + static_cast<int>(box.width), top + static_cast<int>(box.height)};
}

void Grip::draw(Canvas& canvas) const {
    const PixelRect area = pixels();
    if (inUse() && area.meets(canvas.visible())) {
        canvas.shape({kind, area, borderColor, borderWidth, pressed ? pressedColor : color});
    }
}

}  // namespace ormala
