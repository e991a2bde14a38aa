#pragma once

#include "modAPI/points.h"

namespace ormala {

/// Which place of an item lies on the given point. The values are those of stored settings.
enum class Anchor {
    centre = 0,
    topCentre = 1,
    bottomCentre = 2,
    rightCentre = 3,
    leftCentre = 4,
    topRight = 5,
    bottomRight = 6,
    bottomLeft = 7,
    topLeft = 8,
};

/// The left and top, whole pixels, of an item of that size whose anchor lies on the point. The
/// right and bottom anchors lie on the item's last pixel.
Point PlaceByAnchor(double width, double height, Point point, Anchor anchor);

/// The same without rounding. With a gap the item stands `reach` units away from the point,
/// at the corners measured along the diagonal; the centre has no gap.
Point PlaceFormByAnchor(double width, double height, Point point, Anchor anchor, bool withGap,
                        double reach = 6);

}  // namespace ormala
