#include "measure/OtherMeasures.h"

#include "modAPI/angles.h"

namespace ormala {

bool SnapToOtherTools(Point& point, const OtherMeasures& others, const OverlayItem& self) {
    constexpr double reach = 8;
    double best = 9999999;
    Point nearest = point;
    others.visitEnds(self, [&](const Point& end) {
        const double distance = Distance(point.x, point.y, end.x, end.y);
        if (distance < best) {
            best = distance;
            nearest = end;
        }
    });
    if (best >= reach) {
        return false;
    }
    point = nearest;
    return true;
}

}  // namespace ormala
