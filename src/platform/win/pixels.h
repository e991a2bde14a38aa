#pragma once

#include <windows.h>

#include "scene/PixelImage.h"

namespace ormala {

/// Puts the image, whose opacity counts for nothing, at the origin of the device context.
void copyPixels(HDC context, const PixelImage& image);

}  // namespace ormala
