#include "measure/LabelAnchors.h"

#include <cmath>

#include "modAPI/constants.h"

namespace ormala {

Anchor LabelAnchorForAngle(double angle) {
    if (angle > twoPi) {
        angle -= twoPi;
    }
    if (angle < 0) {
        return Anchor::centre;
    }
    if (angle <= halfPi) {
        return Anchor::topRight;
    }
    if (angle <= pi) {
        return Anchor::topLeft;
    }
    if (angle <= threeHalvesPi) {
        return Anchor::bottomLeft;
    }
    return angle <= twoPi ? Anchor::bottomRight : Anchor::centre;
}

Anchor LabelAnchorForLength(const Point& p, double slope, const Point& other) {
    const bool rising = slope >= 0;
    if (std::abs(slope) <= 1) {
        if (p.y >= other.y) {
            return rising ? Anchor::topLeft : Anchor::topRight;
        }
        return rising ? Anchor::bottomRight : Anchor::bottomLeft;
    }
    if (p.x < other.x) {
        return rising ? Anchor::bottomRight : Anchor::topRight;
    }
    return rising ? Anchor::topLeft : Anchor::bottomLeft;
}

}  // namespace ormala
