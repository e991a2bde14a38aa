#include "stencil/StencilState.h"

#include "modAPI/constants.h"
#include "modAPI/rectangles.h"
#include "modAPI/rounding.h"
#include "modAPI/transforms.h"

namespace ormala {

double PixelWidth(const Rect& rectBound) {
    return RectWidth(rectBound) + 1;
}

double PixelHeight(const Rect& rectBound) {
    return RectHeight(rectBound) + 1;
}

double CountedPixels(double first, double last) {
    return RoundHalfAway(last, 0) - RoundHalfAway(first, 0) + 1;
}

double PixelRatio(const Rect& rectBound, bool normalise) {
    Rect whole = rectBound;
    whole.right += 1;
    whole.bottom += 1;
    return RectAspect(whole, normalise);
}

double PixelRatioReciprocal(const Rect& rectBound) {
    const double ratio = PixelRatio(rectBound, false);
    return ratio == 0 ? infinite : 1 / ratio;
}

StencilCorners ComputeCorners(const StencilState& state) {
    const Rect& r = state.RectBound;
    const Point center = RectCenter(r);
    const auto turned = [&](double x, double y) {
        return RotatePoint(center.x, center.y, x, y, state.RotationAngle);
    };
    return {turned(r.left, r.top), turned(r.right, r.top), turned(r.left, r.bottom),
            turned(r.right, r.bottom)};
}

Rect defaultRectBound(double worksheetHeight, double defaultRatio) {
    const double height = (1 - G) * worksheetHeight;
    return {0, 0, height / defaultRatio - 1, height - 1};
}

}  // namespace ormala
