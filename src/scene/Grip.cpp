#include "scene/Grip.h"

#include "modAPI/placing.h"
#include "modAPI/rectangles.h"

namespace ormala {

namespace {

/// A grip under the mouse is larger by this on each side.
constexpr float growth = 6;
/// Between the widths at rest (9 and 13) and the grown ones (21 and 25).
constexpr float grownWidth = 14;

}  // namespace

bool Grip::grown() const {
    return box.width > grownWidth;
}

void Grip::grow() {
    if (box.width < grownWidth) {
        box.left -= growth;
        box.top -= growth;
        box.width += 2 * growth;
        box.height += 2 * growth;
    }
}

void Grip::shrink() {
    if (grown()) {
        box.left += growth;
        box.top += growth;
        box.width -= 2 * growth;
        box.height -= 2 * growth;
    }
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
