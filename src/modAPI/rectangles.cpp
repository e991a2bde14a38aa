#include "modAPI/rectangles.h"

#include <cmath>

#include "modAPI/constants.h"

namespace ormala {

bool PointInRect(const Rect& rect, double x, double y) {
    return rect.left <= x && x < rect.right && rect.top <= y && y < rect.bottom;
}

Point RectCenter(const Rect& rect) {
    return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
}

double RectWidth(const Rect& rect) {
    return std::abs(rect.right - rect.left);
}

double RectHeight(const Rect& rect) {
    return std::abs(rect.bottom - rect.top);
}

double RectAspect(const Rect& rect, bool normalise) {
    const double height = rect.bottom - rect.top;
    if (height == 0) {
        return normalise ? 0 : infinite;
    }
    const double aspect = std::abs((rect.right - rect.left) / height);
    return normalise && aspect > 1 ? 1 / aspect : aspect;
}

void CenterRectOn(Rect& rect, Point centre) {
    const double width = rect.right - rect.left;
    const double height = rect.bottom - rect.top;
    rect.left = centre.x - width / 2;
    rect.top = centre.y - height / 2;
    rect.right = rect.left + width;
    rect.bottom = rect.top + height;
}

bool SameRect(const Rect& a, const Rect& b) {
    return a == b;
}

bool SameLine(const Line& a, const Line& b) {
    return a == b;
}

}  // namespace ormala
