#pragma once

#include "scene/PixelImage.h"

namespace ormala {

/// A sample of a style of the magnifier's hot-spot mark, from 0 to 7: the dark mark in the middle
/// of a light field. Any other style shows the field alone. The lines take whole pixels, one for
/// each 16 of the shorter side and at least one. The field is square; what is left over of `size`
/// is transparent. A side below 1 gives no pixels.
PixelImage drawHotSpotPicture(int style, PixelSize size);

}  // namespace ormala
