#include "support/win/ScreenGeometry.h"

#include <ostream>

namespace ormala::test {

ScreenRect screenRect(const RECT& rect) {
    return {static_cast<int>(rect.left), static_cast<int>(rect.top), static_cast<int>(rect.right),
            static_cast<int>(rect.bottom)};
}

std::ostream& operator<<(std::ostream& out, ScreenPoint point) {
    return out << point.x << ',' << point.y;
}

std::ostream& operator<<(std::ostream& out, const ScreenRect& rect) {
    return out << rect.left << ',' << rect.top << " to " << rect.right << ',' << rect.bottom;
}

}  // namespace ormala::test
