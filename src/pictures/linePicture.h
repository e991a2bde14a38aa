#pragma once

#include "scene/PixelImage.h"

namespace ormala {

/// A sample of a line code: 0 dotted, 1 dashed, n >= 2 solid and n - 1 pixels wide. A black line
/// runs level through the middle of a white ground, with an eighth of the width free at each end.
/// The line has its true width at any size, so that it looks as it will on the worksheet. A side
/// below 1 gives no pixels.
PixelImage drawLinePicture(int lineCode, PixelSize size);

}  // namespace ormala
