#include "worksheet/crossHair.h"

namespace ormala {

CrossHairLine horizontalLine(PixelPoint cursor, const PixelRect& worksheet) {
    return {{worksheet.left, cursor.y, worksheet.right, cursor.y + 1},
            cursor.y >= worksheet.top && cursor.y <= worksheet.bottom};
}

CrossHairLine verticalLine(PixelPoint cursor, const PixelRect& worksheet) {
    return {{cursor.x, worksheet.top, cursor.x + 1, worksheet.bottom},
            cursor.x >= worksheet.left && cursor.x <= worksheet.right};
}

}  // namespace ormala
