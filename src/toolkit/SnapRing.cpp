#include "toolkit/SnapRing.h"

#include <cmath>

#include "modAPI/rounding.h"

namespace ormala {

namespace {

// At 96 DPI. The largest grown grip has 25 pixels.
constexpr int ringSize = 33;
constexpr int ringWidth = 2;
/// Further away nothing is on any screen.
constexpr double farAway = 1.0e6;

}  // namespace

void SnapRing::show(const std::optional<Point>& place, Color color, const SheetScale& scale) {
    hide();
    if (place && std::abs(place->x) < farAway && std::abs(place->y) < farAway) {
        const int x = RoundToInt(place->x);
        const int y = RoundToInt(place->y);
        const PixelRect box = PixelRect{x, y, x + 1, y + 1}.grown(scale.oddPixels(ringSize) / 2);
        face_ = ShapeFace{ShapeKind::oval, box, color, scale.pixels(ringWidth), std::nullopt};
    }
}

void SnapRing::draw(Canvas& canvas) const {
    if (face_) {
        canvas.shape(*face_);
    }
}

void SnapRing::addTo(DirtyRegion& region) const {
    if (face_) {
        region.add(face_->box);
    }
}

}  // namespace ormala
