#include "app/ToolSizes.h"

#include <algorithm>

namespace ormala {

double ToolSizes::NextToolSize(PixelSize worksheet) {
    constexpr double step = 24;
    constexpr double share = 2.3;
    const double largest = std::min(worksheet.width, worksheet.height) / share;
    last_ = std::min(last_ + step, largest);
    return last_;
}

}  // namespace ormala
